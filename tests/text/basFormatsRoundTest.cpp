// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "FaultOf.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace quorvex::text {

namespace {

constexpr std::array<char const*, 5> OfferedFormats = {"####0", "####0.0", "####0.00", "####0.000",
                                                       "####0.0000"};

// Prices of 0..6 decimals and either sign, half of them one step of a double beside the price, as sums and
// products leave them.
std::vector<double> RandomPrices(std::size_t count) {
    std::mt19937_64 random(20020305); // NOLINT: the same prices in every run
    std::uniform_int_distribution<std::int64_t> digits(0, 99'999'999'999);
    std::uniform_int_distribution<int> decimals(0, 6);
    std::uniform_int_distribution<int> variant(0, 3);
    std::vector<double> prices;
    prices.reserve(count);
    while (prices.size() < count) {
        // Few digits as often as many.
        std::int64_t const scaled = digits(random) >> (decimals(random) * 5);
        double price = static_cast<double>(scaled) / std::pow(10.0, decimals(random));
        int const kind = variant(random);
        if (kind == 0) {
            price = std::nextafter(price, 1e300);
        } else if (kind == 1) {
            price = std::nextafter(price, -1e300);
        }
        prices.push_back(variant(random) == 0 ? -price : price);
    }
    return prices;
}

TEST(NumberFormatRound, IsTheNumberThatThePrintedTextShows) {
    auto const prices = RandomPrices(20'000);
    for (char const* const offered : OfferedFormats) {
        SCOPED_TRACE(offered);
        NumberFormat const format(offered);
        for (double const price : prices) {
            ASSERT_EQ(format.Round(price), StrictNumber(format.Format(price))) << PlainNumber(price);
        }
    }
}

TEST(NumberFormatRound, ChangesNothingTheSecondTime) {
    auto const prices = RandomPrices(20'000);
    for (char const* const offered : OfferedFormats) {
        SCOPED_TRACE(offered);
        NumberFormat const format(offered);
        for (double const price : prices) {
            double const rounded = format.Round(price);
            ASSERT_EQ(format.Round(rounded), rounded) << PlainNumber(price);
            ASSERT_EQ(format.Format(rounded), format.Format(price)) << PlainNumber(price);
        }
    }
}

TEST(NumberFormatRound, SurvivesBeingSavedAndReadAsAField) {
    auto const prices = RandomPrices(20'000);
    for (char const* const offered : OfferedFormats) {
        SCOPED_TRACE(offered);
        NumberFormat const format(offered);
        for (double const price : prices) {
            double const rounded = format.Round(price);
            ASSERT_EQ(LeadingNumber(format.Format(rounded)), rounded) << PlainNumber(price);
        }
    }
}

TEST(NumberFormatRound, MovesByHalfAStepOfTheLastDecimalAtMost) {
    NumberFormat const format("####0.00");
    for (double const price : RandomPrices(20'000)) {
        double const noise = std::fabs(price) * 1e-14;
        ASSERT_LE(std::fabs(format.Round(price) - price), 0.005 + noise) << PlainNumber(price);
    }
}

TEST(NumberFormatRound, RoundsHalfAwayFromZero) {
    NumberFormat const cents("####0.00");
    EXPECT_EQ(cents.Round(245.255), 245.26);
    EXPECT_EQ(cents.Round(-245.255), -245.26);
    EXPECT_EQ(cents.Round(1.005), 1.01);
    EXPECT_EQ(NumberFormat("####0").Round(2.5), 3);
    EXPECT_EQ(NumberFormat("####0").Round(434.99999999999994), 435);
}

TEST(NumberFormatRound, KeepsNumbersThatHaveNoMoreDecimals) {
    NumberFormat const format("####0.0000");
    for (double const price : {0.0001, 0.662, 245.5, 121000.5, 99999.9999, -0.5, 1e14, 1e15, 1e22, 1e300}) {
        EXPECT_EQ(format.Round(price), price);
    }
}

TEST(NumberFormatRound, DropsWhatFifteenDigitsDoNotShow) {
    EXPECT_EQ(NumberFormat("####0").Round(1234567890123456.0), 1234567890123460.0);
    EXPECT_EQ(NumberFormat("####0.0").Round(0.1 + 0.2), 0.3);
    EXPECT_EQ(NumberFormat("0.0###################").Round(0.1 + 0.2), 0.3);
}

TEST(NumberFormatRound, GivesZeroWithoutASign) {
    for (double const value : {0.0, -0.0, -0.004, 0.004, -1e-300}) {
        double const rounded = NumberFormat("####0.00").Round(value);
        EXPECT_EQ(rounded, 0);
        EXPECT_FALSE(std::signbit(rounded));
    }
    EXPECT_FALSE(std::signbit(NumberFormat("").Round(-0.0)));
}

TEST(NumberFormatRound, TakesATextOfNoDigitsAsZero) {
    EXPECT_EQ(NumberFormat("##").Round(0), 0);
    EXPECT_EQ(NumberFormat("#.##").Round(0), 0);
    EXPECT_EQ(NumberFormat("#,###").Round(0), 0);
    EXPECT_EQ(NumberFormat("#,###.##").Round(0.004), 0);
}

TEST(NumberFormatRound, TakesThousandsCommasBack) {
    EXPECT_EQ(NumberFormat("#,##0.00").Round(1234567.891), 1234567.89);
    EXPECT_EQ(NumberFormat("0,000").Round(5), 5);
}

TEST(NumberFormatRound, TakesTheMagnitudeThatTheNegativeSectionShows) {
    EXPECT_EQ(NumberFormat("0;0").Round(-3), 3);
    EXPECT_EQ(NumberFormat("0;-0").Round(-3), -3);
}

TEST(NumberFormatRound, KeepsEveryBitInTheEmptyFormat) {
    for (double const value : {0.1 + 0.2, 245.255, -1e-300, 1e300, 5e-324}) {
        EXPECT_EQ(NumberFormat("").Round(value), value);
    }
}

TEST(NumberFormatRound, RefusesATextThatIsNoNumber) {
    for (char const* const format : {"$0.00", "0%", "0 0", "abc", "0.0.0", "(0)", "0\"x\"", "0;(0)"}) {
        SCOPED_TRACE(format);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(NumberFormat(format).Round(-12.5)); }), "Type mismatch");
    }
}

TEST(NumberFormatRound, GivesNoOtherNumberInFormatsWithoutDigitsAndSignsOfTheirOwn) {
    for (char const* const format :
         {"",     "0",         "####0.00", "#",       ".",        "#,##0.00", " 0 ",
          "0;-0", "0; -0.0 ;", ";-0;",     "0;;.0",   "0;;\"0\"", "0;;",      "$0",
          "0%",   "(1)",       "0;(0)",    "0;;none", "0;;-",     "0;;-0",    "\t0"}) {
        EXPECT_TRUE(NumberFormat(format).RoundsOnly()) << format;
    }
    for (char const* const format : {"1", "10", "01", "0 0", "0-", "-0", "0e0", "0.0.0", "\"\"", "\" \"", ",",
                                     "0;0", "0;-", "0;0-", "0;--0", "0;-01", "0;;1", "0;;0.5", "0;;\"\"5"}) {
        EXPECT_FALSE(NumberFormat(format).RoundsOnly()) << format;
    }
}

TEST(NumberFormatRound, OverflowsWhereFifteenDigitsRoundBeyondADouble) {
    double const largest = std::numeric_limits<double>::max();
    EXPECT_EQ(FaultOf([&] { static_cast<void>(NumberFormat("0.00").Round(largest)); }), "Overflow");
    EXPECT_EQ(FaultOf([&] { static_cast<void>(NumberFormat("#,##0").Round(-largest)); }), "Overflow");
}

} // namespace

} // namespace quorvex::text
