// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"
#include "platform/Profile.h"

namespace quorvex::platform::windows {

// An INI file through the profile functions of Windows. It is written in UTF-8, or in UTF-16 when it was that
// before; read, it can also be in the system's code page.
class WindowsProfile final : public Profile {
public:
    // The files must outlive the profile.
    WindowsProfile(std::string path, Files& files);

    [[nodiscard]] std::vector<std::string> ReadStrings(std::string_view section,
                                                       std::span<ProfileEntry const> defaults) const override;
    // Raises "Invalid procedure call or argument" for a value that is no UTF-8, too.
    void WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) override;

private:
    std::string path_;
    Files& files_;
};

} // namespace quorvex::platform::windows
