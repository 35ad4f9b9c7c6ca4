// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The one place where everything is computed and then drawn anew, from the grid and the quotes to the charts.
#pragma once

#include "app/Program.h"

#include <string>

namespace quorvex::app {

// The caption of the main window: the program's name, with the open quote file when there is one.
[[nodiscard]] std::string Caption(Program const& program);

// Sets the caption, lays the window out, prepares the four boxes, reads the grid, computes everything, and
// draws the quote chart, the cycles, the composite and the residual, and the time ticks of all four. What
// could not be computed stands in the program's curves.
void Redraw(Program& program, Services& services);

// Computes and draws everything on the boxes as the program's data are, without reading the grid.
void Repaint(Program& program, chart::ChartBoxes const& boxes);

} // namespace quorvex::app
