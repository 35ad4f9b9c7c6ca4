// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basRecords.h"

#include "text/Characters.h"
#include "text/basTexts.h"

#include <algorithm>
#include <limits>

namespace quorvex::convert {

namespace {

constexpr int PieceLength = 2;

// The whole number at the start of the piece, 0 when it starts with no digit.
int NumberOf(std::string_view piece) {
    int number = 0;
    std::size_t at = 0;
    while (at < piece.size() && text::IsBlank(piece[at])) {
        ++at;
    }
    for (; at < piece.size() && text::IsDigit(piece[at]); ++at) {
        number = number * 10 + (piece[at] - '0');
    }
    return number;
}

// A field that ends too early has no digits there.
int NumberAt(std::string_view field, std::int16_t place) {
    auto const begin = std::min(static_cast<std::size_t>(place - 1), field.size());
    return NumberOf(field.substr(begin, PieceLength));
}

void AppendTwoDigits(int number, std::string& line) {
    line += static_cast<char>('0' + number / 10);
    line += static_cast<char>('0' + number % 10);
}

} // namespace

void Increment(std::int16_t& count) {
    if (count == std::numeric_limits<std::int16_t>::max()) {
        throw text::RunTimeError(text::Fault::Overflow);
    }
    ++count;
}

bool SplitRecord(std::string_view line, std::int16_t count, Fields& fields) {
    std::int16_t found = 0;
    while (!line.empty()) {
        Increment(found);
        std::size_t const length = std::min(line.find(','), line.size());
        if (found <= count) {
            fields[found] = text::Trim(line.substr(0, length));
        }
        line.remove_prefix(std::min(length + 1, line.size()));
    }
    return found == count;
}

bool AppendDate(std::string_view field, DatePlaces const& places, std::string& line) {
    constexpr int LastMonth = 12;
    constexpr int LastDay = 31;
    int const month = NumberAt(field, places.Month);
    int const day = NumberAt(field, places.Day);
    if (month < 1 || month > LastMonth || day < 1 || day > LastDay) {
        return false;
    }
    AppendTwoDigits(month, line);
    line += '/';
    AppendTwoDigits(day, line);
    line += '/';
    AppendTwoDigits(NumberAt(field, places.Year), line);
    return true;
}

} // namespace quorvex::convert
