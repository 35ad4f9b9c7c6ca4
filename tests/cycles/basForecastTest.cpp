// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basForecast.h"

#include "CycleTexts.h"
#include "cycles/basCurves.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::cycles {
namespace {

using tests::IsClose;
using tests::QuoteLines;

TEST(Forecast, AgreesWithTheReference) {
    for (auto const& expected : tests::GoldenVector("curves")) {
        SCOPED_TRACE(expected.at("file").get<std::string>());
        auto const series =
            tests::GoldenSeries(expected.at("file"), expected.at("currency_format").get<std::string>());
        auto set = std::make_unique<CycleParameterSet>();
        SetRows(*set, expected.at("cycles"));
        auto const& forecast = expected.at("forecast");
        auto const values = ComputeForecast(*set, *series);
        auto const dates = ComputeForecastDates(series->LastQuoteDate);
        for (int day = 1; day <= ForecastDays; ++day) {
            auto const index = static_cast<std::size_t>(day - 1);
            EXPECT_TRUE(IsClose(values[day], forecast.at("values").at(index)));
            EXPECT_EQ(dates[day], forecast.at("dates").at(index));
        }
        EXPECT_EQ(EstimatedValueLines(values, dates), forecast.at("list2").get<std::vector<std::string>>());
        EXPECT_EQ(PreviousCloseLines(*series), forecast.at("list1").get<std::vector<std::string>>());
    }
}

TEST(Forecast, DatesAgreeWithTheReference) {
    for (auto const& expected : tests::GoldenVector("forecast_dates")) {
        auto const dates = ComputeForecastDates(expected.at(0).get<std::string>());
        for (int day = 1; day <= ForecastDays; ++day) {
            EXPECT_EQ(dates[day], expected.at(1).at(static_cast<std::size_t>(day - 1))) << expected.at(0);
        }
    }
}

TEST(Forecast, AFridayIsFollowedByMonday) {
    EXPECT_EQ(ComputeForecastDates("03/15/02")[1], "03/18/02");
}

TEST(Forecast, AThursdayIsFollowedByFridayAndMonday) {
    auto const dates = ComputeForecastDates("03/14/02");
    EXPECT_EQ(dates[1], "03/15/02");
    EXPECT_EQ(dates[2], "03/18/02");
}

TEST(Forecast, RunsOnAcrossTheCentury) {
    EXPECT_EQ(ComputeForecastDates("12/31/49")[1], "01/03/50");
}

TEST(Forecast, SwingsFourPricesAroundTheLastCloseWhateverTheWeight) {
    auto const series = tests::SeriesOf(QuoteLines(100));
    for (double const weight : {1.0, 50.0, -7.0}) {
        auto const values = ComputeForecast(*SetOf({{weight, 20, 0, 0}}), *series);
        for (int day = 1; day <= ForecastDays; ++day) {
            EXPECT_TRUE(IsClose(values[day], 200 + 4 * std::sin((100 + day) * TwoPi / 20)));
        }
    }
}

TEST(Forecast, HasItsOwnPhase) {
    auto const series = tests::SeriesOf(QuoteLines(100));
    auto const values = ComputeForecast(*SetOf({{1, 20, 5, 0}}), *series);
    EXPECT_TRUE(IsClose(values[1], 200 + 4 * std::sin(5 * 2 * TwoPi / 100 + 101 * TwoPi / 20)));
}

TEST(Forecast, InactiveCyclesTakeNoPart) {
    auto const series = tests::SeriesOf(QuoteLines(100));
    auto const values = ComputeForecast(*SetOf({{0, 20, 0, 0}, {50, 0, 0, 0}}), *series);
    EXPECT_EQ(values[1], 200);
    EXPECT_EQ(values[25], 200);
}

TEST(Forecast, WithoutDaysDividesByZero) {
    auto const series = std::make_unique<quotes::QuoteSeries>();
    auto const error = text::Trap([&] {
        static_cast<void>(ComputeForecast(*SetOf({{1, 20, 5, 0}}), *series));
    });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
}

TEST(Forecast, NumbersTheLastClosesAsInTheSeries) {
    auto const series = tests::SeriesOf(QuoteLines(30));
    auto const lines = PreviousCloseLines(*series);
    ASSERT_EQ(lines.size(), 25U);
    EXPECT_EQ(lines.front(), " 6  01/08/01 106.");
    EXPECT_EQ(lines.back(), "30  02/09/01 130.");
}

TEST(Forecast, PutsNoBlankInFrontOfThreeDigits) {
    auto const series = tests::SeriesOf(QuoteLines(124));
    auto const lines = PreviousCloseLines(*series);
    EXPECT_TRUE(lines.front().starts_with("100  "));
}

TEST(Forecast, ListsAllClosesOfAShortRange) {
    auto const series = tests::SeriesOf(QuoteLines(3));
    auto const lines = PreviousCloseLines(*series);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines.front(), " 1  01/01/01 101.");
}

TEST(Forecast, WithoutWeightsInTheGridWarns) {
    TextGrid grid;
    ClearGrid(grid);
    platform::fake::ScriptedDialogs dialogs;
    EXPECT_FALSE(RequireForecastWeights(grid, dialogs));
    EXPECT_TRUE(tests::IsOnlyMessage(dialogs.Messages,
                                     "Insufficient cycle parameters data to create forecast values",
                                     "Quorvex", platform::Icon::Exclamation));
    dialogs.Messages.clear();
    grid.SetText(Parameter::Weight, 4, "1");
    EXPECT_TRUE(RequireForecastWeights(grid, dialogs));
    EXPECT_TRUE(dialogs.Messages.empty());
}

} // namespace
} // namespace quorvex::cycles
