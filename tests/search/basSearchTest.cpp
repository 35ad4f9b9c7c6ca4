// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearch.h"

#include "PlainSearch.h"
#include "cycles/basCorrel.h"
#include "cycles/basCurves.h"
#include "platform/PendingMessages.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace quorvex::search {
namespace {

using tests::GoOnAlways;
using tests::Randomness;
using tests::Series;

TEST(SearchSeries, RefusesARangeThatHoldsNoPeriod) {
    auto const outcome = SearchSeries(Randomness(1).Walk(40), {.MinPeriod = 30}, GoOnAlways);
    EXPECT_EQ(outcome.Refusal, "No period lies between 30 and 20 days (half the days)");
    EXPECT_TRUE(outcome.Models.empty());
}

TEST(SearchSeries, TakesARangeOfOnePeriod) {
    auto const outcome = SearchSeries(Randomness(1).Walk(40), {.CycleCount = 1, .MinPeriod = 20}, GoOnAlways);
    EXPECT_EQ(outcome.Refusal, "");
    EXPECT_EQ(outcome.Models.front().Cycles.front().Period, 20);
}

TEST(SearchSeries, LooksUpToHalfTheDaysUnlessToldOtherwise) {
    Series const slow = tests::CurveOf(55, 0, 60);
    EXPECT_LE(SearchSeries(slow, {.CycleCount = 1}, GoOnAlways).Models.front().Cycles.front().Period, 30);
    EXPECT_EQ(SearchSeries(slow, {.CycleCount = 1, .MaxPeriod = 60}, GoOnAlways)
                  .Models.front()
                  .Cycles.front()
                  .Period,
              55);
    EXPECT_EQ(MaxPeriodOf({}, 25), 12);
    EXPECT_EQ(MaxPeriodOf({.MaxPeriod = 77}, 25), 77);
}

TEST(SearchSeries, RefusesAMovingAverageWithoutAChange) {
    auto const outcome = SearchSeries(Series(30, 12.5), {}, GoOnAlways);
    EXPECT_EQ(outcome.Refusal, "The moving average does not change: there is no cycle in it");
    EXPECT_TRUE(outcome.Models.empty());
}

TEST(SearchSeries, RefusesAStraightLineWithoutItsTrend) {
    Series line;
    for (int day = 0; day < 30; ++day) {
        line.push_back(80 + 0.3 * day);
    }
    auto const outcome = SearchSeries(line, {.Detrend = true}, GoOnAlways);
    EXPECT_EQ(outcome.Refusal, "The moving average is a straight line: there is no cycle in it");
    EXPECT_EQ(SearchSeries(line, {}, GoOnAlways).Refusal, "");
}

TEST(SearchSeries, RefusesWhatNoCycleOfTheRangeFollows) {
    // Symmetrical about its middle, while the period 2 over four days is the opposite.
    Series const series = {1, 2, 2, 1};
    auto const outcome = SearchSeries(series, {.MinPeriod = 2, .MaxPeriod = 2}, GoOnAlways);
    EXPECT_EQ(outcome.Refusal, "No cycle of 2 to 2 days follows the moving average");
    EXPECT_TRUE(outcome.Models.empty());
}

TEST(SearchSeries, FindsTheCycleOnATrendWithoutTheTrend) {
    Series series = tests::CurveOf(15, 7, 120);
    for (std::size_t day = 0; day < series.size(); ++day) {
        series[day] += 0.5 * static_cast<double>(day);
    }
    auto const found = SearchSeries(series, {.CycleCount = 1, .Detrend = true}, GoOnAlways).Models.front();
    EXPECT_EQ(found.Cycles.front().Period, 15);
    EXPECT_GT(found.Correlation, 0.99);
}

TEST(SearchSeries, SaysNothingWhenItWasEnded) {
    auto const outcome = SearchSeries(Randomness(1).Walk(100), {}, [] { return false; });
    EXPECT_EQ(outcome.Refusal, "");
    EXPECT_TRUE(outcome.Models.empty());
}

TEST(WithoutLine, LeavesWhatIsNoLine) {
    Series const rest = WithoutLine(Series{1, 3, 5, 7});
    for (double const value : rest) {
        EXPECT_NEAR(value, 0, 1e-14);
    }
    Series const zigzag = WithoutLine(Series{0, 3, 3, 6, 6, 9});
    EXPECT_NEAR(zigzag[0] + zigzag[5], 0, 1e-13);
    double sum = 0;
    double moment = 0;
    for (std::size_t day = 0; day < zigzag.size(); ++day) {
        sum += zigzag[day];
        moment += zigzag[day] * static_cast<double>(day);
    }
    EXPECT_NEAR(sum, 0, 1e-13);
    EXPECT_NEAR(moment, 0, 1e-13);
    EXPECT_EQ(WithoutLine(Series{4}), Series{0});
}

TEST(WriteModel, LeavesNothingElseInTheGrid) {
    cycles::TextGrid grid;
    grid.SetText(cycles::Parameter::Decay, 1, "8");
    grid.SetText(cycles::Parameter::Weight, 7, "50");
    WriteModel({{{60, 40, -3, 0}, {40, 9, 0, 0}}, 0.9}, grid);
    EXPECT_EQ(grid.Text(cycles::Parameter::Weight, 1), "60");
    EXPECT_EQ(grid.Text(cycles::Parameter::Period, 1), "40");
    EXPECT_EQ(grid.Text(cycles::Parameter::Shift, 1), "-3");
    EXPECT_EQ(grid.Text(cycles::Parameter::Decay, 1), "0");
    EXPECT_EQ(grid.Text(cycles::Parameter::Weight, 2), "40");
    EXPECT_EQ(grid.Text(cycles::Parameter::Weight, 3), "0");
    EXPECT_EQ(grid.Text(cycles::Parameter::Weight, 7), "0");
}

// What the Correlation command would report of the model in the grid.
double ReportedCorrelation(CycleModel const& model, cycles::CycleCurves& curves, std::int16_t days) {
    cycles::TextGrid grid;
    WriteModel(model, grid);
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    platform::NoPendingMessages pending;
    EXPECT_TRUE(cycles::ReadGrid(grid, *set, pending));
    for (std::size_t i = 0; i < model.Cycles.size(); ++i) {
        EXPECT_EQ(set->Cycles[static_cast<std::ptrdiff_t>(i) + 1].Weight, model.Cycles[i].Weight);
    }
    cycles::ComputeCycleValues(*set, days);
    cycles::ComputeComposite(*set, days, curves.CompositeCurve);
    return cycles::CoefficientOfCorrelation(curves, days).value_or(-1);
}

TEST(SearchMovingAverage, FindsTheCorrelationThatTheProgramThenReports) {
    for (std::int16_t const days : {std::int16_t{25}, std::int16_t{125}, std::int16_t{500}}) {
        auto const curves = std::make_unique<cycles::CycleCurves>();
        Series const walk = Randomness(static_cast<std::uint32_t>(days)).Walk(days);
        for (std::int16_t day = 1; day <= days; ++day) {
            curves->MovingAverageCurve[day] = walk[static_cast<std::size_t>(day) - 1];
        }
        auto const outcome = SearchMovingAverage(*curves, days, {.CycleCount = 4}, GoOnAlways);
        for (CycleModel const& model : outcome.Models) {
            EXPECT_NEAR(ReportedCorrelation(model, *curves, days), model.Correlation, 1e-9) << days;
        }
    }
}

} // namespace
} // namespace quorvex::search
