// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws what the four chart boxes have in common, and the quote chart.
#pragma once

#include "chart/ChartFaults.h"
#include "cycles/CycleCurves.h"
#include "platform/Canvas.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/RunTimeError.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvex::chart {

// Clears the box and draws its three reference lines: dashes at a quarter and at three quarters of its
// height, one dash a day or 100 without days, and a solid line between them.
void PrepareChart(platform::Canvas& box, std::int16_t workingCount);

// Draws the quotes in the style of the chart type with moving average and price labels, and leaves the price
// scale and the moving average's curve. Without a quote file nothing happens. A fault of the quotes, such as
// prices without a range, ends the drawing where it stands; one of the moving average ends that alone. Both
// come back.
ChartFaults DrawQuoteChart(platform::Canvas& box, quotes::QuoteSeries const& series,
                           settings::Settings const& settings, quotes::PriceScale& scale,
                           cycles::QuoteCurve& movingAverageCurve);

// Computes the moving average's curve and, unless its length is 0, draws it on the price scale. A fault ends
// the drawing and comes back.
std::optional<text::RunTimeError> DrawMovingAverage(platform::Canvas& box, quotes::QuoteSeries const& series,
                                                    std::string_view movingAverageIndex,
                                                    quotes::PriceScale const& scale,
                                                    cycles::QuoteCurve& movingAverageCurve);

// Draws the curve, computed with this length, over the working days; nothing for a length of 0. Raises
// "Division by zero" for a price scale without height.
void DrawMovingAverageCurve(platform::Canvas& box, cycles::QuoteCurve const& movingAverageCurve,
                            std::int16_t length, std::int16_t workingCount, quotes::PriceScale const& scale);

// Writes the top, middle and bottom price at the left edge.
void DrawPriceLabels(platform::Canvas& box, double top, double bottom, std::string_view currencyFormat);

// Draws a tick for every day, or 100 without days, along the bottom edge; every fifth and every tenth is
// longer.
void DrawTimeTicks(platform::Canvas& box, std::int16_t workingCount);

} // namespace quorvex::chart
