// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The records of vendors' files and the pieces that quote lines are made of.
#pragma once

#include "text/SlotArray.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvex::convert {

inline constexpr std::int16_t MostFields = 10;

// The fields of a record, counted from 1. They point into the line that was split.
using Fields = text::SlotArray<std::string_view, MostFields>;

// Splits the line at its commas into so many fields, 1..10, without the blanks around them. A comma at the
// end of the line adds no field. Returns false, the fields then being of no use, when the line has another
// number of fields. Raises "Overflow" beyond 32,767 fields.
[[nodiscard]] bool SplitRecord(std::string_view line, std::int16_t count, Fields& fields);

// Where the two characters of each piece begin in a date field, counted from 1. A year of four digits is
// given by its last two.
struct DatePlaces {
    std::int16_t Month = 0;
    std::int16_t Day = 0;
    std::int16_t Year = 0;
};

// Appends the date as "mm/dd/yy". Returns false and appends nothing when the month is outside 1..12 or the
// day outside 1..31; neither the month's length nor the year is checked (docs/behaviour.md).
[[nodiscard]] bool AppendDate(std::string_view field, DatePlaces const& places, std::string& line);

// Appends the field and, in front of it, what joins it to the one before.
inline void AppendField(std::string_view field, std::string& line) {
    line += ", ";
    line += field;
}

// One more; "Overflow" beyond 32,767.
void Increment(std::int16_t& count);

} // namespace quorvex::convert
