// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The axes of the forecast chart: 25 columns of quotes, 25 of the forecast, and one price scale.
#pragma once

#include "cycles/basForecast.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"

#include <optional>

namespace quorvex::chart {

// Columns 1..25 hold the last working days, the last of them in column 25; columns 26..50 the forecast.
inline constexpr int LastQuoteColumn = cycles::ForecastDays;
inline constexpr int LastForecastColumn = 2 * cycles::ForecastDays;

// The working day in a column, 0 where there is none: in front of a shorter series, in the forecast, and
// outside the columns.
[[nodiscard]] int QuoteDayAt(quotes::QuoteSeries const& series, int column);

// The first column with a working day, 26 without any.
[[nodiscard]] int FirstQuoteColumn(quotes::QuoteSeries const& series);

// Where the chart's frame begins and ends across a box, in twips. In a box too narrow for it the right end is
// not right of the left one.
struct ForecastSpan {
    double Left = 0;
    double Right = 0;

    [[nodiscard]] double Step() const { return (Right - Left) / LastForecastColumn; }

    // The middle of the column.
    [[nodiscard]] double X(int column) const { return Left + (column - 0.5) * Step(); }
};

[[nodiscard]] ForecastSpan ComputeForecastSpan(double boxWidth);

// The column 1..50 around x, nothing outside the frame.
[[nodiscard]] std::optional<int> ForecastColumnAt(double boxWidth, double x);

// The lowest and the highest value shown: the Opens and Closes of the days in the columns, and the forecast.
// Raises "Overflow" when a value or their range is beyond a double.
[[nodiscard]] quotes::PriceScale ComputeForecastScale(quotes::QuoteSeries const& series,
                                                      cycles::ForecastCurve const& values);

} // namespace quorvex::chart
