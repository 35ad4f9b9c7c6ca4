// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A double as its decimal text with 15 significant digits, the form in which numbers are rounded for display.
#pragma once

#include <array>
#include <cstdint>

namespace quorvex::text {

// Powers of ten that a double holds exactly.
inline constexpr std::array<double, 23> ExactPowers = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                       1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                       1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The number +-Digits x 10^Exponent. Digits has at most 15 decimal digits.
struct DecimalNumber {
    bool Negative = false;
    std::uint64_t Digits = 0;
    int Exponent = 0;
};

// The decimal number of 15 significant digits nearest to the value, without trailing zero digits. Raises
// "Overflow" for an infinity or NaN.
[[nodiscard]] DecimalNumber ToDecimal(double value);

// The number rounded to so many decimals, half away from zero; its exponent is then -decimals or more.
[[nodiscard]] DecimalNumber RoundHalfAway(DecimalNumber number, int decimals);

// The double nearest to the number; raises "Overflow" when it is beyond the range of a double.
[[nodiscard]] double ToDouble(DecimalNumber number);

} // namespace quorvex::text
