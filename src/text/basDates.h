// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Dates as texts and as days of the calendar.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::text {

using CalendarDay = std::chrono::sys_days;

// The day that the text names, nothing when it names none. Accepted are m/d/yy and m/d/yyyy, the same with
// "-", yyyy-mm-dd, yyyy/mm/dd and English month names, whole or their first three letters in any case ("March
// 5, 2002", "5 Mar 2002", "Mar 5 2002"), each with blanks around it. The day must exist in its month; month
// and day are never swapped. Two-digit years 00..49 are 2000..2049, 50..99 are 1950..1999; other years are
// 100..9999.
[[nodiscard]] std::optional<CalendarDay> ParseDate(std::string_view text);

// As ParseDate; raises "Type mismatch" when the text is no date.
[[nodiscard]] CalendarDay RequireDate(std::string_view text);

// The year that two digits mean, 0..99: 00..49 are 2000..2049, 50..99 are 1950..1999.
[[nodiscard]] int FullYear(int twoDigits);

// The day of the calendar; nothing when there is no such day or the year is not 100..9999.
[[nodiscard]] std::optional<CalendarDay> DayOf(int year, int month, int day);

// The day as "mm/dd/yy".
[[nodiscard]] std::string FormatDate(CalendarDay day);

// The day as "yyyy-mm-dd", which every spreadsheet takes for a date. REQUIRES: a year of 0..9999.
[[nodiscard]] std::string FormatIsoDate(CalendarDay day);

} // namespace quorvex::text
