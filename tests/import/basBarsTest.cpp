// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basBars.h"

#include "Tables.h"
#include "import/basTelling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace quorvex::imports {
namespace {

using testing::Contains;
using testing::Not;
using tests::ImportText;
using tests::RefusalOf;

constexpr text::CalendarDay Monday{std::chrono::year{2024} / 1 / 1};

std::vector<text::CalendarDay> DaysAt(std::vector<int> const& offsets) {
    std::vector<text::CalendarDay> days;
    for (int const offset : offsets) {
        days.push_back(Monday + std::chrono::days(offset));
    }
    return days;
}

// A row at each of these days behind a Monday.
std::string TableAt(std::vector<int> const& offsets) {
    std::string table = "Date,Open,High,Low,Close\n";
    for (text::CalendarDay const day : DaysAt(offsets)) {
        table += text::FormatDate(day) + ",10,12,9,11\n";
    }
    return table;
}

std::string TableEvery(int distance, int rows) {
    std::vector<int> offsets;
    for (int row = 0; row < rows; ++row) {
        offsets.push_back(row * distance);
    }
    return TableAt(offsets);
}

Choices AsMonthsFirst() {
    return tests::Chosen(&Choices::DateOrder, DateOrder::MonthDayYear);
}

std::string RefusalOfRows(std::string const& table) {
    return RefusalOf(ImportText(table, AsMonthsFirst()));
}

TEST(MedianDistance, IsThatOfDifferentDaysInOrder) {
    EXPECT_EQ(MedianDistance({}), 0);
    EXPECT_EQ(MedianDistance(DaysAt({3})), 0);
    EXPECT_EQ(MedianDistance(DaysAt({3, 3})), 0);
    EXPECT_EQ(MedianDistance(DaysAt({7, 0})), 7);
    EXPECT_EQ(MedianDistance(DaysAt({0, 1, 2, 3, 4, 7, 8, 30})), 1);
    EXPECT_EQ(MedianDistance(DaysAt({14, 0, 7, 7, 21, 40})), 7);
    EXPECT_EQ(MedianDistance(DaysAt({0, 2, 9})), 2) << "the lower one of two";
}

TEST(DescribeBars, NamesWhatTheDistanceTells) {
    EXPECT_EQ(DescribeBars(2), "Days are missing: the median distance of the days is 2");
    EXPECT_EQ(DescribeBars(4), "Days are missing: the median distance of the days is 4");
    EXPECT_EQ(DescribeBars(5), "The rows are not daily: the median distance of the days is 5");
    EXPECT_EQ(DescribeBars(7), "The rows look weekly, not daily: the median distance of the days is 7");
    EXPECT_EQ(DescribeBars(31), "The rows look monthly, not daily: the median distance of the days is 31");
    EXPECT_EQ(DescribeBars(91), "The rows look quarterly, not daily: the median distance of the days is 91");
    EXPECT_EQ(DescribeBars(365), "The rows look yearly, not daily: the median distance of the days is 365");
}

TEST(Bars, OfWeeksAndMonthsAreRefused) {
    auto const weekly = ImportText(TableEvery(7, 30), AsMonthsFirst());
    EXPECT_EQ(RefusalOf(weekly), "0: The rows look weekly, not daily: the median distance of the days is 7");
    EXPECT_EQ(weekly.Refused->SettledBy, Choice::Bars);
    EXPECT_EQ(RefusalOfRows(TableEvery(31, 30)),
              "0: The rows look monthly, not daily: the median distance of the days is 31");
    EXPECT_EQ(RefusalOfRows(TableEvery(7, 4)),
              "0: The rows look weekly, not daily: the median distance of the days is 7");
}

TEST(Bars, OfDaysAreTakenWhateverIsMissing) {
    EXPECT_EQ(RefusalOfRows(TableEvery(7, 3)), "") << "three days with holidays between tell nothing";
    EXPECT_EQ(RefusalOfRows(TableAt({0, 1, 2, 3, 4, 7, 8, 9, 10, 11, 60})), "");
    EXPECT_THAT(FindingLines(ImportText(TableEvery(1, 30), AsMonthsFirst())),
                Not(Contains(testing::HasSubstr("median"))));
}

TEST(Bars, ThatLieSomeDaysApartAreTold) {
    auto const sparse = ImportText(TableEvery(3, 30), AsMonthsFirst());
    EXPECT_EQ(RefusalOf(sparse), "");
    EXPECT_EQ(sparse.DaysApart, 3);
    EXPECT_THAT(FindingLines(sparse), Contains("Days are missing: the median distance of the days is 3"));
}

TEST(Bars, OfAnyLengthAreTakenOnRequestAndTold) {
    Choices any = AsMonthsFirst();
    any.TakesAnyBars = true;
    auto const weekly = ImportText(TableEvery(7, 30), any);
    EXPECT_EQ(RefusalOf(weekly), "");
    EXPECT_EQ(weekly.Days.size(), 30U);
    EXPECT_THAT(FindingLines(weekly),
                Contains("The rows look weekly, not daily: the median distance of the days is 7"));
}

} // namespace
} // namespace quorvex::imports
