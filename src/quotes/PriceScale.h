// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/QuoteSeries.h"

namespace quorvex::quotes {

// Top and bottom of the quote chart's price axis, in the units of the quote file.
struct PriceScale {
    double PriceScaleHigh = 0;
    double PriceScaleLow = 0;
};

// The highest High and the lowest Low of the working days. Without days the high end, -9999999, lies below
// the low end, 9999999.
[[nodiscard]] PriceScale ComputePriceRange(QuoteSeries const& series);

// The range from the lowest Low to the highest High of the working days, widened by a tenth at the top and
// then by a tenth of the widened range at the bottom: the larger margin is meant (docs/behaviour.md). Raises
// "Overflow" for ends beyond a double.
[[nodiscard]] PriceScale ComputePriceScale(QuoteSeries const& series);

} // namespace quorvex::quotes
