// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The one place where everything is computed and drawn anew, from the grid and the quotes to the charts.
#pragma once

#include "app/Program.h"
#include "text/RunTimeError.h"

#include <optional>

namespace quorvex::app {

// What ended each part early; empty where the part ran to its end or had nothing to do.
struct RedrawFaults {
    std::optional<text::RunTimeError> Quotes;   // the quote chart: the others follow all the same
    std::optional<text::RunTimeError> Cycles;   // single cycles and composite: ends the redraw
    std::optional<text::RunTimeError> Residual; // ends the redraw
};

// Prepares the four boxes, reads the grid, and computes and draws the quote chart, the cycles, the composite
// and the residual, and the time ticks of all four. Without quotes the boxes of quotes and residual stay
// empty, without an active cycle those of the cycles and the residual.
RedrawFaults Redraw(Program& program, Services& services);

// The same for the cycles as they are, without reading the grid: reading it a second time scales its weights
// once more.
RedrawFaults DrawCharts(Program& program, ChartBoxes const& boxes);

// Draws the quote chart and its moving average once more, so that its curve is fresh for a fit. Faults end
// each quietly. Returns whether the curve was computed: prices without a range, which no chart can show, have
// one as well.
bool RefreshMovingAverage(Program& program, platform::Canvas& box);

} // namespace quorvex::app
