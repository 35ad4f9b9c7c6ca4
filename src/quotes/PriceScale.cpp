// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/PriceScale.h"

#include "text/RunTimeError.h"

namespace quorvex::quotes {

PriceScale ComputePriceRange(QuoteSeries const& series) {
    double maximum = -9999999;
    double minimum = 9999999;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        QuoteRecord const& quote = series.Working[day];
        if (quote.High >= maximum) {
            maximum = quote.High;
        }
        if (quote.Low < minimum) {
            minimum = quote.Low;
        }
    }
    return {maximum, minimum};
}

PriceScale ComputePriceScale(QuoteSeries const& series) {
    constexpr double Margin = 0.1;
    auto [maximum, minimum] = ComputePriceRange(series);
    maximum = maximum + Margin * (maximum - minimum);
    minimum = minimum - Margin * (maximum - minimum);
    return {text::RequireFinite(maximum), text::RequireFinite(minimum)};
}

} // namespace quorvex::quotes
