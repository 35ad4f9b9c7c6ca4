// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastReading.h"

#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace quorvex::chart {
namespace {

// Quotes from 01/01/01 on, the last 25 days closing at 106 to 130, and a forecast rising from 131.
class ShownForecast {
public:
    explicit ShownForecast(int days = 30)
        : Series(tests::SeriesOf(tests::QuoteLines(days))),
          Dates(cycles::ComputeForecastDates(Series->LastQuoteDate)) {
        for (int day = 1; day <= cycles::ForecastDays; ++day) {
            Values[day] = 130 + day;
        }
    }

    [[nodiscard]] ForecastReading Reading() const { return {*Series, Values, Dates, "####0.00"}; }

    std::unique_ptr<quotes::QuoteSeries> Series;
    cycles::ForecastDates Dates;
    cycles::ForecastCurve Values;
};

TEST(ForecastReading, TellsTheQuoteOfADay) {
    ShownForecast const chart;
    chart.Series->Working[30].Open = 129.5;
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 1), "Day 6, 01/08/01: Open 106.25, Close 106.00");
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 25), "Day 30, 02/09/01: Open 129.50, Close 130.00");
}

TEST(ForecastReading, TellsTheForecastOfADay) {
    ShownForecast const chart;
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 26), "Forecast day 1, 02/12/01: 131.00");
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 50), "Forecast day 25, 03/16/01: 155.00");
}

TEST(ForecastReading, TellsNothingWhereThereIsNoDay) {
    ShownForecast const chart(3);
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 22), "");
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 23), "Day 1, 01/01/01: Open 101.25, Close 101.00");
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 0), "");
    EXPECT_EQ(DescribeForecastDay(chart.Reading(), 51), "");
}

TEST(ForecastReading, DescribesTheWholeChart) {
    ShownForecast const chart;
    EXPECT_EQ(DescribeForecast(chart.Reading()),
              "Forecast chart: quotes of 25 days from 01/08/01 to 02/09/01, then a forecast of 25 days from "
              "02/12/01 to 03/16/01. Lowest value 106.00, highest 155.00. Last close 130.00. Last forecast "
              "value 155.00.");
}

TEST(ForecastReading, DescribesASingleDay) {
    ShownForecast const chart(1);
    EXPECT_EQ(DescribeForecast(chart.Reading()),
              "Forecast chart: quotes of 01/01/01, then a forecast of 25 days from 01/02/01 to 02/05/01. "
              "Lowest value 101.00, highest 155.00. Last close 101.00. Last forecast value 155.00.");
}

TEST(ForecastReading, DescribesTheForecastWithoutQuotes) {
    ShownForecast const chart;
    chart.Series->WorkingCount = 0;
    EXPECT_EQ(DescribeForecast(chart.Reading()),
              "Forecast chart: no quotes, then a forecast of 25 days from 02/12/01 to 03/16/01. Lowest value "
              "131.00, highest 155.00. Last forecast value 155.00.");
}

TEST(ForecastReading, OverflowsWithValuesThatHaveNoScale) {
    ShownForecast chart;
    chart.Values[4] = std::numeric_limits<double>::infinity();
    EXPECT_THROW(static_cast<void>(DescribeForecast(chart.Reading())), text::RunTimeError);
}

} // namespace
} // namespace quorvex::chart
