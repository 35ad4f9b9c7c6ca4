// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basMerge.h"

#include "Tables.h"
#include "import/basImport.h"
#include "support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
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

// What has to come of an update, said as plainly as possible.
struct ModelMerge {
    std::map<text::CalendarDay, DayQuote> Days;
    std::vector<DayQuote> Appended;
    std::vector<DayQuote> Inserted;
    std::vector<DayQuote> Before; // of those changed
    std::vector<DayQuote> After;
    std::uint64_t Equal = 0;
    std::uint64_t Older = 0;
    std::uint64_t Leaving = 0;
    bool HasGap = false;
};

ModelMerge ModelOf(std::vector<DayQuote> const& file, std::vector<DayQuote> const& days, bool replaces,
                   std::size_t most) {
    ModelMerge model;
    for (DayQuote const& quote : file) {
        model.Days[quote.Day] = quote;
    }
    for (DayQuote const& quote : days) {
        bool const isOlder = !file.empty() && quote.Day < file.front().Day;
        bool const isNewer = file.empty() || quote.Day > file.back().Day;
        bool const isThere = model.Days.contains(quote.Day);
        if (isOlder) {
            ++model.Older;
        } else if (!isThere) {
            (isNewer ? model.Appended : model.Inserted).push_back(quote);
            model.Days[quote.Day] = quote;
        } else if (model.Days[quote.Day].IsSameAs(quote)) {
            ++model.Equal;
        } else {
            model.Before.push_back(model.Days[quote.Day]);
            model.After.push_back(quote);
            model.Days[quote.Day] = replaces ? quote : model.Days[quote.Day];
        }
    }
    if (!file.empty() && !model.Appended.empty()) {
        model.HasGap = model.Appended.front().Day > file.back().Day + std::chrono::days(7);
    }
    for (; model.Days.size() > most; ++model.Leaving) {
        model.Days.erase(model.Days.begin());
    }
    return model;
}

std::vector<DayQuote> ValuesOf(std::map<text::CalendarDay, DayQuote> const& days) {
    std::vector<DayQuote> values;
    for (auto const& one : days) {
        values.push_back(one.second);
    }
    return values;
}

std::vector<DayQuote> Side(std::vector<imports::DayChange> const& changes,
                           DayQuote imports::DayChange::*side) {
    std::vector<DayQuote> quotes;
    for (imports::DayChange const& change : changes) {
        quotes.push_back(change.*side);
    }
    return quotes;
}

// Some days in a row of the series, with days missing and figures changed.
std::vector<DayQuote> SomeDays(std::vector<DayQuote> const& truth, std::size_t most, std::mt19937& random) {
    std::vector<DayQuote> days;
    std::size_t const first = Below(random, truth.size());
    for (std::size_t at = first; at < std::min(first + Below(random, most), truth.size()); ++at) {
        if (Below(random, 8) != 0) {
            days.push_back(truth[at]);
            days.back().Figures[4] += Below(random, 10) == 0 ? 1.0 : 0.0;
            days.back().Figures[1] += Below(random, 10) == 0 ? 0.25 : 0.0;
        }
    }
    return days;
}

// A file that is brought up to date over and over.
TEST(Merge, AgreesWithAModelOverManyUpdates) {
    std::mt19937 random(11);
    constexpr std::size_t Room = 60;
    auto const truth = RandomSeries(random, 400, 500);
    std::vector<DayQuote> file(truth.begin() + 20, truth.begin() + 60);
    std::array<int, 6> seen{};
    for (int update = 0; update < 2000; ++update) {
        auto const days = SomeDays(truth, 30, random);
        bool const replaces = Below(random, 2) == 0;
        auto const model = ModelOf(file, days, replaces, Room);
        auto const merge = MergeDays(file, days, replaces, Room);
        ASSERT_TRUE(AreSameDays(merge.Days, ValuesOf(model.Days))) << update;
        ASSERT_TRUE(AreSameDays(merge.Appended, model.Appended)) << update;
        ASSERT_TRUE(AreSameDays(merge.Inserted, model.Inserted)) << update;
        ASSERT_TRUE(AreSameDays(Side(merge.Changed, &imports::DayChange::Before), model.Before)) << update;
        ASSERT_TRUE(AreSameDays(Side(merge.Changed, &imports::DayChange::After), model.After)) << update;
        ASSERT_EQ(merge.EqualCount, model.Equal) << update;
        ASSERT_EQ(merge.OlderCount, model.Older) << update;
        ASSERT_EQ(merge.LeavingCount, model.Leaving) << update;
        ASSERT_EQ(merge.HasGap, model.HasGap) << update;
        seen[0] += model.Appended.empty() ? 0 : 1;
        seen[1] += model.Inserted.empty() ? 0 : 1;
        seen[2] += model.After.empty() ? 0 : 1;
        seen[3] += model.Older > 0 ? 1 : 0;
        seen[4] += model.Leaving > 0 ? 1 : 0;
        seen[5] += model.HasGap ? 1 : 0;
        bool const startsAnew = Below(random, 40) == 0;
        file = startsAnew ? std::vector<DayQuote>(truth.begin(), truth.begin() + 30) : merge.Days;
    }
    EXPECT_GT(*std::ranges::min_element(seen), 20) << "everything that can happen has happened";
}

// The same through the text of the file, as every evening.
TEST(Merge, AgreesWithAModelThroughTheQuoteFile) {
    std::mt19937 random(12);
    auto const truth = RandomSeries(random, 900, 500);
    std::vector<DayQuote> expected(truth.begin(), truth.begin() + 480);
    std::string text = imports::QuoteText(expected);
    int refusedCount = 0;
    for (int update = 0; update < tests::Repetitions(400); ++update) {
        imports::Conversion conversion;
        conversion.Days = SomeDays(truth, 60, random);
        bool const replaces = Below(random, 2) == 0;
        auto const model = ModelOf(expected, conversion.Days, replaces, Most);
        auto const changed = model.After.size();
        bool const isOther = !replaces && changed >= 5 && changed > model.Equal;
        text::TextSource old(text);
        auto const file = imports::UpdateQuoteFile(old, conversion, replaces, Most);
        ASSERT_EQ(file.Refused.has_value(), isOther) << update;
        if (isOther) {
            ++refusedCount;
            continue;
        }
        expected = ValuesOf(model.Days);
        std::string const updated = imports::QuoteText(file.Days);
        ASSERT_EQ(updated, imports::QuoteText(expected)) << update;
        ASSERT_EQ(file.HasNews(), updated != text) << update;
        text = updated;
    }
    EXPECT_EQ(expected.size(), Most);
    EXPECT_GT(refusedCount, 0);
    EXPECT_LT(refusedCount, tests::Repetitions(200));
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
