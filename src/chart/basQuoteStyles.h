// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The three styles of quotes, the same on the screen and on paper but for the widths of their shapes.
#pragma once

#include "chart/basScale.h"
#include "platform/Canvas.h"
#include "quotes/QuoteSeries.h"

#include <string_view>

namespace quorvex::chart {

// The widths and heights of a day's shapes, in twips.
struct QuoteShapes {
    double BarLeft = 0; // from the day's column to the edges of its range bar
    double BarRight = 0;
    double OpenTick = 0; // from the column to the end of the tick on the left
    double CloseTick = 0;
    double HalfTick = 0; // half the height of a tick
    double HalfBody = 0; // half the width of a candle's body
};

// What makes a rectangle of a line, in twips.
inline constexpr double LineWidth = 0.5;

// Where quotes are drawn, and how.
struct QuotePlot {
    platform::Canvas& Box;
    quotes::QuoteSeries const& Series;
    double Left = 0; // of the plotting area: day i stands at Left + i x Step
    double Step = 0;
    VerticalScale Prices;
    QuoteShapes Shapes;
};

// Draws the working days in the style of the chart type.
void DrawQuotes(QuotePlot const& plot, std::string_view chartType);

} // namespace quorvex::chart
