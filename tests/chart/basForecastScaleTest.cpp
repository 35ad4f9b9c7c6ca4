// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastScale.h"

#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorvex::chart {
namespace {

// The frame runs from 960 to 5960: columns of 100 twips.
constexpr double SpanWidth = 6260;

TEST(ForecastColumns, AreFoundAroundTheirMiddle) {
    auto const span = ComputeForecastSpan(SpanWidth);
    for (int column = 1; column <= LastForecastColumn; ++column) {
        EXPECT_EQ(ForecastColumnAt(SpanWidth, span.X(column)), column);
        EXPECT_EQ(ForecastColumnAt(SpanWidth, span.X(column) - 49), column);
        EXPECT_EQ(ForecastColumnAt(SpanWidth, span.X(column) + 49), column);
    }
}

TEST(ForecastColumns, EndWithTheFrame) {
    EXPECT_EQ(ForecastColumnAt(SpanWidth, 960), 1);
    EXPECT_EQ(ForecastColumnAt(SpanWidth, 5959.9), 50);
    EXPECT_FALSE(ForecastColumnAt(SpanWidth, 959.9));
    EXPECT_FALSE(ForecastColumnAt(SpanWidth, 5960));
    EXPECT_FALSE(ForecastColumnAt(SpanWidth, std::numeric_limits<double>::quiet_NaN()));
}

TEST(ForecastColumns, NeverExceedFiftyByRounding) {
    for (int step = 0; step < 1000; ++step) {
        double const width = 1300 + step * 17.3;
        double const last = std::nextafter(width - 300, 0.0);
        EXPECT_EQ(ForecastColumnAt(width, last), 50) << width;
    }
}

TEST(ForecastColumns, AreNotInABoxWithoutRoom) {
    EXPECT_FALSE(ForecastColumnAt(1260, 960));
    EXPECT_FALSE(ForecastColumnAt(0, 0));
    EXPECT_FALSE(ForecastColumnAt(-10, -5));
}

TEST(ForecastColumns, HoldTheLastTwentyFiveDays) {
    auto const series = tests::SeriesOf(tests::QuoteLines(30));
    EXPECT_EQ(FirstQuoteColumn(*series), 1);
    EXPECT_EQ(QuoteDayAt(*series, 0), 0);
    EXPECT_EQ(QuoteDayAt(*series, 1), 6);
    EXPECT_EQ(QuoteDayAt(*series, 25), 30);
    EXPECT_EQ(QuoteDayAt(*series, 26), 0);
}

TEST(ForecastColumns, HoldFewerDaysNextToTheForecast) {
    auto const series = tests::SeriesOf(tests::QuoteLines(3));
    EXPECT_EQ(FirstQuoteColumn(*series), 23);
    EXPECT_EQ(QuoteDayAt(*series, 22), 0);
    EXPECT_EQ(QuoteDayAt(*series, 23), 1);
    EXPECT_EQ(QuoteDayAt(*series, 25), 3);
    EXPECT_EQ(FirstQuoteColumn(quotes::QuoteSeries{}), 26);
}

TEST(ForecastScale, RunsOverOpensClosesAndForecast) {
    auto const series = tests::SeriesOf(tests::QuoteLines(30));
    cycles::ForecastCurve values;
    values.Fill(120);
    auto scale = ComputeForecastScale(*series, values);
    EXPECT_EQ(scale.PriceScaleLow, 106);
    EXPECT_EQ(scale.PriceScaleHigh, 130.25);
    series->Working[6].Open = 99;
    series->Working[30].High = 200; // not shown
    values[25] = 150;
    scale = ComputeForecastScale(*series, values);
    EXPECT_EQ(scale.PriceScaleLow, 99);
    EXPECT_EQ(scale.PriceScaleHigh, 150);
}

TEST(ForecastScale, OverflowsBeyondADouble) {
    auto const series = tests::SeriesOf(tests::QuoteLines(30));
    cycles::ForecastCurve values;
    values[1] = std::numeric_limits<double>::infinity();
    EXPECT_THROW(static_cast<void>(ComputeForecastScale(*series, values)), text::RunTimeError);
    values[1] = 1.7e308;
    values[2] = -1.7e308;
    EXPECT_THROW(static_cast<void>(ComputeForecastScale(*series, values)), text::RunTimeError);
}

} // namespace
} // namespace quorvex::chart
