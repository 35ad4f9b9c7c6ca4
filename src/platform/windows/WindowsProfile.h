// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"
#include "platform/Profile.h"

namespace quorvex::platform::windows {

// An INI file through the profile functions of Windows, which work in the system's code page; the program's
// own texts are UTF-8.
class WindowsProfile final : public Profile {
public:
    // The files must outlive the profile.
    WindowsProfile(std::string path, Files& files);

    [[nodiscard]] std::string ReadString(std::string_view section, std::string_view key,
                                         std::string_view defaultText) const override;
    void WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) override;

private:
    std::string path_;
    Files& files_;
};

} // namespace quorvex::platform::windows
