// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the rows of a table leave open or contradict, in words: why a row is left out, and why none is taken.
#pragma once

#include "import/Plan.h"
#include "import/Reading.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// A cell as it is told: quoted, on one line and not too long.
[[nodiscard]] std::string Quoted(std::string_view cell);

// Why the row is left out; empty for one that is not.
[[nodiscard]] std::string WhyLeftOut(RowResult const& result, RowCells const& cells);

// Why a row that gives no quote refuses the table; nothing for one that does not.
[[nodiscard]] std::optional<Refusal> RefuseRow(RowResult const& result, RowCells const& cells);

// Why a row that no reading left can read, of which the only one is this, refuses the table: another reading
// could, so that not all rows can be right; nothing when none could.
[[nodiscard]] std::optional<Refusal> RefuseContradiction(Plan const& plan, Reading const& reading,
                                                         RowResult const& result, RowCells const& cells);

// Why days that follow each other in the table refuse it: two digits of the year went from 49 to 50.
[[nodiscard]] std::optional<Refusal> RefuseTurn(text::CalendarDay before, text::CalendarDay day,
                                                RowCells const& cells);

// A date with its line, for an example.
struct DateExample {
    std::string Cell;
    std::uint64_t Line = 0;
};

// Why readings that give different days refuse the table.
[[nodiscard]] Refusal RefuseDoubt(Reading const& left, Reading const& right, DateExample const& date);

// Why the days of the only reading refuse the table: they are shifted, their prices can be read in two ways,
// or they are those of weeks; nothing when they do not.
[[nodiscard]] std::optional<Refusal> RefuseDays(Plan const& plan, Reading const& reading,
                                                std::vector<DayQuote> const& days, int daysApart);

} // namespace quorvex::imports
