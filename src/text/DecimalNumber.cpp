// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/DecimalNumber.h"

#include "text/RunTimeError.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <system_error>

namespace quorvex::text {

namespace {

constexpr int SignificantDigits = std::numeric_limits<double>::digits10;
static_assert(SignificantDigits == 15);

constexpr int LastExactPower = static_cast<int>(ExactPowers.size()) - 1;

constexpr std::uint64_t FirstTooLarge = 1'000'000'000'000'000; // 16 digits

void DropTrailingZeros(DecimalNumber& number) {
    if (number.Digits == 0) {
        number.Exponent = 0;
        return;
    }
    while (number.Digits % 10 == 0) {
        number.Digits /= 10;
        ++number.Exponent;
    }
}

// Quotes have few decimals. When a whole number of at most 15 digits over a small power of ten gives the
// value back, it is the value's decimal number: two decimals of 15 digits never share a nearest double.
bool FromFewDecimals(double magnitude, DecimalNumber& number) {
    constexpr int MostDecimals = 6;
    for (int decimals = 0; decimals <= MostDecimals; ++decimals) {
        double const power = ExactPowers[static_cast<std::size_t>(decimals)];
        double const scaled = std::nearbyint(magnitude * power);
        if (scaled >= static_cast<double>(FirstTooLarge)) {
            return false;
        }
        if (scaled / power == magnitude) {
            number.Digits = static_cast<std::uint64_t>(scaled);
            number.Exponent = -decimals;
            return true;
        }
    }
    return false;
}

void FromScientificText(double magnitude, DecimalNumber& number) {
    std::array<char, 32> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                   std::chars_format::scientific, SignificantDigits - 1)
                         .ptr;
    char const* at = text.data();
    for (; at != end && *at != 'e'; ++at) {
        if (*at != '.') {
            number.Digits = number.Digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
    }
    ++at;
    if (at != end && *at == '+') {
        ++at;
    }
    int exponent = 0;
    std::from_chars(at, end, exponent);
    number.Exponent = exponent - (SignificantDigits - 1);
}

} // namespace

DecimalNumber ToDecimal(double value) {
    DecimalNumber number;
    number.Negative = std::signbit(value);
    double const magnitude = std::fabs(RequireFinite(value));
    if (!FromFewDecimals(magnitude, number)) {
        FromScientificText(magnitude, number);
    }
    DropTrailingZeros(number);
    return number;
}

DecimalNumber RoundHalfAway(DecimalNumber number, int decimals) {
    int surplus = -number.Exponent - decimals;
    if (surplus <= 0) {
        return number;
    }
    number.Exponent = -decimals;
    if (surplus > SignificantDigits) {
        number.Digits = 0;
        return number;
    }
    std::uint64_t unit = 1;
    for (; surplus > 0; --surplus) {
        unit *= 10;
    }
    number.Digits = number.Digits / unit + (number.Digits % unit >= unit / 2 ? 1 : 0);
    return number;
}

double ToDouble(DecimalNumber number) {
    auto const digits = static_cast<double>(number.Digits);
    double magnitude = 0;
    if (number.Exponent <= 0 && number.Exponent >= -LastExactPower) {
        magnitude = digits / ExactPowers[static_cast<std::size_t>(-number.Exponent)];
    } else {
        std::string const text = std::to_string(number.Digits) + 'e' + std::to_string(number.Exponent);
        auto const result = std::from_chars(text.data(), text.data() + text.size(), magnitude);
        if (result.ec == std::errc::result_out_of_range) {
            if (number.Exponent > 0) {
                throw RunTimeError(Fault::Overflow);
            }
            magnitude = 0;
        }
    }
    return number.Negative ? -magnitude : magnitude;
}

} // namespace quorvex::text
