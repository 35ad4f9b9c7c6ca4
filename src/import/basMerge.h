// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Quote files out of days, and new days put into a quote file.
#pragma once

#include "import/basConversion.h"
#include "text/basDates.h"
#include "text/basFields.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvex::imports {

// The text of a quote file. Prices have all their digits, at least two decimals and, as far as six decimals
// go, the same number of them; volume and open interest have no more digits than they need. Raises "Type
// mismatch" for a number that would not read back as the same one.
[[nodiscard]] std::string QuoteText(std::span<DayQuote const> days);

// The latest so many days.
[[nodiscard]] std::span<DayQuote const> LatestOf(std::span<DayQuote const> days, std::size_t count);

// What a quote file holds.
struct QuoteFileDays {
    std::vector<DayQuote> Days;     // oldest first, each once
    std::uint64_t PassedCount = 0;  // lines that the program passes over
    std::optional<Refusal> Refused; // a day stands there twice with different figures
};

// Reads all days of a quote file as the program reads it, without rounding and beyond the five hundredth.
// Raises the faults of the source, and "Overflow" for a price beyond a double.
[[nodiscard]] QuoteFileDays ReadQuoteFileDays(text::ByteSource& source);

struct DayChange {
    DayQuote Before;
    DayQuote After;
};

// What becomes of a quote file.
struct Merge {
    std::vector<DayQuote> Days;     // of the new file
    std::vector<DayQuote> Appended; // behind the last day
    std::vector<DayQuote> Inserted; // between days that were there
    std::vector<DayChange> Changed; // days that were there with other figures, taken or not
    std::uint64_t EqualCount = 0;   // days that are there already
    std::uint64_t OlderCount = 0;   // days in front of the first one, which are not taken
    std::uint64_t LeavingCount = 0; // the oldest days, which make room
    bool HasGap = false; // more than a week lies between the last day there was and the first new one
};

// Puts the days into those of a quote file and keeps the latest so many. Prices are the same when they are so
// after rounding to as many decimals as those of the file have. Changed figures are taken only when they
// shall replace those there. Into a file without days all come.
[[nodiscard]] Merge MergeDays(std::span<DayQuote const> file, std::span<DayQuote const> days, bool replaces,
                              std::size_t most);

} // namespace quorvex::imports
