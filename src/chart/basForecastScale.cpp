// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastScale.h"

#include "text/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace quorvex::chart {

namespace {

// Room for a price of nine characters with its tick, and for the right half of the last date.
constexpr double LeftMargin = 960;
constexpr double RightMargin = 300;

void Widen(quotes::PriceScale& scale, double value) {
    double const finite = text::RequireFinite(value);
    scale.PriceScaleHigh = std::max(scale.PriceScaleHigh, finite);
    scale.PriceScaleLow = std::min(scale.PriceScaleLow, finite);
}

} // namespace

int QuoteDayAt(quotes::QuoteSeries const& series, int column) {
    if (column < FirstQuoteColumn(series) || column > LastQuoteColumn) {
        return 0;
    }
    return series.WorkingCount - LastQuoteColumn + column;
}

int FirstQuoteColumn(quotes::QuoteSeries const& series) {
    return std::max(1, LastQuoteColumn + 1 - series.WorkingCount);
}

ForecastSpan ComputeForecastSpan(double boxWidth) {
    return {LeftMargin, boxWidth - RightMargin};
}

std::optional<int> ForecastColumnAt(double boxWidth, double x) {
    ForecastSpan const span = ComputeForecastSpan(boxWidth);
    if (!(x >= span.Left && x < span.Right)) {
        return std::nullopt;
    }
    int const column = static_cast<int>(std::floor((x - span.Left) / span.Step())) + 1;
    return std::min(column, LastForecastColumn);
}

quotes::PriceScale ComputeForecastScale(quotes::QuoteSeries const& series,
                                        cycles::ForecastCurve const& values) {
    quotes::PriceScale scale{text::RequireFinite(values[1]), values[1]};
    for (int day = 2; day <= cycles::ForecastDays; ++day) {
        Widen(scale, values[day]);
    }
    for (int column = FirstQuoteColumn(series); column <= LastQuoteColumn; ++column) {
        quotes::QuoteRecord const& quote = series.Working[QuoteDayAt(series, column)];
        Widen(scale, quote.Open);
        Widen(scale, quote.Close);
    }
    static_cast<void>(text::RequireFinite(scale.PriceScaleHigh - scale.PriceScaleLow));
    return scale;
}

} // namespace quorvex::chart
