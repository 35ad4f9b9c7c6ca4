// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Profile.h"
#include "text/RunTimeError.h"

#include <optional>
#include <vector>

namespace quorvex::platform::fake {

// A profile in memory for tests.
class MemoryProfile final : public Profile {
public:
    struct Entry {
        std::string Section;
        std::string Key;
        std::string Value; // as written

        bool operator==(Entry const&) const = default;
    };

    [[nodiscard]] std::vector<std::string> ReadStrings(std::string_view section,
                                                       std::span<ProfileEntry const> defaults) const override;
    void WriteStrings(std::string_view section, std::span<ProfileEntry const> entries) override;

    // In the order in which the keys were first written.
    std::vector<Entry> Entries;

    // When set, every writing raises this fault and changes nothing.
    std::optional<text::Fault> BreakWriting;

private:
    [[nodiscard]] std::vector<Entry>::const_iterator Find(std::string_view section,
                                                          std::string_view key) const;
};

} // namespace quorvex::platform::fake
