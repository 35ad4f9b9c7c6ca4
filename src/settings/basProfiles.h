// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The settings in their INI file. docs/formats/profile-ini.md describes it.
#pragma once

#include "platform/Profile.h"
#include "settings/Settings.h"

#include <string>
#include <string_view>

namespace quorvex::settings {

// The path of the INI file: in the program folder, named after the executable, which is given without its
// extension.
[[nodiscard]] std::string ProfileFileName(std::string_view programFolder, std::string_view executableName);

// Reads the settings; one that is missing gets its default, and all of them do when the file cannot be read.
// The data path gets its separator.
void ReadProfile(Settings& settings, platform::Profile const& profile, std::string_view programFolder);

// Writes all settings, spelled so that they read back as they are up to the longest length of a profile's
// text. Raises the faults of Profile; then nothing is written.
void WriteProfile(Settings const& settings, platform::Profile& profile);

} // namespace quorvex::settings
