// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basNumbers.h"

#include "FaultOf.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace quorvex::text {

namespace {

std::string FaultOfLeading(std::string_view text) {
    return FaultOf([&] { static_cast<void>(LeadingNumber(text)); });
}

std::string FaultOfStrict(std::string_view text) {
    return FaultOf([&] { static_cast<void>(StrictNumber(text)); });
}

std::string FaultOfWhole(double value) {
    return FaultOf([&] { static_cast<void>(WholeNumber(value)); });
}

TEST(LeadingNumber, ReadsEveryReferenceEntryExactly) {
    auto const entries = tests::GoldenVector("leading_number");
    ASSERT_EQ(entries.size(), 300U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.dump());
        EXPECT_EQ(LeadingNumber(entry[0].get<std::string>()), entry[1].get<double>());
    }
}

TEST(LeadingNumber, SkipsLeadingBlanksAndTabs) {
    EXPECT_EQ(LeadingNumber(" \t  7.5"), 7.5);
    EXPECT_EQ(LeadingNumber("\n7.5"), 0);
    EXPECT_EQ(LeadingNumber("- 7.5"), 0);
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatDoesNotBelong) {
    EXPECT_EQ(LeadingNumber("12abc"), 12);
    EXPECT_EQ(LeadingNumber("1,234"), 1);
    EXPECT_EQ(LeadingNumber("1 2"), 1);
    EXPECT_EQ(LeadingNumber("12.5.6"), 12.5);
    EXPECT_EQ(LeadingNumber("12-"), 12);
    EXPECT_EQ(LeadingNumber("0x10"), 0);
    EXPECT_EQ(LeadingNumber(std::string_view("1\0002", 3)), 1);
}

TEST(LeadingSpelledNumber, CountsTheDecimalsOfPlainTexts) {
    auto const spelled = [](std::string_view text) {
        auto const [value, decimals] = LeadingSpelledNumber(text);
        return std::pair(value, decimals);
    };
    EXPECT_EQ(spelled("253.75"), std::pair(253.75, 2));
    EXPECT_EQ(spelled("58915"), std::pair(58915.0, 0));
    EXPECT_EQ(spelled("7."), std::pair(7.0, 0));
    EXPECT_EQ(spelled(".050"), std::pair(0.05, 3));
    EXPECT_EQ(spelled(""), std::pair(0.0, 0));
    EXPECT_EQ(spelled("123456789012.25"), std::pair(123456789012.25, 2)) << "fifteen characters";
    for (auto const* other : {"-1.5", "+1.5", " 1.5", "1.5x", "1.5e3", "1.2.3", "1234567890123.25", "x"}) {
        EXPECT_LT(spelled(other).second, 0) << other;
        EXPECT_EQ(spelled(other).first, LeadingNumber(other));
    }
    EXPECT_EQ(FaultOf([] { static_cast<void>(LeadingSpelledNumber("1e999")); }), "Overflow");
}

TEST(LeadingNumber, TakesDigitsWithAtMostOnePoint) {
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("5."), 5);
    EXPECT_EQ(LeadingNumber("+.5"), 0.5);
    EXPECT_EQ(LeadingNumber("-.5"), -0.5);
}

TEST(LeadingNumber, TakesAnExponentOfEitherLetterInEitherCase) {
    EXPECT_EQ(LeadingNumber("1e3"), 1000);
    EXPECT_EQ(LeadingNumber("1E3"), 1000);
    EXPECT_EQ(LeadingNumber("1d3"), 1000);
    EXPECT_EQ(LeadingNumber("1D3"), 1000);
    EXPECT_EQ(LeadingNumber("25d-1"), 2.5);
    EXPECT_EQ(LeadingNumber("25D+1"), 250);
    EXPECT_EQ(LeadingNumber(".5e1"), 5);
    EXPECT_EQ(LeadingNumber("5.e1"), 50);
    EXPECT_EQ(LeadingNumber("1d300"), 1e300);
    EXPECT_EQ(LeadingNumber("1.5D-300"), 1.5e-300);
}

TEST(LeadingNumber, LeavesAnExponentWithoutADigitAside) {
    EXPECT_EQ(LeadingNumber("1e"), 1);
    EXPECT_EQ(LeadingNumber("1e+"), 1);
    EXPECT_EQ(LeadingNumber("1d-x"), 1);
    EXPECT_EQ(LeadingNumber("1e +2"), 1);
    EXPECT_EQ(LeadingNumber("1ee2"), 1);
}

TEST(LeadingNumber, IsZeroWhereNothingIsThere) {
    for (char const* const text : {"", " ", "\t", "-", "+", ".", "-.", "abc", "e5", ".e5", "$5", "--1", "+-1",
                                   "infinity", "nan", "&HFF", "\"5\""}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(LeadingNumber(text), 0);
    }
}

TEST(LeadingNumber, LooksNoFurtherThanItsText) {
    std::string_view const text = "-12.56e25";
    EXPECT_EQ(LeadingNumber(text.substr(0, 1)), 0);
    EXPECT_EQ(LeadingNumber(text.substr(0, 3)), -12);
    EXPECT_EQ(LeadingNumber(text.substr(0, 5)), -12.5);
    EXPECT_EQ(LeadingNumber(text.substr(0, 7)), -12.56);
    EXPECT_EQ(LeadingNumber(text.substr(0, 8)), -1256);
    EXPECT_EQ(StrictNumber(text.substr(0, 8)), -1256);
    EXPECT_EQ(LeadingNumber(text.substr(1, 1)), 1);
    EXPECT_EQ(LeadingNumber(text.substr(1, 3)), 12);
    EXPECT_EQ(LeadingNumber(text.substr(1, 4)), 12.5);
}

TEST(LeadingNumber, OverflowsBeyondADouble) {
    EXPECT_EQ(FaultOfLeading("1e999"), "Overflow");
    EXPECT_EQ(FaultOfLeading("-1d999x"), "Overflow");
    EXPECT_EQ(FaultOfLeading("1e309"), "Overflow");
    EXPECT_EQ(FaultOfLeading("1.8e308"), "Overflow");
    EXPECT_EQ(FaultOfLeading("1e99999999999999999999999999"), "Overflow");
    EXPECT_EQ(FaultOfLeading('1' + std::string(400, '0')), "Overflow");
    EXPECT_EQ(FaultOfLeading(std::string(400, '9')), "Overflow");
    EXPECT_EQ(LeadingNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(LeadingNumber, IsZeroBelowTheSmallestDouble) {
    EXPECT_EQ(LeadingNumber("1e-999"), 0);
    EXPECT_EQ(LeadingNumber("-1e-999"), 0);
    EXPECT_EQ(LeadingNumber("1e-400"), 0);
    EXPECT_EQ(LeadingNumber("1e-99999999999999999999999999"), 0);
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + '1'), 0);
    EXPECT_EQ(LeadingNumber("5e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(LeadingNumber("2.5e-310"), 2.5e-310);
}

TEST(LeadingNumber, IsZeroForAZeroOfAnyExponent) {
    EXPECT_EQ(LeadingNumber("0e999"), 0);
    EXPECT_EQ(LeadingNumber("0.000e99999999999999999999999999"), 0);
    EXPECT_EQ(LeadingNumber("-0d-999"), 0);
}

TEST(LeadingNumber, ReadsLongTextsOfDigitsExactly) {
    EXPECT_EQ(LeadingNumber("12345678901234567890123"), 12345678901234567890123.0);
    EXPECT_EQ(LeadingNumber("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    EXPECT_EQ(LeadingNumber("1." + std::string(100'000, '0')), 1);
    EXPECT_EQ(LeadingNumber(std::string(100'000, '0') + '7'), 7);
    EXPECT_EQ(LeadingNumber("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(LeadingNumber("9007199254740993.0000000000000000000000001"), 9007199254740994.0);
}

TEST(LeadingNumber, LetsTheExponentMakeUpForManyDigits) {
    EXPECT_EQ(LeadingNumber('1' + std::string(400, '0') + "e-400"), 1);
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1e401"), 1);
    EXPECT_EQ(LeadingNumber("0." + std::string(100'000, '0') + "25e100001"), 2.5);
}

TEST(StrictNumber, ReadsEveryReferenceEntryExactly) {
    auto const entries = tests::GoldenVector("strict_number");
    ASSERT_EQ(entries.size(), 24U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.dump());
        auto const text = entry[0].get<std::string>();
        if (entry[2].is_null()) {
            EXPECT_EQ(StrictNumber(text), entry[1].get<double>());
        } else {
            EXPECT_EQ(FaultOfStrict(text), entry[2].get<std::string>());
        }
    }
}

TEST(StrictNumber, TrimsBlanks) {
    EXPECT_EQ(StrictNumber("  -12.5 "), -12.5);
    EXPECT_EQ(StrictNumber("\t12.5\t"), 12.5);
}

TEST(StrictNumber, AllowsThousandsCommasBetweenDigits) {
    EXPECT_EQ(StrictNumber("12,345"), 12345);
    EXPECT_EQ(StrictNumber("-1,234,567.25"), -1234567.25);
    EXPECT_EQ(StrictNumber("1,2"), 12);
}

TEST(StrictNumber, RefusesCommasElsewhere) {
    for (char const* const text :
         {",1", "1,", "1,,2", "1,.5", "1.2,3", "1.,2", "1e1,0", "-,1", ",", "1, 2", "1 ,2"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(FaultOfStrict(text), "Type mismatch");
    }
}

TEST(StrictNumber, RefusesAnythingThatIsNotWhollyANumber) {
    for (char const* const text :
         {"",    " ",     "\t", "-",   "+",  ".",  "-.",  "abc", "12x",  "12 x", "1 2", "- 1",
          "--1", "1.2.3", "1e", "1e+", "e1", "$1", "(1)", "5%",  "0x10", "inf",  "nan", "1\n"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(FaultOfStrict(text), "Type mismatch");
    }
    EXPECT_EQ(FaultOfStrict(std::string_view("1\0", 2)), "Type mismatch");
}

TEST(StrictNumber, LooksNoFurtherThanItsText) {
    std::string_view const text = "1,2";
    EXPECT_EQ(FaultOfStrict(text.substr(0, 2)), "Type mismatch");
    EXPECT_EQ(FaultOfStrict(text.substr(1)), "Type mismatch");
}

TEST(StrictNumber, TakesTheSameExponentsAsTheLeadingNumber) {
    EXPECT_EQ(StrictNumber("1e3"), 1000);
    EXPECT_EQ(StrictNumber("1.5D-3"), 0.0015);
    EXPECT_EQ(StrictNumber("1,000e3"), 1'000'000);
}

TEST(StrictNumber, OverflowsBeyondADouble) {
    EXPECT_EQ(FaultOfStrict("1e999"), "Overflow");
    EXPECT_EQ(FaultOfStrict("-1e999"), "Overflow");
    EXPECT_EQ(StrictNumber("1e-999"), 0);
    EXPECT_EQ(StrictNumber("0e999"), 0);
}

TEST(WholeNumber, RoundsEveryReferenceEntryExactly) {
    auto const entries = tests::GoldenVector("whole_number");
    ASSERT_EQ(entries.size(), 61U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.dump());
        auto const value = entry[0].get<double>();
        if (entry[2].is_null()) {
            EXPECT_EQ(WholeNumber(value), entry[1].get<int>());
        } else {
            EXPECT_EQ(FaultOfWhole(value), entry[2].get<std::string>());
        }
    }
}

TEST(WholeNumber, TakesTheEvenNeighbourOfEveryHalf) {
    for (int below = -32768; below < 32767; ++below) {
        ASSERT_EQ(WholeNumber(below + 0.5), below % 2 == 0 ? below : below + 1);
    }
}

TEST(WholeNumber, TakesTheNearestNumberBesideAHalf) {
    for (int whole = -32768; whole <= 32767; ++whole) {
        ASSERT_EQ(WholeNumber(whole), whole);
        ASSERT_EQ(WholeNumber(whole + 0.499), whole);
        ASSERT_EQ(WholeNumber(whole - 0.499), whole);
    }
    EXPECT_EQ(WholeNumber(std::nextafter(0.5, 1.0)), 1);
    EXPECT_EQ(WholeNumber(std::nextafter(0.5, 0.0)), 0);
    EXPECT_EQ(WholeNumber(std::nextafter(-0.5, 0.0)), 0);
    EXPECT_EQ(WholeNumber(std::nextafter(-0.5, -1.0)), -1);
    EXPECT_EQ(WholeNumber(std::nextafter(2.5, 3.0)), 3);
    EXPECT_EQ(WholeNumber(-1e-300), 0);
}

TEST(WholeNumber, OverflowsOutsideSixteenBits) {
    EXPECT_EQ(WholeNumber(std::nextafter(32767.5, 0.0)), 32767);
    EXPECT_EQ(FaultOfWhole(32767.5), "Overflow");
    EXPECT_EQ(WholeNumber(-32768.5), -32768);
    EXPECT_EQ(FaultOfWhole(std::nextafter(-32768.5, -40000.0)), "Overflow");
    for (double const value :
         {32768.0, -32769.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(FaultOfWhole(value), "Overflow");
    }
}

TEST(RoundedToDigits, KeepsSoManySignificantDigits) {
    EXPECT_EQ(RoundedToDigits(1234.5678, 6), 1234.57);
    EXPECT_EQ(RoundedToDigits(-0.00012345678, 3), -0.000123);
    EXPECT_EQ(RoundedToDigits(99.96, 3), 100);
    EXPECT_EQ(RoundedToDigits(0.1 + 0.2, 12), 0.3);
    EXPECT_EQ(RoundedToDigits(0, 12), 0);
    EXPECT_EQ(RoundedToDigits(5e-324, 12), 5e-324);
    EXPECT_EQ(RoundedToDigits(1.7e308, 1), 1.7e308); // 2e308 is beyond the range
}

TEST(PlainNumber, IsTheShortestText) {
    EXPECT_EQ(PlainNumber(245.5), "245.5");
    EXPECT_EQ(PlainNumber(0.662), "0.662");
    EXPECT_EQ(PlainNumber(100000), "100000");
    EXPECT_EQ(PlainNumber(99999), "99999");
    EXPECT_EQ(PlainNumber(121000.5), "121000.5");
    EXPECT_EQ(PlainNumber(-0.5), "-0.5");
    EXPECT_EQ(PlainNumber(0), "0");
    EXPECT_EQ(PlainNumber(0.1), "0.1");
    EXPECT_EQ(PlainNumber(0.1 + 0.2), "0.30000000000000004");
}

TEST(PlainNumber, WritesPricesAndVolumesOutAndTheRestWithAnExponent) {
    EXPECT_EQ(PlainNumber(1e15), "1000000000000000");
    EXPECT_EQ(PlainNumber(9999999999999998.0), "9999999999999998");
    EXPECT_EQ(PlainNumber(1e16), "1e+16");
    EXPECT_EQ(PlainNumber(1e20), "1e+20");
    EXPECT_EQ(PlainNumber(-1.5e300), "-1.5e+300");
    EXPECT_EQ(PlainNumber(0.00001), "0.00001");
    EXPECT_EQ(PlainNumber(0.000009), "9e-06");
    EXPECT_EQ(PlainNumber(5e-324), "5e-324");
}

TEST(PlainNumber, ReadsBackAsTheSameDouble) {
    std::mt19937_64 random(20020305); // NOLINT: the same numbers in every run
    int finite = 0;
    while (finite < 50'000) {
        double const value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) {
            continue;
        }
        ++finite;
        std::string const text = PlainNumber(value);
        ASSERT_EQ(StrictNumber(text), value) << text;
        ASSERT_EQ(LeadingNumber(text + " and more"), value) << text;
    }
}

TEST(PlainNumber, ReadsBackAsTheSamePrice) {
    std::mt19937_64 random(19990501); // NOLINT: the same numbers in every run
    std::uniform_real_distribution<double> price(-200'000, 200'000);
    for (int count = 0; count < 50'000; ++count) {
        double const value = price(random);
        std::string const text = PlainNumber(value);
        ASSERT_EQ(text.find('e'), std::string::npos) << text;
        ASSERT_EQ(StrictNumber(text), value) << text;
    }
}

} // namespace

} // namespace quorvex::text
