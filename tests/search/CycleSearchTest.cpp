// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/CycleSearch.h"

#include "PlainSearch.h"
#include "search/Pursuit.h"
#include "support/Sanitizers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

namespace quorvex::search {
namespace {

using tests::GoOnAlways;
using tests::Randomness;
using tests::Series;

std::vector<int> PeriodsBetween(int least, int most) {
    std::vector<int> periods(static_cast<std::size_t>(most - least + 1));
    std::iota(periods.begin(), periods.end(), least);
    return periods;
}

std::vector<CycleModel> Find(Series const& series, int cycleCount, std::vector<int> periods,
                             Effort effort = Effort::Thorough) {
    CycleSearch search(static_cast<int>(series.size()), std::move(periods));
    return search.Find(series, {cycleCount, effort}, GoOnAlways);
}

std::vector<CycleModel> Find(Series const& series, int cycleCount) {
    return Find(series, cycleCount, PeriodsBetween(5, static_cast<int>(series.size()) / 2));
}

std::set<std::pair<int, int>> PlacesOf(CycleModel const& model) {
    std::set<std::pair<int, int>> places;
    for (FoundCycle const& cycle : model.Cycles) {
        places.insert({cycle.Period, cycle.Shift});
    }
    return places;
}

// Models as the search is to give them, whatever it found.
void ExpectWellFormed(CycleModel const& model, std::size_t mostCycles, int minPeriod, int maxPeriod) {
    int sum = 0;
    ASSERT_FALSE(model.Cycles.empty());
    EXPECT_LE(model.Cycles.size(), mostCycles);
    for (FoundCycle const& cycle : model.Cycles) {
        EXPECT_GE(cycle.Weight, 1);
        EXPECT_LE(cycle.Weight, 100);
        EXPECT_GE(cycle.Period, minPeriod);
        EXPECT_LE(cycle.Period, maxPeriod);
        EXPECT_LE(std::abs(cycle.Shift), 99);
        sum += cycle.Weight;
    }
    EXPECT_GE(sum, 95);
    EXPECT_LE(sum, 105);
    for (FoundCycle const& cycle : model.Cycles) {
        EXPECT_LT(std::fabs(cycle.Weight * 100.0 / sum - cycle.Weight), 0.5) << "scaling would change it";
    }
    EXPECT_EQ(PlacesOf(model).size(), model.Cycles.size());
    EXPECT_TRUE(std::is_sorted(model.Cycles.begin(), model.Cycles.end(),
                               [](auto const& a, auto const& b) { return a.Weight > b.Weight; }));
    EXPECT_GT(model.Correlation, 0);
    EXPECT_LE(model.Correlation, 1 + 1e-12);
}

TEST(CycleSearch, OneCycleIsTheBestOfAllPeriodsAndShifts) {
    for (int const days : {25, 26, 40, 61}) {
        for (std::uint32_t seed = 1; seed <= tests::Repetitions(6U); ++seed) {
            SCOPED_TRACE(std::to_string(days) + " days, seed " + std::to_string(seed));
            Series const series = Randomness(seed).Walk(days);
            CycleModel const expected = tests::BestOneCycle(series, 5, days / 2);
            CycleModel const found = Find(series, 1).front();
            ASSERT_EQ(found.Cycles.size(), 1U);
            EXPECT_NEAR(found.Correlation, expected.Correlation, 1e-10);
            EXPECT_EQ(found.Cycles.front().Weight, 100);
            EXPECT_EQ(PlacesOf(found), PlacesOf(expected));
            EXPECT_NEAR(found.Cycles.front().Adds, found.Correlation, 1e-15);
        }
    }
}

TEST(CycleSearch, OneCycleIsTheBestOfShortAndLongPeriodsToo) {
    Series const series = Randomness(3).Walk(30);
    CycleModel const expected = tests::BestOneCycle(series, 2, 90);
    EXPECT_NEAR(Find(series, 1, PeriodsBetween(2, 90)).front().Correlation, expected.Correlation, 1e-9);
}

Series UpAndDown(int days) {
    Series series;
    for (int day = 0; day < days; ++day) {
        series.push_back(day % 2 == 0 ? 1 : -1);
    }
    return series;
}

TEST(CycleSearch, OfEqualShiftsTakesTheSmaller) {
    // A period of 2 is up and down with any shift, only in other heights.
    CycleModel const found = Find(UpAndDown(40), 1, {2}).front();
    EXPECT_EQ(found.Cycles.front().Shift, -3);
    EXPECT_NEAR(found.Correlation, 1, 1e-12);
}

TEST(CycleSearch, TryingHarderFindsNothingWorse) {
    for (std::uint32_t seed = 1; seed <= tests::Repetitions(20U); ++seed) {
        Series const series = Randomness(seed).Walk(60);
        auto const quick = Find(series, 3, PeriodsBetween(5, 30), Effort::Quick);
        auto const thorough = Find(series, 3, PeriodsBetween(5, 30), Effort::Thorough);
        for (std::size_t count = 0; count < quick.size(); ++count) {
            EXPECT_GE(thorough[count].Correlation, quick[count].Correlation - 0.003) << seed << ' ' << count;
        }
    }
}

TEST(CycleSearch, FindsAPlantedCycleAgain) {
    for (auto const& [period, shift] : {std::pair(20, 5), {33, -7}, {12, 0}, {50, 2}, {41, 99}, {7, -3}}) {
        SCOPED_TRACE(std::to_string(period) + " " + std::to_string(shift));
        CycleModel const found = Find(tests::CurveOf(period, shift, 120), 1).front();
        EXPECT_EQ(PlacesOf(found), (std::set<std::pair<int, int>>{{period, shift}}));
        EXPECT_NEAR(found.Correlation, 1, 1e-12);
    }
}

TEST(CycleSearch, FindsTwoAndThreePlantedCyclesAgain) {
    CycleModel const two = {{{70, 60, 4, 0}, {30, 17, -9, 0}}, 1};
    CycleModel const three = {{{50, 80, -5, 0}, {30, 31, 12, 0}, {20, 11, 3, 0}}, 1};
    for (CycleModel const& planted : {two, three}) {
        auto const models = Find(tests::CompositeOf(planted, 250), static_cast<int>(planted.Cycles.size()));
        CycleModel const& found = models.back();
        EXPECT_EQ(PlacesOf(found), PlacesOf(planted));
        EXPECT_GT(found.Correlation, 0.9999);
        for (std::size_t i = 0; i < planted.Cycles.size(); ++i) {
            EXPECT_NEAR(found.Cycles[i].Weight, planted.Cycles[i].Weight, 1);
        }
    }
}

TEST(CycleSearch, FindsPlantedCyclesUnderNoise) {
    CycleModel const planted = {{{60, 90, 6, 0}, {40, 26, -4, 0}}, 1};
    Series series = tests::CompositeOf(planted, 400);
    Randomness random(4);
    for (double& value : series) {
        value += 25 * random.Next();
    }
    CycleModel const found = Find(series, 2).back();
    ASSERT_EQ(found.Cycles.size(), 2U);
    EXPECT_NEAR(found.Cycles[0].Period, 90, 2);
    EXPECT_NEAR(found.Cycles[1].Period, 26, 1);
    EXPECT_GE(found.Correlation, tests::PlainCorrelation(tests::CompositeOf(planted, 400), series) - 1e-9);
}

TEST(CycleSearch, TellsTheCorrelationOfTheCompositeAndWhatEachCycleAdds) {
    Series const series = Randomness(8).Walk(90);
    for (CycleModel const& model : Find(series, 5)) {
        EXPECT_NEAR(model.Correlation, tests::PlainCorrelation(tests::CompositeOf(model, 90), series), 1e-10);
        for (std::size_t i = 0; i < model.Cycles.size(); ++i) {
            CycleModel without = model;
            without.Cycles.erase(without.Cycles.begin() + static_cast<std::ptrdiff_t>(i));
            double const rest =
                std::max(0.0, tests::PlainCorrelation(tests::CompositeOf(without, 90), series));
            EXPECT_NEAR(model.Cycles[i].Adds, model.Correlation - rest, 1e-10);
        }
    }
}

TEST(CycleSearch, TwoCyclesAreAtLeastWhatPlainPursuitFinds) {
    for (std::uint32_t seed = 1; seed <= tests::Repetitions(4U); ++seed) {
        Series const series = Randomness(seed).Walk(40);
        double const expected = tests::PursueTwoCycles(series, 5, 20);
        EXPECT_GE(Find(series, 2).back().Correlation, expected - 0.003) << seed;
    }
}

TEST(CycleSearch, MoreCyclesNeverFollowWorse) {
    for (std::uint32_t seed = 1; seed <= tests::Repetitions(5U); ++seed) {
        auto const models = Find(Randomness(seed).Walk(100), 10);
        ASSERT_EQ(models.size(), 10U);
        for (std::size_t count = 0; count < models.size(); ++count) {
            ExpectWellFormed(models[count], count + 1, 5, 50);
            if (count > 0) {
                EXPECT_GE(models[count].Correlation, models[count - 1].Correlation);
            }
        }
        EXPECT_GT(models.back().Correlation, models.front().Correlation);
    }
}

TEST(CycleSearch, FewerCyclesDoNotDependOnHowManyAreAskedFor) {
    Series const series = Randomness(9).Walk(80);
    auto const ten = Find(series, 10);
    auto const three = Find(series, 3);
    ASSERT_EQ(three.size(), 3U);
    for (std::size_t count = 0; count < three.size(); ++count) {
        EXPECT_EQ(three[count].Cycles, ten[count].Cycles);
        EXPECT_EQ(three[count].Correlation, ten[count].Correlation);
    }
}

TEST(CycleSearch, DoesNotDependOnTheOrderOfThePeriods) {
    Series const series = Randomness(10).Walk(100);
    std::vector<int> periods = PeriodsBetween(5, 50);
    auto const expected = Find(series, 4, periods);
    Randomness random(1);
    for (int trial = 0; trial < 5; ++trial) {
        for (std::size_t i = periods.size() - 1; i > 0; --i) {
            auto const other = static_cast<std::size_t>((random.Next() + 1) / 2 * static_cast<double>(i));
            std::swap(periods[i], periods[other]);
        }
        auto const found = Find(series, 4, periods);
        for (std::size_t count = 0; count < expected.size(); ++count) {
            EXPECT_EQ(found[count].Cycles, expected[count].Cycles);
        }
    }
}

TEST(CycleSearch, OneObjectServesManySeries) {
    CycleSearch search(60, PeriodsBetween(5, 30));
    for (std::uint32_t seed = 1; seed <= 3; ++seed) {
        Series const series = Randomness(seed).Walk(60);
        EXPECT_EQ(search.Find(series, {.CycleCount = 3}, GoOnAlways).back().Cycles,
                  Find(series, 3).back().Cycles);
    }
}

TEST(CycleSearch, DoesNotDependOnTheUnitOrTheLevelOfTheSeries) {
    Series const series = Randomness(12).Walk(70);
    auto const expected = Find(series, 3).back();
    for (auto const& [factor, level] : {std::pair(1e150, 0.0), {1e-150, 0.0}, {1.0, -400.0}, {0.25, 1e4}}) {
        Series scaled = series;
        for (double& value : scaled) {
            value = value * factor + level;
        }
        CycleModel const found = Find(scaled, 3).back();
        EXPECT_EQ(PlacesOf(found), PlacesOf(expected)) << factor << ' ' << level;
        EXPECT_NEAR(found.Correlation, expected.Correlation, 1e-8);
    }
}

TEST(CycleSearch, WholeWeightsFollowAlmostAsWellAsAnyOthers) {
    for (std::uint32_t seed = 1; seed <= tests::Repetitions(8U); ++seed) {
        int const days = 25 + static_cast<int>(seed) * 10;
        Series const series = Randomness(seed).Walk(days);
        for (CycleModel const& model : Find(series, 5)) {
            EXPECT_LE(tests::CorrelationWithAnyWeights(model, series) - model.Correlation, 0.003 + 1e-6)
                << seed;
        }
    }
}

// Half the way from the lowest to the highest value of the composite, by plain sines.
double SwingOf(CycleModel const& model, int days) {
    double lowest = 0;
    double highest = 0;
    for (double const value : tests::CompositeOf(model, days)) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    return (highest - lowest) / 2;
}

TEST(CycleSearch, TheCompositeSwingsAsFarAsItIsToldTo) {
    for (std::uint32_t seed = 1; seed <= tests::Repetitions(6U); ++seed) {
        int const days = 60 + static_cast<int>(seed) * 20;
        Series const series = Randomness(seed).Walk(days);
        CycleSearch search(days, PeriodsBetween(5, days / 2));
        auto const free = search.Find(series, {.CycleCount = 4}, GoOnAlways);
        for (int const least : {10, 30, 60}) {
            auto const models = search.Find(series, {.CycleCount = 4, .LeastSwing = least}, GoOnAlways);
            ASSERT_EQ(models.size(), free.size());
            EXPECT_EQ(models.front().Cycles, free.front().Cycles); // one cycle swings as far as it can
            for (std::size_t count = 1; count < models.size(); ++count) {
                ExpectWellFormed(models[count], count + 1, 5, days / 2);
                EXPECT_GE(SwingOf(models[count], days), least - 1e-6) << seed << ' ' << least;
                EXPECT_GE(models[count].Correlation, models[count - 1].Correlation);
            }
        }
    }
}

TEST(CycleSearch, ATrendIsFollowedWithAVisibleSwing) {
    // Two long waves that almost cancel each other follow a line best.
    Series line(100);
    std::iota(line.begin(), line.end(), 0);
    CycleSearch search(100, PeriodsBetween(5, 50));
    auto const free = search.Find(line, {.CycleCount = 3}, GoOnAlways).back();
    auto const lively = search.Find(line, {.CycleCount = 3, .LeastSwing = 30}, GoOnAlways).back();
    EXPECT_LT(SwingOf(free, 100), 30);
    EXPECT_GE(SwingOf(lively, 100), 30 - 1e-6);
    EXPECT_GT(lively.Correlation, free.Correlation - 0.4);
    EXPECT_GT(free.Correlation, lively.Correlation);
}

TEST(CycleSearch, QuickModelsAreWellFormedToo) {
    for (CycleModel const& model : Find(Randomness(2).Walk(120), 5, PeriodsBetween(5, 60), Effort::Quick)) {
        ExpectWellFormed(model, 5, 5, 60);
    }
}

TEST(CycleSearch, FindsNothingInASeriesWithoutAChange) {
    EXPECT_TRUE(Find(Series(50, 7.25), 3).empty());
    EXPECT_TRUE(Find(Series(50, 0), 3).empty());
}

TEST(CycleSearch, SearchesTwentyFiveDays) {
    auto const models = Find(Randomness(1).Walk(25), 10);
    ASSERT_EQ(models.size(), 10U);
    ExpectWellFormed(models.back(), 10, 5, 12);
}

TEST(CycleSearch, APeriodThatFitsNowhereBetterLeavesTheModelsAsTheyAre) {
    // Of one period there are two independent waves at most.
    auto const models = Find(Randomness(6).Walk(60), 10, {9});
    ASSERT_EQ(models.size(), 10U);
    EXPECT_LE(models.back().Cycles.size(), 3U);
    EXPECT_EQ(models[9].Correlation, models[4].Correlation);
}

TEST(CycleSearch, EndsWhenItIsToldTo) {
    Series const series = Randomness(3).Walk(500);
    int asked = 0;
    CycleSearch search(500, PeriodsBetween(5, 250));
    auto const models = search.Find(series, {.CycleCount = 10}, [&asked] { return ++asked < 20; });
    EXPECT_TRUE(models.empty());
    EXPECT_LT(asked, 1000);
}

} // namespace
} // namespace quorvex::search
