// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "settings/basProfiles.h"

#include "platform/basProfileTexts.h"
#include "text/basFolders.h"

#include <cstddef>
#include <vector>

namespace quorvex::settings {

namespace {

constexpr std::string_view Section = "Globals";

} // namespace

std::string ProfileFileName(std::string_view programFolder, std::string_view executableName) {
    return text::EndWithSeparator(programFolder).append(executableName).append(".INI");
}

void ReadProfile(Settings& settings, platform::Profile const& profile, std::string_view programFolder) {
    settings = DefaultSettings(programFolder);
    std::vector<platform::ProfileEntry> defaults;
    for (SettingRow const& row : SettingTable()) {
        defaults.push_back({row.Key, settings.*row.Member});
    }
    auto const values = profile.ReadStrings(Section, defaults);
    for (std::size_t index = 0; index < values.size(); ++index) {
        settings.*SettingTable()[index].Member = values[index];
    }
    settings.DataPath = text::EndWithSeparator(settings.DataPath);
}

void WriteProfile(Settings const& settings, platform::Profile& profile) {
    std::vector<std::string> values;
    for (SettingRow const& row : SettingTable()) {
        values.push_back(platform::QuoteProfileText(settings.*row.Member));
    }
    std::vector<platform::ProfileEntry> entries;
    for (std::size_t index = 0; index < values.size(); ++index) {
        entries.push_back({SettingTable()[index].Key, values[index]});
    }
    profile.WriteStrings(Section, entries);
}

} // namespace quorvex::settings
