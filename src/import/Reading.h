// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The days of a table under one way to read its dates and numbers.
#pragma once

#include "import/basConversion.h"
#include "import/basTableNumbers.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// What a row turns out to be.
enum class RowKind : std::uint8_t {
    Quote,
    Repeat,   // a day that was there with the same figures
    Volume,   // a line of volume and open interest alone
    Outside,  // a day that was not asked for
    Conflict, // a day that was there with other figures
    Intraday, // a day that was there with another time
    NoDay,
    NoYear,   // that a quote file can hold
    NoFigure, // a number that is none
    NoPrice,  // a price is missing
    NotPositive,
    OutOfRange, // open or close lies outside of high and low, or these the wrong way round
    Negative,   // volume or open interest
    Unsuited,   // prices whose product no double holds: the program would pass over such a quote
};

struct RowResult {
    RowKind Kind = RowKind::Quote;
    text::CalendarDay Day;       // of a quote
    Role Of = Role::Unused;      // the cell that is to blame
    std::uint64_t OtherLine = 0; // of a conflict
    bool NeedsFraction = false;
};

// The cells of a row by what they are; empty when the row has no such cell.
struct RowCells {
    std::uint64_t Line = 0;
    std::string_view Date;
    std::string_view Time;
    std::array<std::string_view, FigureCount> Figures;
};

// One way to read a table and the days that it gives. A day stands in a table of all days of 1950 to 2049, so
// that a long file takes no more memory than a hundred years of quotes.
class Reading {
public:
    Reading(DateOrder order, DecimalMark mark, std::optional<int> fraction, Limits const& limits);

    [[nodiscard]] DateOrder Order() const { return order_; }

    [[nodiscard]] DecimalMark Mark() const { return form_.Decimal; }

    // Takes the row when it is a quote or a volume line.
    RowResult Take(RowCells const& cells, bool isVolumeLine);

    // Takes a row of plain figures without a time. Does nothing but tell what the row is unless that is a
    // quote or a repeat.
    RowResult TakePlain(DayQuote const& quote);

    // The days so far, oldest first, with the figures of the volume lines.
    [[nodiscard]] std::vector<DayQuote> Days() const;

    // Whether prices, or volumes, were read with point or comma as mark of thousands.
    [[nodiscard]] bool HasGroupedPrices() const { return hasGroupedPrices_; }

    [[nodiscard]] bool HasGroupedCounts() const { return hasGroupedCounts_; }

    // Whether the date of each row told a time that is not midnight.
    [[nodiscard]] bool AreAllTimed() const { return timedCount_ == stored_.size(); }

    // A price that can be thousands as well as 32nds, when no price told which.
    [[nodiscard]] std::uint64_t OpenTicksLine() const { return hasSureTicks_ ? 0 : ticksLine_; }

private:
    struct Stored {
        DayQuote Quote;
        std::uint64_t TimeMark = 0; // differs where times do
    };

    RowResult TakeFigures(RowCells const& cells, DayQuote& quote);
    RowResult TakeVolumeLine(RowCells const& cells, text::CalendarDay day);
    RowResult Store(DayQuote const& quote, std::string_view time);

    DateOrder order_;
    FigureForm form_;
    Limits const& limits_;
    std::vector<std::uint32_t> slots_; // by day: the place in stored_, from 1 on
    std::vector<Stored> stored_;
    std::vector<std::uint32_t> volumeSlots_;
    std::vector<DayQuote> volumes_;
    std::size_t timedCount_ = 0;
    bool hasGroupedPrices_ = false;
    bool hasGroupedCounts_ = false;
    bool hasSureTicks_ = false;
    std::uint64_t ticksLine_ = 0;
};

} // namespace quorvex::imports
