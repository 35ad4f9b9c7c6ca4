// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The price axis of the quote chart.
#pragma once

#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"

namespace quorvex::chart {

// The range from the lowest Low to the highest High of the working days, widened by a tenth at the top and
// then by a tenth of the widened range at the bottom, which is therefore the larger margin.
[[nodiscard]] quotes::PriceScale ComputePriceScale(quotes::QuoteSeries const& series);

} // namespace quorvex::chart
