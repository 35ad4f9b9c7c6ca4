// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Numbers read from texts and whole numbers made of doubles. The decimal mark is always the point, whatever
// the system's locale says.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::text {

// The number at the start of the text, 0 when there is none. Leading blanks and tabs are skipped; then come
// an optional sign, digits with at most one point, and an optional exponent (e, E, d or D, an optional sign,
// one digit at least): "12abc" is 12, ".5" is 0.5, "1e" is 1, "1,234" is 1, "-" is 0. Raises "Overflow"
// beyond the range of a double.
[[nodiscard]] double LeadingNumber(std::string_view text);

// The number of a text of nothing but digits and at most one point, 15 characters at the most, which a double
// holds as nearly as it can; of an empty text 0. Nothing for any other text, which may be a number all the
// same: this is the quick way for those of most files.
[[nodiscard]] std::optional<double> PlainDecimal(std::string_view text);

// A number as a text spells it.
struct SpelledNumber {
    double Value = 0;
    int Decimals = -1; // digits behind the point; negative where the text is no plain decimal
};

// The number at the start of a text, as LeadingNumber reads it, and how it is spelled. Raises "Overflow".
[[nodiscard]] SpelledNumber LeadingSpelledNumber(std::string_view text);

// The number that the whole text is, blanks around it aside; commas between the digits in front of the point
// are thousands marks. Raises "Type mismatch" for anything else and "Overflow" beyond the range of a double.
[[nodiscard]] double StrictNumber(std::string_view text);

// The nearest whole number, a half to the even neighbour. Raises "Overflow" outside -32768..32767.
[[nodiscard]] std::int16_t WholeNumber(double value);

// The nearest number of so many significant decimal digits. REQUIRES: a finite value, 1 to 17 digits.
[[nodiscard]] double RoundedToDigits(double value, int digits);

// The shortest text that reads back as the same double: "245.5", "0.662", "100000", "1e+20".
[[nodiscard]] std::string PlainNumber(double value);

} // namespace quorvex::text
