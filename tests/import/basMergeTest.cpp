// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basMerge.h"

#include "Tables.h"

#include <gtest/gtest.h>

#include <map>

namespace quorvex::tests {
namespace {

using imports::DayQuote;
using imports::MergeDays;
using std::chrono::year;

constexpr std::size_t Most = 500;

DayQuote Quote(int day, double close = 5.5, double volume = 10) {
    return {year{2019} / 10 / day, {5, 6, 4, close, volume, 20}};
}

TEST(Merge, AppendsNewDays) {
    auto const merge =
        MergeDays(std::vector{Quote(1), Quote(2)}, std::vector{Quote(2), Quote(3)}, false, Most);
    EXPECT_TRUE(AreSameDays(merge.Days, {Quote(1), Quote(2), Quote(3)}));
    EXPECT_TRUE(AreSameDays(merge.Appended, {Quote(3)}));
    EXPECT_EQ(merge.EqualCount, 1U);
    EXPECT_FALSE(merge.HasGap);
}

TEST(Merge, KeepsChangedFiguresUnlessTheyShallBeReplaced) {
    for (bool const replaces : {false, true}) {
        auto const merge =
            MergeDays(std::vector{Quote(1), Quote(2)}, std::vector{Quote(2, 5.25)}, replaces, Most);
        EXPECT_TRUE(AreSameDays(merge.Days, {Quote(1), Quote(2, replaces ? 5.25 : 5.5)}));
        ASSERT_EQ(merge.Changed.size(), 1U);
        EXPECT_TRUE(merge.Changed[0].Before.IsSameAs(Quote(2)));
        EXPECT_TRUE(merge.Changed[0].After.IsSameAs(Quote(2, 5.25)));
    }
}

TEST(Merge, FillsGapsAndLeavesOlderDays) {
    auto const merge =
        MergeDays(std::vector{Quote(3), Quote(7)}, std::vector{Quote(1), Quote(2), Quote(5)}, false, Most);
    EXPECT_TRUE(AreSameDays(merge.Days, {Quote(3), Quote(5), Quote(7)}));
    EXPECT_TRUE(AreSameDays(merge.Inserted, {Quote(5)}));
    EXPECT_EQ(merge.OlderCount, 2U);
}

TEST(Merge, TellsOfMoreThanAWeekWithoutQuotes) {
    EXPECT_FALSE(MergeDays(std::vector{Quote(1)}, std::vector{Quote(8)}, false, Most).HasGap);
    EXPECT_TRUE(MergeDays(std::vector{Quote(1)}, std::vector{Quote(9)}, false, Most).HasGap);
}

TEST(Merge, ComparesPricesAsTheFileHasThem) {
    auto const file = std::vector{Quote(1, 5.12), Quote(2, 5.13)};
    EXPECT_EQ(MergeDays(file, std::vector{Quote(2, 5.125)}, false, Most).EqualCount, 1U);
    EXPECT_EQ(MergeDays(file, std::vector{Quote(2, 5.135)}, false, Most).Changed.size(), 1U);
    EXPECT_EQ(MergeDays(file, std::vector{Quote(2, 5.13, 10.5)}, false, Most).Changed.size(), 1U) << "volume";
}

TEST(Merge, MakesRoomByTheOldestDays) {
    auto const merge =
        MergeDays(std::vector{Quote(1), Quote(2), Quote(3)}, std::vector{Quote(4), Quote(5)}, false, 4);
    EXPECT_TRUE(AreSameDays(merge.Days, {Quote(2), Quote(3), Quote(4), Quote(5)}));
    EXPECT_EQ(merge.LeavingCount, 1U);
}

TEST(Merge, TakesAllIntoAFileWithoutDays) {
    auto const merge = MergeDays({}, std::vector{Quote(1), Quote(2)}, false, Most);
    EXPECT_TRUE(AreSameDays(merge.Appended, {Quote(1), Quote(2)}));
    EXPECT_FALSE(merge.HasGap);
}

// A file that is brought up to date over and over, against a map of what has to be in it.
TEST(Merge, AgreesWithAModelOverManyUpdates) {
    std::mt19937 random(11);
    constexpr std::size_t Room = 60;
    auto const truth = RandomSeries(random, 400, 500);
    std::vector<DayQuote> file(truth.begin() + 20, truth.begin() + 60);
    std::map<text::CalendarDay, DayQuote> model;
    for (DayQuote const& quote : file) {
        model.emplace(quote.Day, quote);
    }
    for (int update = 0; update < 2000; ++update) {
        std::size_t const first = Below(random, truth.size());
        std::vector<DayQuote> days;
        for (std::size_t at = first; at < std::min(first + Below(random, 30), truth.size()); ++at) {
            if (Below(random, 8) != 0) {
                days.push_back(truth[at]);
                days.back().Figures[4] += Below(random, 10) == 0 ? 1.0 : 0.0;
            }
        }
        bool const replaces = Below(random, 2) == 0;
        auto const before = model;
        std::uint64_t changed = 0;
        std::uint64_t older = 0;
        for (DayQuote const& quote : days) {
            bool const isThere = before.contains(quote.Day);
            bool const isOlder = quote.Day < before.begin()->first;
            bool const isChanged = isThere && !before.at(quote.Day).IsSameAs(quote);
            changed += isChanged ? 1 : 0;
            older += isOlder ? 1 : 0;
            if (!isOlder && (!isThere || (isChanged && replaces))) {
                model.insert_or_assign(quote.Day, quote);
            }
        }
        while (model.size() > Room) {
            model.erase(model.begin());
        }
        auto const merge = MergeDays(file, days, replaces, Room);
        std::vector<DayQuote> expected;
        for (auto const& one : model) {
            expected.push_back(one.second);
        }
        ASSERT_TRUE(AreSameDays(merge.Days, expected)) << update;
        ASSERT_EQ(merge.Changed.size(), changed) << update;
        ASSERT_EQ(merge.OlderCount, older) << update;
        ASSERT_EQ(merge.EqualCount + merge.Changed.size() + merge.Appended.size() + merge.Inserted.size() +
                      merge.OlderCount,
                  days.size())
            << update;
        file = Below(random, 40) == 0 ? std::vector<DayQuote>(truth.begin(), truth.begin() + 30) : merge.Days;
        model.clear();
        for (DayQuote const& quote : file) {
            model.emplace(quote.Day, quote);
        }
    }
}

TEST(QuoteText, WritesAsManyDecimalsAsThereAre) {
    EXPECT_EQ(imports::QuoteText(std::vector{Quote(1)}), "10/01/19, 5.00, 6.00, 4.00, 5.50, 10, 20\r\n");
    EXPECT_EQ(
        imports::QuoteText(std::vector{Quote(1), Quote(2, 5.125)}),
        "10/01/19, 5.000, 6.000, 4.000, 5.500, 10, 20\r\n10/02/19, 5.000, 6.000, 4.000, 5.125, 10, 20\r\n");
    EXPECT_EQ(imports::QuoteText(std::vector{Quote(1, 5.00000004577, 1234567890123.5)}),
              "10/01/19, 5.000000, 6.000000, 4.000000, 5.00000004577, 1234567890123.5, 20\r\n");
}

TEST(QuoteText, ComesBackAsItWas) {
    std::mt19937 random(3);
    auto const series = RandomSeries(random, 700, 500);
    std::string const text = imports::QuoteText(series);
    text::TextSource source(text);
    auto const file = imports::ReadQuoteFileDays(source);
    EXPECT_TRUE(AreSameDays(file.Days, series)) << "those beyond the five hundredth, too";
    EXPECT_EQ(file.PassedCount, 0U);
    EXPECT_FALSE(file.Refused);
}

TEST(QuoteFileDays, AreReadAsTheProgramDoes) {
    text::TextSource source(
        "10/02/19, 5, 6\n4, 5.5, 10, 20\n10/01/19, 0, 6, 4, 5.5, 10, 20\nnonsense,1,2,3,4,5,6\n"
        "10/01/19, 5, 6, 4, 5.5, 10\n");
    auto const file = imports::ReadQuoteFileDays(source);
    EXPECT_TRUE(AreSameDays(file.Days, {DayQuote{year{2019} / 10 / 1, {5, 6, 4, 5.5, 10, 0}}, Quote(2)}));
    EXPECT_EQ(file.PassedCount, 2U);
}

TEST(QuoteFileDays, RefuseADayThatIsThereTwice) {
    text::TextSource same("10/01/19, 5, 6, 4, 5.5, 10, 20\n10/01/19, 5, 6, 4, 5.5, 10, 20\n");
    EXPECT_FALSE(imports::ReadQuoteFileDays(same).Refused);
    text::TextSource other("10/01/19, 5, 6, 4, 5.5, 10, 20\n10/01/19, 5, 6, 4, 5.5, 11, 20\n");
    EXPECT_EQ(imports::ReadQuoteFileDays(other).Refused->Told.Text, "The quote file has 10/01/19 twice");
}

} // namespace
} // namespace quorvex::tests
