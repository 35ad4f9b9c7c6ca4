// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the forecast chart says in words: for tool tips and for people who cannot see it.
#pragma once

#include "cycles/basForecast.h"
#include "quotes/QuoteSeries.h"

#include <string>
#include <string_view>

namespace quorvex::chart {

// The forecast as the chart has it, prices in this currency format.
struct ForecastReading {
    quotes::QuoteSeries const& Series;
    cycles::ForecastCurve const& Values;
    cycles::ForecastDates const& Dates;
    std::string_view CurrencyFormat;
};

// Day, date and values in a column 1..50 of the chart: "Day 124, 03/15/02: Open 246.25, Close 246.75" or
// "Forecast day 1, 03/18/02: 248.06". Empty for a column without a day.
[[nodiscard]] std::string DescribeForecastDay(ForecastReading const& reading, int column);

// The whole chart: its kind, its days with their first and last dates, the lowest and highest value shown,
// the last close and the last forecast value. Raises "Overflow" for values that have no scale.
[[nodiscard]] std::string DescribeForecast(ForecastReading const& reading);

} // namespace quorvex::chart
