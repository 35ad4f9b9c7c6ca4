// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearchReading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvex::search {
namespace {

CycleModel const One{{{100, 40, 0, 0.6}}, 0.6};
CycleModel const Two{{{70, 40, -7, 0.31}, {30, 12, 5, 0.123456}}, 0.72};

TEST(SearchReading, SharesArePercentagesWithTwoDecimals) {
    EXPECT_EQ(ShareText(0.80714), "80.71%");
    EXPECT_EQ(ShareText(0.0005), "0.05%");
    EXPECT_EQ(ShareText(1), "100.00%");
}

TEST(SearchReading, EveryCycleHasARow) {
    EXPECT_THAT(ModelRows(Two), testing::ElementsAre(CycleRow{"70", "40", "-7", "31.00%"},
                                                     CycleRow{"30", "12", "5", "12.35%"}));
}

TEST(SearchReading, TheModelIsTheOneOfTheGrid) {
    EXPECT_EQ(
        DescribeModel(One, 1, false, {0.59, {-100, 99.6}}),
        "1 cycle follows the moving average with a correlation of 59.00%. The composite swings from -100 "
        "to 100.");
    EXPECT_EQ(
        DescribeModel(Two, 2, false, {std::nullopt, {-8.8, 7.4}}),
        "2 cycles follow the moving average with a correlation of 72.00%. The composite swings from -9 to "
        "7.");
}

TEST(SearchReading, AModelWithoutTheTrendTellsBothCorrelations) {
    EXPECT_EQ(
        DescribeModel(Two, 2, true, {0.5, {-40, 50}}),
        "2 cycles follow the moving average less its trend with a correlation of 72.00%, with its trend of "
        "50.00%. The composite swings from -40 to 50.");
    EXPECT_EQ(DescribeModel(Two, 2, true, {std::nullopt, {-40, 50}}),
              "2 cycles follow the moving average less its trend with a correlation of 72.00%. The composite "
              "swings from -40 to 50.");
}

TEST(SearchReading, AModelOfFewerCyclesThanChosenSaysWhy) {
    EXPECT_EQ(DescribeModel(Two, 4, false, {0.72, {-40, 50}}),
              "2 cycles follow the moving average with a correlation of 72.00%; no better model of 4 cycles "
              "was found. The "
              "composite swings from -40 to 50.");
}

TEST(SearchReading, EachCountTellsWhatItAdds) {
    std::vector const models = {One, Two};
    EXPECT_EQ(DescribeCount(models, 1), "1 cycle\nCorrelation: 60.00%");
    EXPECT_EQ(DescribeCount(models, 2), "2 cycles\nCorrelation: 72.00%\nMore than with 1 cycle: 12.00%");
    EXPECT_EQ(DescribeCount(models, 3), "");
    EXPECT_EQ(DescribeCount(models, 0), "");
}

TEST(SearchReading, TheCurveIsToldInWords) {
    EXPECT_EQ(DescribeSearch({}, 3), "Nothing was found yet.");
    std::vector const models = {One, Two};
    EXPECT_EQ(DescribeSearch(models, 1),
              "Correlation by number of cycles: 1 60.00%, 2 72.00%. Chosen: 1 cycle.");
}

} // namespace
} // namespace quorvex::search
