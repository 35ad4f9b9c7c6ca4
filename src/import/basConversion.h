// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The rows of a table as days.
#pragma once

#include "import/Plan.h"
#include "text/basDates.h"
#include "text/basFields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::imports {

// Open, high, low, close, volume, open interest.
inline constexpr std::size_t FigureCount = 6;
inline constexpr std::size_t PriceCount = 4; // those in front
inline constexpr std::size_t VolumeIndex = 4;
inline constexpr std::array<Role, FigureCount> FigureRoles = {Role::Open,  Role::High,   Role::Low,
                                                              Role::Close, Role::Volume, Role::OpenInterest};

struct DayQuote {
    text::CalendarDay Day;
    std::array<double, FigureCount> Figures{};
    std::uint64_t Line = 0;   // of the table; 0: not of a table
    bool LacksVolume = false; // it is 0 because there is none
    bool LacksOpenInterest = false;
    bool HasSettlementMark = false; // behind a price

    [[nodiscard]] bool IsSameAs(DayQuote const& other) const {
        return Day == other.Day && Figures == other.Figures;
    }
};

// Which days are taken.
struct Limits {
    std::optional<text::CalendarDay> From;
    std::optional<text::CalendarDay> To;
    bool IsStrict = false; // a row that would be left out refuses the table
};

// In which order the days stand in the table.
enum class RowOrder : std::uint8_t { OldestFirst, NewestFirst, Mixed };

// So many of something, the first of them at a line.
struct Occurrences {
    std::uint64_t Count = 0;
    std::uint64_t FirstLine = 0; // 0 when there is none

    void Add(std::uint64_t line) {
        ++Count;
        FirstLine = FirstLine == 0 ? line : std::min(FirstLine, line);
    }
};

// How many things of one kind are kept to be told; those behind them are counted.
inline constexpr std::size_t MostFindings = 1000;

struct Findings {
    std::vector<Finding> Kept; // in the order of the lines, at most MostFindings
    std::uint64_t Count = 0;

    void Add(std::uint64_t line, std::string text);
};

struct Conversion {
    Plan Used;                          // the plan with what the rows have settled
    std::vector<DayQuote> Days;         // oldest first, each day once
    std::uint64_t RowCount = 0;         // read, without head and notes
    std::uint64_t RepeatCount = 0;      // rows that say again what another one said
    std::uint64_t OutsideCount = 0;     // rows of days that were not asked for
    std::uint64_t OtherSymbolCount = 0; // rows of other contracts
    std::uint64_t WithoutVolume = 0;    // days whose volume is missing and 0 instead
    std::uint64_t WithoutOpenInterest = 0;
    std::uint64_t WeekendCount = 0;   // days that are a Saturday or Sunday
    Occurrences SettlementMarks;      // days with a price such as 411'2s
    int DaysApart = 0;                // the median distance of the days, 0 when they are too few to tell
    std::vector<std::string> Symbols; // of the contracts in the table, those that are taken first
    RowOrder Order = RowOrder::OldestFirst;
    Findings LeftOut;
    Findings Notes; // lines that are no rows
    std::optional<Refusal> Refused;
};

// Reads the whole table by the plan, in one pass and without keeping its text. Refused are: rows that
// contradict each other about the order of dates or the decimal mark, rows that leave either open where it
// matters, the same day twice with different figures, several contracts, several times of one day, rows of
// weeks or months unless the plan takes any bars. Left out
// are rows without a date or four positive prices, with a number that is none, and with a price outside of
// high and low. A quote file can hold the days of 1950 to 2049. Raises the faults of the source.
[[nodiscard]] Conversion ConvertTable(text::ByteSource& table, Plan const& plan, Limits const& limits);

} // namespace quorvex::imports
