// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Files.h"
#include "platform/Profile.h"

namespace quorvex::platform::disk {

// An INI file for systems that have no functions of their own for one.
class DiskProfile final : public Profile {
public:
    // The files must outlive the profile.
    DiskProfile(std::string path, Files& files);

    [[nodiscard]] std::vector<std::string> ReadStrings(std::string_view section,
                                                       std::span<ProfileEntry const> defaults) const override;
    void WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) override;

private:
    std::string path_;
    Files& files_;
};

} // namespace quorvex::platform::disk
