// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Dates as vendors write them.
#pragma once

#include "import/Choices.h"
#include "text/basDates.h"

#include <optional>
#include <string_view>

namespace quorvex::imports {

struct TableDay {
    text::CalendarDay Day;
    std::string_view Time; // what the cell says behind the day, as it stands
};

// The day that the cell names when its numbers stand in this order; nothing when it names none:
//
//   three numbers with "/", "-" or "." between them, or 6 or 8 digits without; a year of four digits in front
//   has its month next in every order
//   a number, the name of a month and a number, or the name in front, in four languages, whole or shortened;
//   a name of a weekday in front of it all: the order matters only for two digits on both sides of the name,
//   such as 20-Mar-05, of which the first are the year when the year comes first, else the day
//   9 or 10 digits: seconds since 1970, of which the day in UTC counts
//
// A time with or without a zone may follow, which does not move the day; the time of seconds is the number
// itself unless it is midnight. Years of two digits are put into their century as everywhere in the program.
[[nodiscard]] std::optional<TableDay> ReadTableDay(std::string_view cell, DateOrder order);

// The same of yyyy-mm-dd, yyyy/mm/dd or yyyy.mm.dd with nothing behind, as most tables have; nothing for any
// other cell.
[[nodiscard]] std::optional<text::CalendarDay> ReadIsoDay(std::string_view cell);

// The order in which the pieces of a day stand in the cell, when a name or a year of four digits tells it.
[[nodiscard]] std::optional<DateOrder> OrderAsWritten(std::string_view cell);

// Whether the cell names a day in any order.
[[nodiscard]] bool IsTableDay(std::string_view cell);

// Whether the cell is no day because its day stands in front of the month behind a year of four digits, which
// is an order that is not read: 2019-31-12.
[[nodiscard]] bool HasDayBeforeMonth(std::string_view cell);

// Whether the cell is the name of a weekday alone, in four languages, whole or shortened.
[[nodiscard]] bool IsWeekday(std::string_view cell);

// Whether the cell is a time of day in digits alone: 0930, 093000.
[[nodiscard]] bool IsTimeInDigits(std::string_view cell);

// Whether the time that stands with a day is midnight, or there is none.
[[nodiscard]] bool IsMidnight(std::string_view time);

// Whether the text is a time of day: 13:20, 13:20:00.5 PM, with a zone or without.
[[nodiscard]] bool IsTimeOfDay(std::string_view text);

} // namespace quorvex::imports
