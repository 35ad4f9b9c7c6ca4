// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/DecimalNumber.h"

#include "FaultOf.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

namespace quorvex::text {

bool operator==(DecimalNumber const& left, DecimalNumber const& right) {
    return left.Negative == right.Negative && left.Digits == right.Digits && left.Exponent == right.Exponent;
}

void PrintTo(DecimalNumber const& number, std::ostream* stream) {
    *stream << (number.Negative ? "-" : "+") << std::to_string(number.Digits) << " x 10^"
            << std::to_string(number.Exponent);
}

namespace {

// What the C library prints with 15 significant digits, whatever its decimal mark.
DecimalNumber Printed(double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.14e", value);
    char const* const exponent = std::strchr(text.data(), 'e');
    DecimalNumber number;
    number.Negative = text[0] == '-';
    for (char const* at = text.data(); at != exponent; ++at) {
        if (*at >= '0' && *at <= '9') {
            number.Digits = number.Digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
    }
    number.Exponent = std::atoi(exponent + 1) - 14;
    while (number.Digits != 0 && number.Digits % 10 == 0) {
        number.Digits /= 10;
        ++number.Exponent;
    }
    return number;
}

TEST(DecimalNumber, HoldsTheDigitsWithoutTrailingZeros) {
    EXPECT_EQ(ToDecimal(245.255), (DecimalNumber{false, 245255, -3}));
    EXPECT_EQ(ToDecimal(-0.5), (DecimalNumber{true, 5, -1}));
    EXPECT_EQ(ToDecimal(121000), (DecimalNumber{false, 121, 3}));
    EXPECT_EQ(ToDecimal(1e300), (DecimalNumber{false, 1, 300}));
    EXPECT_EQ(ToDecimal(1e-300), (DecimalNumber{false, 1, -300}));
    EXPECT_EQ(ToDecimal(0), (DecimalNumber{false, 0, 0}));
}

TEST(DecimalNumber, HasFifteenDigitsAtMost) {
    EXPECT_EQ(ToDecimal(999999999999999.0), (DecimalNumber{false, 999999999999999, 0}));
    EXPECT_EQ(ToDecimal(1234567890123456.0), (DecimalNumber{false, 123456789012346, 1}));
    EXPECT_EQ(ToDecimal(0.1 + 0.2), (DecimalNumber{false, 3, -1}));
    EXPECT_EQ(ToDecimal(9999999999999999.0), (DecimalNumber{false, 1, 16}));
}

TEST(DecimalNumber, OverflowsForWhatIsNoFiniteNumber) {
    double const infinity = std::numeric_limits<double>::infinity();
    for (double const value : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FaultOf([&] { static_cast<void>(ToDecimal(value)); }), "Overflow");
    }
}

TEST(DecimalNumber, AgreesWithThePrintedDigitsOfPrices) {
    std::mt19937_64 random(20020305); // NOLINT: the same numbers in every run
    std::uniform_int_distribution<std::int64_t> digits(1, 999'999'999'999'999);
    std::uniform_int_distribution<int> shift(0, 45);
    std::uniform_int_distribution<int> decimals(0, 8);
    for (int count = 0; count < 50'000; ++count) {
        double const exact =
            static_cast<double>(1 + (digits(random) >> shift(random))) / std::pow(10.0, decimals(random));
        for (double const price : {exact, std::nextafter(exact, 0.0), std::nextafter(exact, 1e300)}) {
            ASSERT_EQ(ToDecimal(price), Printed(price));
        }
    }
}

TEST(DecimalNumber, AgreesWithThePrintedDigitsOfAnyDouble) {
    std::mt19937_64 random(20020305); // NOLINT: the same numbers in every run
    for (int count = 0; count < 50'000; ++count) {
        double const value = std::bit_cast<double>(random());
        if (std::isfinite(value)) {
            ASSERT_EQ(ToDecimal(value), Printed(value));
        }
    }
    EXPECT_EQ(ToDecimal(std::numeric_limits<double>::denorm_min()),
              Printed(std::numeric_limits<double>::denorm_min()));
}

TEST(DecimalNumber, ComesBackAsTheSamePrice) {
    std::mt19937_64 random(20020305); // NOLINT: the same numbers in every run
    std::uniform_int_distribution<std::int64_t> digits(1, 999'999'999'999'999);
    for (int count = 0; count < 50'000; ++count) {
        double const price = static_cast<double>(digits(random)) / 10'000;
        ASSERT_EQ(ToDouble(ToDecimal(price)), price);
    }
}

TEST(RoundHalfAway, LeavesNumbersOfFewerDecimalsAlone) {
    EXPECT_EQ(RoundHalfAway({false, 25, -1}, 1), (DecimalNumber{false, 25, -1}));
    EXPECT_EQ(RoundHalfAway({false, 25, -1}, 4), (DecimalNumber{false, 25, -1}));
    EXPECT_EQ(RoundHalfAway({true, 7, 12}, 0), (DecimalNumber{true, 7, 12}));
}

TEST(RoundHalfAway, RoundsAHalfAwayFromZero) {
    EXPECT_EQ(RoundHalfAway({false, 25, -1}, 0), (DecimalNumber{false, 3, 0}));
    EXPECT_EQ(RoundHalfAway({true, 25, -1}, 0), (DecimalNumber{true, 3, 0}));
    EXPECT_EQ(RoundHalfAway({false, 245255, -3}, 2), (DecimalNumber{false, 24526, -2}));
    EXPECT_EQ(RoundHalfAway({false, 245254, -3}, 2), (DecimalNumber{false, 24525, -2}));
    EXPECT_EQ(RoundHalfAway({false, 9999, -3}, 2), (DecimalNumber{false, 1000, -2}));
}

TEST(RoundHalfAway, LooksAtEveryDigitThatGoes) {
    EXPECT_EQ(RoundHalfAway({false, 499'999'999'999'999, -15}, 0), (DecimalNumber{false, 0, 0}));
    EXPECT_EQ(RoundHalfAway({false, 500'000'000'000'001, -15}, 0), (DecimalNumber{false, 1, 0}));
    EXPECT_EQ(RoundHalfAway({false, 5, -1}, 0), (DecimalNumber{false, 1, 0}));
    EXPECT_EQ(RoundHalfAway({false, 5, -3}, 2), (DecimalNumber{false, 1, -2}));
    EXPECT_EQ(RoundHalfAway({false, 4, -3}, 2), (DecimalNumber{false, 0, -2}));
}

TEST(RoundHalfAway, GivesZeroFarBelowTheLastDecimal) {
    EXPECT_EQ(RoundHalfAway({false, 999'999'999'999'999, -17}, 0), (DecimalNumber{false, 0, 0}));
    EXPECT_EQ(RoundHalfAway({false, 999'999'999'999'999, -16}, 0), (DecimalNumber{false, 0, 0}));
    EXPECT_EQ(RoundHalfAway({false, 999'999'999'999'999, -15}, 0), (DecimalNumber{false, 1, 0}));
    EXPECT_EQ(RoundHalfAway({true, 1, -300}, 2), (DecimalNumber{true, 0, -2}));
}

TEST(ToDouble, IsTheNearestDouble) {
    EXPECT_EQ(ToDouble({false, 245255, -3}), 245.255);
    EXPECT_EQ(ToDouble({true, 5, -1}), -0.5);
    EXPECT_EQ(ToDouble({false, 1, 22}), 1e22);
    EXPECT_EQ(ToDouble({false, 1, 23}), 1e23);
    EXPECT_EQ(ToDouble({false, 123'456'789'012'345, -22}), 123456789012345e-22);
    EXPECT_EQ(ToDouble({false, 123'456'789'012'345, -23}), 123456789012345e-23);
    EXPECT_EQ(ToDouble({false, 15, 299}), 1.5e300);
    EXPECT_EQ(ToDouble({false, 5, -324}), 5e-324);
}

TEST(ToDouble, OverflowsBeyondADoubleAndIsZeroBelowTheSmallest) {
    EXPECT_EQ(FaultOf([] { static_cast<void>(ToDouble({false, 1, 309})); }), "Overflow");
    EXPECT_EQ(FaultOf([] { static_cast<void>(ToDouble({true, 179'769'313'486'232, 294})); }), "Overflow");
    EXPECT_EQ(ToDouble({false, 179'769'313'486'231, 294}), 1.79769313486231e308);
    EXPECT_EQ(ToDouble({false, 1, -400}), 0);
}

} // namespace

} // namespace quorvex::text
