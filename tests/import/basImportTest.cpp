// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basImport.h"

#include "Tables.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

imports::Conversion ConversionOf(std::vector<imports::DayQuote> days) {
    imports::Conversion conversion;
    conversion.Days = std::move(days);
    return conversion;
}

std::vector<imports::DayQuote> Series(std::size_t count) {
    std::mt19937 random(5);
    return RandomSeries(random, count, 500);
}

TEST(QuoteFile, HasTheLatestDays) {
    auto const series = Series(700);
    auto const file = imports::MakeQuoteFile(ConversionOf(series), 500);
    EXPECT_FALSE(file.Refused);
    EXPECT_TRUE(file.HasNews());
    EXPECT_TRUE(AreSameDays(file.Days, {series.begin() + 200, series.end()}));
}

TEST(QuoteFile, HasTwentyFiveDaysAtLeast) {
    EXPECT_FALSE(imports::MakeQuoteFile(ConversionOf(Series(25)), 500).Refused);
    auto const file = imports::MakeQuoteFile(ConversionOf(Series(24)), 500);
    EXPECT_EQ(file.Refused->Told.Text, "A quote file has 25 days at least, and there are 24");
    EXPECT_FALSE(file.HasNews());
}

TEST(QuoteFile, TellsOfRowsLeftOutWhereDaysAreTooFew) {
    auto conversion = ConversionOf(Series(24));
    conversion.LeftOut.Add(7, "the low is missing");
    conversion.LeftOut.Add(9, "the high is missing");
    EXPECT_EQ(
        imports::MakeQuoteFile(conversion, 500).Refused->Told.Text,
        "A quote file has 25 days at least, and there are 24. Rows left out: 2, the first at line 7: the "
        "low is missing");
}

TEST(QuoteFile, IsNotMadeOfWhatIsNone) {
    auto const refusal = [](std::string_view old) {
        text::TextSource source(old);
        auto const file = imports::UpdateQuoteFile(source, ConversionOf(Series(30)), false, 500);
        return file.Refused ? file.Refused->Told.Text : "";
    };
    EXPECT_EQ(refusal("bread, milk\n"),
              "What shall be brought up to date is no quote file: quotes in it 0, other lines 1");
    std::string const quotes = imports::QuoteText(Series(2));
    EXPECT_EQ(refusal(quotes + "Date,Open,High,Low,Close,Volume,OI\n"),
              "What shall be brought up to date has lines that are no quotes, or shifted ones, and would "
              "lose them: "
              "quotes in it 2, other lines 1");
    EXPECT_EQ(refusal(quotes + "a,b,c,d,e,f,g\na,b,c,d,e,f,g\n"),
              "What shall be brought up to date is no quote file: quotes in it 2, other lines 2");
    EXPECT_EQ(refusal(""), "");
}

TEST(QuoteFile, IsNotMadeOfARefusedTable) {
    auto conversion = ConversionOf(Series(30));
    conversion.Refused = imports::Refusal{{3, "bad"}, imports::Choice::None};
    EXPECT_EQ(imports::MakeQuoteFile(conversion, 500).Refused->Told.Text, "bad");
}

TEST(QuoteFile, IsBroughtUpToDate) {
    auto const series = Series(40);
    std::string const old = imports::QuoteText({series.data(), 30});
    text::TextSource source(old);
    auto const file =
        imports::UpdateQuoteFile(source, ConversionOf({series.begin() + 25, series.end()}), false, 500);
    EXPECT_TRUE(file.HasNews());
    EXPECT_TRUE(AreSameDays(file.Days, series));
    EXPECT_EQ(file.Merged->Appended.size(), 10U);
}

// A remark shifts all fields behind it.
TEST(QuoteFile, IsNotBroughtUpToDateWhereItWouldLoseDays) {
    auto const series = Series(60);
    std::string const old =
        imports::QuoteText({series.data(), 50}) + "remark\r\n" + imports::QuoteText({series.data() + 50, 10});
    text::TextSource source(old);
    auto const file = imports::UpdateQuoteFile(source, ConversionOf(Series(60)), false, 500);
    ASSERT_TRUE(file.Refused);
    EXPECT_TRUE(
        file.Refused->Told.Text.starts_with("What shall be brought up to date has lines that are no quotes"));
    EXPECT_FALSE(file.HasNews());
}

TEST(QuoteFile, IsNotBroughtUpToDateByAnotherContract) {
    auto const series = Series(60);
    std::string const old = imports::QuoteText({series.data(), 50});
    auto other = series;
    for (auto& quote : other) {
        quote.Figures.at(3) = quote.Figures.at(0);
        quote.Figures.at(4) += 1;
    }
    auto const updated = [&](std::size_t from, bool replaces) {
        text::TextSource source(old);
        return imports::UpdateQuoteFile(
            source, ConversionOf({other.begin() + static_cast<std::ptrdiff_t>(from), other.end()}), replaces,
            500);
    };
    EXPECT_EQ(
        updated(45, false).Refused->Told.Text,
        "The table looks like another contract's: 5 of the 5 days that are there already have other figures. "
        "Replacing them takes those of the table");
    EXPECT_FALSE(updated(46, false).Refused); // a few may have been corrected
    EXPECT_FALSE(updated(0, true).Refused);
    EXPECT_EQ(updated(0, true).Merged->Changed.size(), 50U);
}

TEST(QuoteFile, HasNoNewsWhenAllDaysAreThere) {
    auto const series = Series(40);
    std::string const old = imports::QuoteText(series);
    text::TextSource source(old);
    auto const file =
        imports::UpdateQuoteFile(source, ConversionOf({series.begin() + 25, series.end()}), false, 500);
    EXPECT_FALSE(file.Refused);
    EXPECT_FALSE(file.HasNews());
}

} // namespace
} // namespace quorvex::tests
