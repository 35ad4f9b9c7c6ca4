// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws what the four chart boxes have in common, and the quote chart.
#pragma once

#include "cycles/CycleCurves.h"
#include "platform/Canvas.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <cstdint>
#include <string_view>

namespace quorvex::chart {

// Clears the box and draws its three reference lines: dashes at a quarter and at three quarters of its
// height, one dash a day or 100 without days, and a solid line between them.
void PrepareChart(platform::Canvas& box, std::int16_t workingCount);

// Computes the price scale and the moving average of the quotes and draws both with them, as below.
void DrawQuoteChart(platform::Canvas& box, quotes::QuoteSeries const& series,
                    settings::Settings const& settings, cycles::CycleCurves& curves);

// Computes the moving average, whatever the prices are, and draws it, as below.
void DrawMovingAverage(platform::Canvas& box, quotes::QuoteSeries const& series,
                       settings::Settings const& settings, cycles::CycleCurves& curves);

// Draws the quotes in the style of the chart type with moving average and price labels. An empty chart leaves
// the box as it is. At a price that no box can show the drawing ends quietly; prices without a range leave
// the box as it is.
void PlotQuotes(platform::Canvas& box, quotes::QuoteSeries const& series, settings::Settings const& settings,
                cycles::CycleCurves const& curves);

// Draws the moving average's curve on the price scale. Nothing for a length of 0, for a curve that could not
// be computed, and for prices without a range.
void PlotMovingAverage(platform::Canvas& box, std::int16_t workingCount, cycles::CycleCurves const& curves);

// Writes the top, middle and bottom price at the left edge.
void DrawPriceLabels(platform::Canvas& box, double top, double bottom, std::string_view currencyFormat);

// Draws a tick for every day, or 100 without days, along the bottom edge; every fifth and every tenth is
// longer.
void DrawTimeTicks(platform::Canvas& box, std::int16_t workingCount);

} // namespace quorvex::chart
