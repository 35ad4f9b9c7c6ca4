// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basForecasts.h"

#include "MadeSeries.h"
#include "cycles/ParameterGrid.h"
#include "cycles/basAutomate.h"
#include "cycles/basComputation.h"
#include "search/basSearch.h"
#include "settings/Settings.h"
#include "support/Approximate.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::evaluation {
namespace {

using tests::CyclicCloses;
using tests::IsClose;
using tests::RecordsOf;
using tests::SeriesOfCloses;

bool SearchOn() {
    return true;
}

std::vector<ModelForecast> ForecastsOf(quotes::QuoteSeries const& series, Plan const& plan) {
    return ForecastsAt(RecordsOf(series), plan, SearchOn);
}

// What the program shows after the routine has put cycles into the grid.
struct Shown {
    template <class Routine>
    Shown(quotes::QuoteSeries const& quotes, Routine&& fill) {
        settings::Settings settings = settings::DefaultSettings("./");
        settings.MovingAverageIndex = "5";
        cycles::ComputeQuoteCurves(quotes, settings, *Curves);
        cycles::TextGrid grid;
        cycles::ClearGrid(grid);
        fill(grid, *this);
        platform::NoPendingMessages pending;
        EXPECT_TRUE(cycles::ReadGrid(grid, *Set, pending));
        cycles::ComputeCurves(quotes, settings, *Set, *Curves);
        Window = cycles::ComputeForecast(*Set, quotes);
    }

    std::unique_ptr<cycles::CycleCurves> Curves = std::make_unique<cycles::CycleCurves>();
    std::unique_ptr<cycles::CycleParameterSet> Set = std::make_unique<cycles::CycleParameterSet>();
    cycles::ForecastCurve Window;
};

void ExpectShown(ModelForecast const& forecast, quotes::QuoteSeries const& series, Shown const& shown) {
    int const n = series.WorkingCount;
    ASSERT_EQ(forecast.Fault, "");
    auto const& scale = shown.Curves->PriceScale;
    auto const& composite = shown.Curves->CompositeCurve;
    for (int day = 1; day <= cycles::ForecastDays; ++day) {
        EXPECT_EQ((*forecast.Of(ForecastKind::Window))[day], shown.Window[day]);
        double const change = composite[n + day] - composite[n];
        EXPECT_TRUE(
            IsClose((*forecast.Of(ForecastKind::Composite))[day],
                    series.Working[n].Close + change * (scale.PriceScaleHigh - scale.PriceScaleLow) / 200));
    }
}

TEST(Origins, AreEveryFifthDayFromTheMiddleToTwentyFiveDaysBeforeTheEnd) {
    auto const origins = OriginsOf(500, 5);
    EXPECT_EQ(origins.size(), 46U);
    EXPECT_EQ(origins.front(), 250);
    EXPECT_EQ(origins.at(1), 255);
    EXPECT_EQ(origins.back(), 475);
}

TEST(Origins, BeginAtDayHundredOfShortSeries) {
    EXPECT_EQ(OriginsOf(160, 7), (std::vector<int>{100, 107, 114, 121, 128, 135}));
    EXPECT_EQ(OriginsOf(125, 5), std::vector<int>{100});
    EXPECT_TRUE(OriginsOf(124, 5).empty());
    EXPECT_TRUE(OriginsOf(0, 1).empty());
}

TEST(Forecasts, OfAFitAreThoseOfTheProgram) {
    auto const series = SeriesOfCloses(CyclicCloses(160, 1));
    for (int const count : {1, 2, 3}) {
        Shown const shown(*series, [&](cycles::ParameterGrid& grid, Shown& made) {
            std::vector<cycles::SinusoidFit> fits;
            cycles::AutomateCycles(count, series->WorkingCount, *made.Curves, *made.Set, grid, fits);
        });
        auto const forecasts = ForecastsOf(*series, {{{Method::Automate, count}}, 5, nullptr});
        ASSERT_EQ(forecasts.size(), 1U);
        ExpectShown(forecasts.front(), *series, shown);
    }
}

TEST(Forecasts, OfASearchAreThoseOfTheProgram) {
    auto const series = SeriesOfCloses(CyclicCloses(160, 2));
    auto const forecasts =
        ForecastsOf(*series, {{{Method::Search, 3}, {Method::Search, 1}, {Method::Search, 2}}, 5, nullptr});
    ASSERT_EQ(forecasts.size(), 3U);
    std::size_t position = 0;
    for (int const count : {3, 1, 2}) {
        Shown const shown(*series, [&](cycles::ParameterGrid& grid, Shown& made) {
            search::SearchRequest request;
            request.CycleCount = count;
            request.HowHard = search::Effort::Quick;
            auto const found =
                search::SearchMovingAverage(*made.Curves, series->WorkingCount, request, SearchOn);
            search::WriteModel(found.Models.back(), grid);
        });
        ExpectShown(forecasts.at(position), *series, shown);
        ++position;
    }
}

TEST(Forecasts, OfParametersAreThoseOfTheProgram) {
    auto const series = SeriesOfCloses(CyclicCloses(160, 3));
    Shown const shown(*series, [](cycles::ParameterGrid& grid, Shown&) {
        cycles::WriteCell(grid, cycles::Parameter::Weight, 2, 100);
        cycles::WriteCell(grid, cycles::Parameter::Period, 2, 47);
        cycles::WriteCell(grid, cycles::Parameter::Shift, 2, -8);
    });
    auto const forecasts = ForecastsOf(*series, {{{Method::Parameters, 0}}, 5, shown.Set.get()});
    ExpectShown(forecasts.front(), *series, shown);
}

TEST(Forecasts, ScaledOnesHaveTheHeightThatFitsTheMovingAverage) {
    auto const series = SeriesOfCloses(CyclicCloses(160, 4));
    Shown const shown(*series, [](cycles::ParameterGrid& grid, Shown&) {
        cycles::WriteCell(grid, cycles::Parameter::Weight, 1, 100);
        cycles::WriteCell(grid, cycles::Parameter::Period, 1, 20);
    });
    auto const forecast = ForecastsOf(*series, {{{Method::Parameters, 0}}, 5, shown.Set.get()}).front();
    auto const& composite = shown.Curves->CompositeCurve;
    auto const& average = shown.Curves->MovingAverageCurve;
    double meanX = 0;
    double meanY = 0;
    for (int day = 1; day <= 160; ++day) {
        meanX += composite[day] / 160;
        meanY += average[day] / 160;
    }
    double common = 0;
    double spread = 0;
    for (int day = 1; day <= 160; ++day) {
        common += (composite[day] - meanX) * (average[day] - meanY);
        spread += (composite[day] - meanX) * (composite[day] - meanX);
    }
    EXPECT_NEAR(common / spread * 100, 30, 5); // the amplitude of that cycle
    for (int day = 1; day <= cycles::ForecastDays; ++day) {
        EXPECT_TRUE(
            IsClose((*forecast.Of(ForecastKind::Scaled))[day],
                    series->Working[160].Close + common / spread * (composite[160 + day] - composite[160])));
    }
}

TEST(Forecasts, ScaledOnesAreNeverUpsideDown) {
    std::vector<double> closes;
    for (int day = 1; day <= 160; ++day) {
        closes.push_back(100 - 10 * std::sin(2 * 3.14159265358979 * day / 20));
    }
    auto const series = SeriesOfCloses(closes);
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    set->Cycles[1].Weight = 100;
    set->Cycles[1].Period = 20;
    auto const forecast = ForecastsOf(*series, {{{Method::Parameters, 0}}, 5, set.get()}).front();
    for (int day = 1; day <= cycles::ForecastDays; ++day) {
        EXPECT_EQ((*forecast.Of(ForecastKind::Scaled))[day], closes.back());
    }
}

TEST(Forecasts, ScaledOnesOfACycleThatNeverSwingsStayAtTheLastClose) {
    std::vector<double> closes;
    for (int day = 1; day <= 160; ++day) {
        closes.push_back(500 - day);
    }
    auto const series = SeriesOfCloses(closes);
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    set->Cycles[1].Weight = 100;
    set->Cycles[1].Period = 1;
    auto const forecast = ForecastsOf(*series, {{{Method::Parameters, 0}}, 5, set.get()}).front();
    for (int day = 1; day <= cycles::ForecastDays; ++day) {
        EXPECT_EQ((*forecast.Of(ForecastKind::Scaled))[day], closes.back());
    }
}

TEST(Forecasts, TellWhyThereAreNone) {
    auto const level = SeriesOfCloses(std::vector<double>(120, 50));
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    Plan const plan{{{Method::Automate, 1}, {Method::Search, 1}, {Method::Parameters, 0}}, 5, set.get()};
    auto const forecasts = ForecastsOf(*level, plan);
    ASSERT_EQ(forecasts.size(), 3U);
    EXPECT_EQ(forecasts[0].Fault, "Division by zero");
    EXPECT_EQ(forecasts[1].Fault, "The moving average does not change: there is no cycle in it");
    EXPECT_EQ(forecasts[2].Fault, "No cycle is active");
    for (ModelForecast const& forecast : forecasts) {
        for (ForecastKind const kind : ForecastKinds) {
            EXPECT_FALSE(forecast.Of(kind));
        }
    }
}

TEST(Forecasts, AFaultOfTheMovingAverageIsThatOfAllModels) {
    auto const series = SeriesOfCloses(CyclicCloses(120, 5));
    auto const forecasts = ForecastsOf(*series, {{{Method::Automate, 1}, {Method::Search, 1}}, 600, nullptr});
    ASSERT_EQ(forecasts.size(), 2U);
    EXPECT_EQ(forecasts[0].Fault, "Subscript out of range");
    EXPECT_EQ(forecasts[1].Fault, "Subscript out of range");
}

TEST(Forecasts, EndWhenTheCallbackSaysSo) {
    auto const series = SeriesOfCloses(CyclicCloses(120, 6));
    Plan const plan{StandardModels(false), 5, nullptr};
    EXPECT_TRUE(ForecastsAt(RecordsOf(*series), plan, [] { return false; }).empty());
}

} // namespace
} // namespace quorvex::evaluation
