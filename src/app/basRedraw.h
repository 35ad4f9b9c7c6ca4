// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The one place where everything is computed and drawn anew, from the grid and the quotes to the charts.
#pragma once

#include "app/Program.h"
#include "chart/ChartFaults.h"

#include <string>

namespace quorvex::app {

// The caption of the main window: the program's name, with the open quote file when there is one.
[[nodiscard]] std::string Caption(Program const& program);

// Sets the caption, lays the window out, prepares the four boxes, reads the grid, and computes and draws the
// quote chart, the cycles, the composite and the residual, and the time ticks of all four. Without quotes the
// boxes of quotes and residual stay empty, without an active cycle those of the cycles and the residual. A
// fault of the quotes or their moving average ends that part alone, one of the cycles or the residual the
// whole redraw; the program keeps them, and they come back.
chart::ChartFaults const& Redraw(Program& program, Services& services);

// The same for the cycles as they are, without reading the grid: reading it a second time scales its weights
// once more.
chart::ChartFaults DrawCharts(Program& program, ChartBoxes const& boxes);

// Draws the quote chart and its moving average once more, so that its curve is fresh for a fit. Faults end
// each quietly. Returns whether the curve was computed: prices without a range, which no chart can show, have
// one as well.
bool RefreshMovingAverage(Program& program, platform::Canvas& box);

} // namespace quorvex::app
