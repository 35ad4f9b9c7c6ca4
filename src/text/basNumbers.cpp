// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basNumbers.h"

#include "text/Characters.h"
#include "text/DecimalNumber.h"
#include "text/RunTimeError.h"
#include "text/basTexts.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace quorvex::text {

namespace {

// What the scan of a number found. Digits is the number without its point, good for up to 19 significant
// digits.
struct ScannedNumber {
    bool Found = false;
    bool Negative = false;
    std::uint64_t Digits = 0;
    std::int64_t DigitCount = 0; // significant digits seen, leading zeros aside
    std::int64_t Scale = 0;      // the number is the digits x 10^Scale
    std::size_t Begin = 0;       // of the digits, behind the sign
    std::size_t MantissaEnd = 0;
    std::size_t End = 0; // behind the exponent
};

constexpr int MostExactDigits = 15;

// An exponent is read up to here, which no text in memory can make up for with digits or zeros.
constexpr std::int64_t LargestExponent = 100'000'000'000;

void ScanExponent(std::string_view text, ScannedNumber& number) {
    std::size_t at = number.MantissaEnd;
    if (at == text.size() || (text[at] != 'e' && text[at] != 'E' && text[at] != 'd' && text[at] != 'D')) {
        return;
    }
    ++at;
    bool const negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        ++at;
    }
    if (at == text.size() || !IsDigit(text[at])) {
        return;
    }
    std::int64_t exponent = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        if (exponent < LargestExponent) {
            exponent = exponent * 10 + (text[at] - '0');
        }
    }
    number.Scale += negative ? -exponent : exponent;
    number.End = at;
}

ScannedNumber ScanNumber(std::string_view text) {
    ScannedNumber number;
    std::size_t at = 0;
    while (at < text.size() && IsBlank(text[at])) {
        ++at;
    }
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        number.Negative = text[at] == '-';
        ++at;
    }
    number.Begin = at;
    bool pointSeen = false;
    for (; at < text.size(); ++at) {
        char const c = text[at];
        if (IsDigit(c)) {
            number.Found = true;
            if (number.DigitCount > 0 || c != '0') {
                ++number.DigitCount;
                number.Digits = number.Digits * 10 + static_cast<std::uint64_t>(c - '0');
            }
            number.Scale -= pointSeen ? 1 : 0;
        } else if (c == '.' && !pointSeen) {
            pointSeen = true;
        } else {
            break;
        }
    }
    number.MantissaEnd = at;
    number.End = at;
    if (number.Found) {
        ScanExponent(text, number);
    }
    return number;
}

// The slow and exact way for numbers of many digits or large exponents.
double FromLongText(std::string_view text, ScannedNumber const& number) {
    std::string spelled(text.substr(number.Begin, number.End - number.Begin));
    if (number.End > number.MantissaEnd) {
        spelled[number.MantissaEnd - number.Begin] = 'e';
    }
    double magnitude = 0;
    auto const result = std::from_chars(spelled.data(), spelled.data() + spelled.size(), magnitude);
    if (result.ec == std::errc::result_out_of_range) {
        bool const large = number.DigitCount + number.Scale > 0;
        if (large) {
            throw RunTimeError(Fault::Overflow);
        }
        return 0;
    }
    return magnitude;
}

double ValueOf(std::string_view text, ScannedNumber const& number) {
    if (!number.Found) {
        return 0;
    }
    if (number.DigitCount <= MostExactDigits && number.Scale <= 0 && number.Scale >= -MostExactDigits) {
        return ToDouble({number.Negative, number.Digits, static_cast<int>(number.Scale)});
    }
    double const magnitude = FromLongText(text, number);
    return number.Negative ? -magnitude : magnitude;
}

// What PlainDecimal reads.
SpelledNumber SpelledPlainly(std::string_view text) {
    if (text.size() > MostExactDigits) {
        return {};
    }
    std::int64_t digits = 0;
    std::size_t at = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        digits = digits * 10 + (text[at] - '0');
    }
    if (at == text.size()) {
        return {static_cast<double>(digits), 0};
    }
    if (text[at] != '.') {
        return {};
    }
    std::size_t const point = at;
    for (++at; at < text.size() && IsDigit(text[at]); ++at) {
        digits = digits * 10 + (text[at] - '0');
    }
    if (at < text.size()) {
        return {};
    }
    std::size_t const decimals = at - point - 1;
    return {static_cast<double>(digits) / ExactPowers[decimals], static_cast<int>(decimals)};
}

// The text without the commas that stand between two digits in front of the point.
std::string WithoutThousandsMarks(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    bool whole = true;
    for (std::size_t at = 0; at < text.size(); ++at) {
        char const c = text[at];
        bool const between = at > 0 && at + 1 < text.size() && IsDigit(text[at - 1]) && IsDigit(text[at + 1]);
        if (c == ',' && whole && between) {
            continue;
        }
        whole = whole && (IsDigit(c) || c == '-' || c == '+');
        kept += c;
    }
    return kept;
}

} // namespace

std::optional<double> PlainDecimal(std::string_view text) {
    SpelledNumber const number = SpelledPlainly(text);
    return number.Decimals < 0 ? std::nullopt : std::optional(number.Value);
}

SpelledNumber LeadingSpelledNumber(std::string_view text) {
    SpelledNumber const plain = SpelledPlainly(text);
    return plain.Decimals < 0 ? SpelledNumber{ValueOf(text, ScanNumber(text))} : plain;
}

double LeadingNumber(std::string_view text) {
    return LeadingSpelledNumber(text).Value;
}

double StrictNumber(std::string_view text) {
    std::string const plain = WithoutThousandsMarks(TrimBlanksAndTabs(text));
    ScannedNumber const number = ScanNumber(plain);
    if (!number.Found || number.End != plain.size()) {
        throw RunTimeError(Fault::TypeMismatch);
    }
    return ValueOf(plain, number);
}

std::int16_t WholeNumber(double value) {
    double below = std::floor(value);
    double const part = value - below;
    if (part > 0.5 || (part == 0.5 && std::fmod(below, 2.0) != 0)) {
        below += 1;
    }
    // Written so that a NaN is refused as well.
    if (!(below >= INT16_MIN && below <= INT16_MAX)) {
        throw RunTimeError(Fault::Overflow);
    }
    return static_cast<std::int16_t>(below);
}

double RoundedToDigits(double value, int digits) {
    std::array<char, 64> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::scientific, digits - 1)
                         .ptr;
    double rounded = value; // which stays where rounding up would leave the range
    std::from_chars(text.data(), end, rounded);
    return rounded;
}

std::string PlainNumber(double value) {
    // Between these magnitudes a price or a volume is written out; beyond them an exponent is shorter to
    // read.
    constexpr double FirstWithExponent = 1e16;
    constexpr double LastWithExponent = 1e-5;
    double const magnitude = std::fabs(value);
    bool const fixed = magnitude == 0 || (magnitude < FirstWithExponent && magnitude >= LastWithExponent);
    std::array<char, 64> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   fixed ? std::chars_format::fixed : std::chars_format::scientific)
                         .ptr;
    return {text.data(), end};
}

} // namespace quorvex::text
