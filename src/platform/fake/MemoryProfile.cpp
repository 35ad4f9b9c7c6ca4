// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/MemoryProfile.h"

#include "platform/basProfileTexts.h"
#include "text/basTexts.h"

#include <algorithm>

namespace quorvex::platform::fake {

std::vector<MemoryProfile::Entry>::const_iterator MemoryProfile::Find(std::string_view section,
                                                                      std::string_view key) const {
    return std::ranges::find_if(Entries, [&](Entry const& entry) {
        return text::UpperCase(entry.Section) == text::UpperCase(section) &&
               text::UpperCase(entry.Key) == text::UpperCase(key);
    });
}

std::vector<std::string> MemoryProfile::ReadStrings(std::string_view section,
                                                    std::span<ProfileEntry const> defaults) const {
    std::vector<std::string> values;
    for (ProfileEntry const& wanted : defaults) {
        auto const entry = Find(section, wanted.Key);
        values.emplace_back(entry == Entries.end() ? wanted.Value
                                                   : CutProfileText(BareProfileText(entry->Value)));
    }
    return values;
}

void MemoryProfile::WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) {
    if (BreakWriting) {
        throw text::RunTimeError(*BreakWriting);
    }
    for (ProfileEntry const& written : entries) {
        RequireProfileValue(written.Value);
    }
    for (ProfileEntry const& written : entries) {
        auto const entry = Find(section, written.Key);
        if (entry == Entries.end()) {
            Entries.push_back({std::string(section), std::string(written.Key), std::string(written.Value)});
        } else {
            Entries[static_cast<std::size_t>(entry - Entries.begin())].Value = written.Value;
        }
    }
}

} // namespace quorvex::platform::fake
