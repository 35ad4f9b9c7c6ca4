// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws the chart of the forecast window.
#pragma once

#include "cycles/basForecast.h"
#include "platform/Canvas.h"
#include "quotes/QuoteSeries.h"
#include "text/RunTimeError.h"

#include <optional>

namespace quorvex::chart {

// Draws the last 25 working days, or all when there are fewer, each from its Open to its Close, followed by
// the forecast as a line, on one price scale. Prices are labelled from the lowest to the highest value shown,
// the first and last day of the quotes and the last of the forecast with their dates. Values without a range
// stand in the middle. A box too small for the frame stays empty. A fault ends the drawing where it stands
// and comes back.
std::optional<text::RunTimeError> DrawForecast(platform::Canvas& box, quotes::QuoteSeries const& series,
                                               cycles::ForecastCurve const& values,
                                               cycles::ForecastDates const& dates);

} // namespace quorvex::chart
