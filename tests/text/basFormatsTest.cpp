// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFormats.h"

#include "support/Golden.h"
#include "text/basNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>

namespace quorvex::text {

namespace {

TEST(NumberFormat, PrintsEveryReferenceEntryExactly) {
    auto const entries = tests::GoldenVector("number_format");
    ASSERT_EQ(entries.size(), 500U);
    for (auto const& entry : entries) {
        SCOPED_TRACE(entry.dump());
        EXPECT_EQ(FormatNumber(entry[0].get<double>(), entry[1].get<std::string>()),
                  entry[2].get<std::string>());
    }
}

TEST(NumberFormat, RoundsHalfAwayFromZeroOnTheDecimalText) {
    // As binary numbers the first three lie below the half that their decimal texts show.
    EXPECT_EQ(FormatNumber(245.255, "####0.00"), "245.26");
    EXPECT_EQ(FormatNumber(1.005, "####0.00"), "1.01");
    EXPECT_EQ(FormatNumber(2.675, "####0.00"), "2.68");
    EXPECT_EQ(FormatNumber(2.5, "##0"), "3");
    EXPECT_EQ(FormatNumber(-2.5, "##0"), "-3");
    EXPECT_EQ(FormatNumber(0.5, "0"), "1");
    EXPECT_EQ(FormatNumber(-0.5, "0"), "-1");
    EXPECT_EQ(FormatNumber(2.4999, "0"), "2");
}

TEST(NumberFormat, RoundsEveryThousandthAsSchoolArithmeticDoes) {
    NumberFormat const format("0.00");
    for (int thousandths = 0; thousandths < 200'000; ++thousandths) {
        int const hundredths = (thousandths + 5) / 10;
        std::array<char, 32> expected{};
        std::snprintf(expected.data(), expected.size(), "%d.%02d", hundredths / 100, hundredths % 100);
        ASSERT_EQ(format.Format(thousandths / 1000.0), expected.data()) << thousandths;
    }
}

TEST(NumberFormat, KeepsWhatHasNoMoreDecimalsThanItPrints) {
    constexpr int MostDecimals = 8;
    std::string const digits = "80715369420718";
    for (int kept = 0; kept <= MostDecimals; ++kept) {
        NumberFormat const format("0." + std::string(static_cast<std::size_t>(kept), '0'));
        for (int decimals = 0; decimals <= MostDecimals; ++decimals) {
            EXPECT_EQ(format.Keeps(decimals), decimals <= kept);
            auto const point = digits.size() - static_cast<std::size_t>(decimals);
            double const value = LeadingNumber(digits.substr(0, point) + "." + digits.substr(point));
            EXPECT_EQ(format.Round(value) == value, format.Keeps(decimals)) << value;
        }
    }
    EXPECT_FALSE(NumberFormat("0.00%").Keeps(0)) << "it prints a hundred times the number";
    EXPECT_FALSE(NumberFormat("#,##0").Keeps(0)) << "what it prints is to be read back";
    EXPECT_FALSE(NumberFormat("0;0.0").Keeps(0));
    EXPECT_FALSE(NumberFormat("0.00").Keeps(-1)) << "of a text that is no plain decimal";
}

TEST(NumberFormat, SeesFifteenSignificantDigitsOnly) {
    EXPECT_EQ(FormatNumber(0.499999999999999, "0"), "0");
    EXPECT_EQ(FormatNumber(0.4999999999999999, "0"), "1");
    EXPECT_EQ(FormatNumber(2.49999999999999, "0"), "2");
    EXPECT_EQ(FormatNumber(2.499999999999999, "0"), "3");
    EXPECT_EQ(FormatNumber(0.1 + 0.2, "0.################"), "0.3");
    EXPECT_EQ(FormatNumber(123456789012345.0, "0"), "123456789012345");
    EXPECT_EQ(FormatNumber(1234567890123456.0, "0"), "1234567890123460");
    EXPECT_EQ(FormatNumber(999999999999999.0, "0.0"), "999999999999999.0");
    EXPECT_EQ(FormatNumber(9999999999999996.0, "0"), "10000000000000000");
}

TEST(NumberFormat, PrintsHugeNumbersInFull) {
    EXPECT_EQ(FormatNumber(1e300, "0.00"), '1' + std::string(300, '0') + ".00");
    EXPECT_EQ(FormatNumber(-1e22, "##0"), "-1" + std::string(22, '0'));
    EXPECT_EQ(FormatNumber(1e15, "#,##0"), "1,000,000,000,000,000");
}

TEST(NumberFormat, PrintsTinyNumbersAsZeroUntilTheDecimalsReachThem) {
    EXPECT_EQ(FormatNumber(1e-300, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(-1e-300, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(5e-324, "0.####"), "0.");
    EXPECT_EQ(FormatNumber(1e-300, "0." + std::string(300, '#')), "0." + std::string(299, '0') + '1');
    EXPECT_EQ(FormatNumber(1e-300, "." + std::string(301, '0')), "." + std::string(299, '0') + "10");
}

TEST(NumberFormat, CarriesIntoANewDigitInFront) {
    EXPECT_EQ(FormatNumber(99999.995, "####0.00"), "100000.00");
    EXPECT_EQ(FormatNumber(0.95, "#.#"), "1.");
    EXPECT_EQ(FormatNumber(999.5, "#,##0"), "1,000");
}

TEST(NumberFormat, HashPrintsNoInsignificantZeroAndThePointStays) {
    EXPECT_EQ(FormatNumber(245.5, "###.####"), "245.5");
    EXPECT_EQ(FormatNumber(245, "###.####"), "245.");
    EXPECT_EQ(FormatNumber(0.5, "###.####"), ".5");
    EXPECT_EQ(FormatNumber(0, "###.####"), ".");
    EXPECT_EQ(FormatNumber(100.05, "#.###"), "100.05");
    EXPECT_EQ(FormatNumber(0, "##"), "");
    EXPECT_EQ(FormatNumber(100, "#"), "100");
}

TEST(NumberFormat, ZeroPrintsADigitWhereTheNumberHasNone) {
    EXPECT_EQ(FormatNumber(12, "00000"), "00012");
    EXPECT_EQ(FormatNumber(1.5, "00.000"), "01.500");
    EXPECT_EQ(FormatNumber(0, "0.0"), "0.0");
    // A digit wanted at one place is wanted at every place between it and the point.
    EXPECT_EQ(FormatNumber(5, "#0##"), "005");
    EXPECT_EQ(FormatNumber(1.5, "0.##0"), "1.500");
    EXPECT_EQ(FormatNumber(1.25, "0.0#"), "1.25");
    EXPECT_EQ(FormatNumber(1, "0.0#"), "1.0");
}

TEST(NumberFormat, PrintsThePointEvenWhenNoDecimalFollows) {
    EXPECT_EQ(FormatNumber(7, "0."), "7.");
    EXPECT_EQ(FormatNumber(7.5, "0."), "8.");
    EXPECT_EQ(FormatNumber(7, "."), "7.");
    EXPECT_EQ(FormatNumber(12.5, ".00"), "12.50");
}

TEST(NumberFormat, TakesOnlyTheFirstPointAsThePoint) {
    EXPECT_EQ(FormatNumber(1.25, "0.0.0"), "1.2.5");
    EXPECT_EQ(FormatNumber(12, "0.."), "12..");
}

TEST(NumberFormat, PrintsDigitsBeyondThePlaceholdersAtTheFirstOfThem) {
    EXPECT_EQ(FormatNumber(12345, "0"), "12345");
    EXPECT_EQ(FormatNumber(12345, "x0-0"), "x1234-5");
    EXPECT_EQ(FormatNumber(12345.6, "0/0.0"), "1234/5.6");
}

TEST(NumberFormat, PrintsLiteralsBetweenPlaceholdersInTheirPlace) {
    EXPECT_EQ(FormatNumber(30502, "00-00-00"), "03-05-02");
    EXPECT_EQ(FormatNumber(1.25, "0.0 0"), "1.2 5");
    EXPECT_EQ(FormatNumber(5, "#-#"), "-5");
}

TEST(NumberFormat, GroupsThousandsForACommaBetweenPlaceholders) {
    EXPECT_EQ(FormatNumber(1234567.891, "#,##0.00"), "1,234,567.89");
    EXPECT_EQ(FormatNumber(999, "#,##0"), "999");
    EXPECT_EQ(FormatNumber(1000, "#,##0"), "1,000");
    EXPECT_EQ(FormatNumber(-1234, "#,##0"), "-1,234");
    EXPECT_EQ(FormatNumber(1234567, "0,0"), "1,234,567");
    EXPECT_EQ(FormatNumber(1234567, "#,,,#"), "1,234,567");
}

TEST(NumberFormat, GroupsThePaddingZerosToo) {
    EXPECT_EQ(FormatNumber(5, "0,000"), "0,005");
    EXPECT_EQ(FormatNumber(5, "0000,000"), "0,000,005");
    EXPECT_EQ(FormatNumber(0, "000,0"), "0,000");
}

TEST(NumberFormat, PrintsACommaElsewhereAsItStands) {
    EXPECT_EQ(FormatNumber(1234, ",0"), ",1234");
    EXPECT_EQ(FormatNumber(1234, "0,"), "1234,");
    EXPECT_EQ(FormatNumber(1234, "0,.0"), "1234,.0");
    EXPECT_EQ(FormatNumber(1234, "0\\,0"), "123,4");
}

TEST(NumberFormat, PercentMultipliesByAHundredAndPrintsItself) {
    EXPECT_EQ(FormatNumber(0.25, "0%"), "25%");
    EXPECT_EQ(FormatNumber(0.8734, "###.##%"), "87.34%");
    EXPECT_EQ(FormatNumber(1, "###.##%"), "100.%");
    EXPECT_EQ(FormatNumber(-0.451, "###.##%"), "-45.1%");
    EXPECT_EQ(FormatNumber(0.25, "%0"), "%25");
    EXPECT_EQ(FormatNumber(0.25, "0%%"), "2500%%");
    EXPECT_EQ(FormatNumber(0, "0.0%"), "0.0%");
}

TEST(NumberFormat, PercentMultipliesTheDecimalTextAndNotTheBinaryNumber) {
    // 0.285 * 100 is 28.499999999999996 in binary.
    EXPECT_EQ(FormatNumber(0.285, "0%"), "29%");
    EXPECT_EQ(FormatNumber(0.004999, "0%"), "0%");
    EXPECT_EQ(FormatNumber(-0.004999, "0%"), "0%");
}

TEST(NumberFormat, DoesNotMultiplyForALiteralPercent) {
    EXPECT_EQ(FormatNumber(25, "0\\%"), "25%");
    EXPECT_EQ(FormatNumber(25, "0\"%\""), "25%");
}

TEST(NumberFormat, PrintsQuotedAndEscapedAndOtherCharactersAsTheyStand) {
    EXPECT_EQ(FormatNumber(4, "\"n=\"0"), "n=4");
    EXPECT_EQ(FormatNumber(4, "\"0#.,%;\"0"), "0#.,%;4");
    EXPECT_EQ(FormatNumber(4, "\\00"), "04");
    EXPECT_EQ(FormatNumber(4, "\\\"0\\\""), "\"4\"");
    EXPECT_EQ(FormatNumber(4, "\\\\0"), "\\4");
    EXPECT_EQ(FormatNumber(4, "$0 a\xC3\xA9"), "$4 a\xC3\xA9");
}

TEST(NumberFormat, RunsAnUnterminatedQuoteToTheEnd) {
    EXPECT_EQ(FormatNumber(4, "0\"a;0"), "4a;0");
    EXPECT_EQ(FormatNumber(4, "0\""), "4");
}

TEST(NumberFormat, PrintsATrailingBackslash) {
    EXPECT_EQ(FormatNumber(4, "0\\"), "4\\");
    EXPECT_EQ(FormatNumber(4, "\\"), "\\");
}

TEST(NumberFormat, PrintsTheLiteralsAloneWhenThereIsNoPlaceholder) {
    EXPECT_EQ(FormatNumber(5, "abc"), "abc");
    EXPECT_EQ(FormatNumber(-5, "abc"), "-abc");
    EXPECT_EQ(FormatNumber(0, "abc"), "abc");
    EXPECT_EQ(FormatNumber(5, "\"\""), "");
}

TEST(NumberFormat, PutsAMinusInFrontUnlessTheNumberRoundsToZero) {
    EXPECT_EQ(FormatNumber(-7, "$0"), "-$7");
    EXPECT_EQ(FormatNumber(-0.005, "0.00"), "-0.01");
    EXPECT_EQ(FormatNumber(-0.004, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(-0.4, "##"), "");
    EXPECT_EQ(FormatNumber(-0.04, "#.#"), ".");
}

TEST(NumberFormat, NegativeZeroIsZero) {
    EXPECT_EQ(FormatNumber(-0.0, "0.0"), "0.0");
    EXPECT_EQ(FormatNumber(-0.0, "0;(0);nil"), "nil");
    EXPECT_EQ(FormatNumber(-0.0, ""), "0");
}

TEST(NumberFormat, ChoosesTheSectionByTheSign) {
    EXPECT_EQ(FormatNumber(3, "0;(0);nil"), "3");
    EXPECT_EQ(FormatNumber(-3, "0;(0);nil"), "(3)");
    EXPECT_EQ(FormatNumber(0, "0;(0);nil"), "nil");
    EXPECT_EQ(FormatNumber(0, "0;(0);0.00"), "0.00");
}

TEST(NumberFormat, PrintsTheMagnitudeInTheNegativeSection) {
    EXPECT_EQ(FormatNumber(-12.5, "0.00;(0.00)"), "(12.50)");
    EXPECT_EQ(FormatNumber(-12.5, "0;0.0"), "12.5");
    EXPECT_EQ(FormatNumber(-0.4, "0;(0)"), "(0)");
    EXPECT_EQ(FormatNumber(-3, "0;\"loss\""), "loss");
}

TEST(NumberFormat, PrintsByTheFirstSectionWhereAnotherIsMissing) {
    EXPECT_EQ(FormatNumber(0, "0.0;(0)"), "0.0");
    EXPECT_EQ(FormatNumber(-3, "0.0"), "-3.0");
}

TEST(NumberFormat, PrintsByTheFirstSectionWhereAnotherIsEmpty) {
    EXPECT_EQ(FormatNumber(-3, "0.0;"), "-3.0");
    EXPECT_EQ(FormatNumber(-3, "0.0;;nil"), "-3.0");
    EXPECT_EQ(FormatNumber(0, "0.0;;nil"), "nil");
    EXPECT_EQ(FormatNumber(0, "0.0;(0);"), "0.0");
    EXPECT_EQ(FormatNumber(0, "0.0;;"), "0.0");
}

TEST(NumberFormat, PrintsThePlainNumberWhenTheFirstSectionIsEmpty) {
    EXPECT_EQ(FormatNumber(2.5, ";(0);nil"), "2.5");
    EXPECT_EQ(FormatNumber(-2.5, ";(0);nil"), "(3)");
    EXPECT_EQ(FormatNumber(0, ";(0);nil"), "nil");
    EXPECT_EQ(FormatNumber(-2.5, ";;nil"), "-2.5");
    EXPECT_EQ(FormatNumber(-2.5, ";"), "-2.5");
}

TEST(NumberFormat, IgnoresWhatFollowsTheThirdSection) {
    EXPECT_EQ(FormatNumber(3, "0;(0);nil;more"), "3");
    EXPECT_EQ(FormatNumber(-3, "0;(0);nil;more"), "(3)");
    EXPECT_EQ(FormatNumber(0, "0;(0);nil;more"), "nil");
}

TEST(NumberFormat, DoesNotSplitAtAQuotedOrEscapedSemicolon) {
    EXPECT_EQ(FormatNumber(-12, "0\\;0"), "-1;2");
    EXPECT_EQ(FormatNumber(-5, "\"a;b\"0"), "-a;b5");
    EXPECT_EQ(FormatNumber(-5, "0\";\";(0)"), "(5)");
}

TEST(NumberFormat, DoesNotGroupAcrossASemicolon) {
    EXPECT_EQ(FormatNumber(1234, "0,;0"), "1234,");
    EXPECT_EQ(FormatNumber(-1234, "0;,0"), ",1234");
}

TEST(NumberFormat, PrintsTheShortestTextWhenEmpty) {
    EXPECT_EQ(FormatNumber(245.5, ""), "245.5");
    EXPECT_EQ(FormatNumber(-0.662, ""), "-0.662");
    EXPECT_EQ(FormatNumber(100000, ""), "100000");
    EXPECT_EQ(FormatNumber(0.1 + 0.2, ""), "0.30000000000000004");
}

TEST(NumberFormat, LooksNoFurtherThanItsText) {
    std::string_view const format = "0,0.00\\x";
    EXPECT_EQ(FormatNumber(1234, format.substr(0, 2)), "1234,");
    EXPECT_EQ(FormatNumber(1234, format.substr(0, 5)), "1,234.0");
    EXPECT_EQ(FormatNumber(1234, format.substr(0, 7)), "1,234.00\\");
    EXPECT_EQ(FormatNumber(4, std::string_view("0\"a\"").substr(0, 3)), "4a");
}

TEST(NumberFormat, PutsTheTextBehindWhatIsThere) {
    std::string text = "03/05/02, ";
    NumberFormat("0.00").AppendTo(text, 245.255);
    EXPECT_EQ(text, "03/05/02, 245.26");
    NumberFormat("").AppendTo(text, 7);
    EXPECT_EQ(text, "03/05/02, 245.267");
}

TEST(Counted, PutsTheNounIntoThePluralUnlessItIsOne) {
    EXPECT_EQ(Counted(0, "cycle"), "0 cycles");
    EXPECT_EQ(Counted(1, "cycle"), "1 cycle");
    EXPECT_EQ(Counted(12, "day"), "12 days");
}

} // namespace

} // namespace quorvex::text
