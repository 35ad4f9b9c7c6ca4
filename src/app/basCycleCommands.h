// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The commands of the charts' context menus, without the window, as app/basCommands has those of the menu
// bar.
#pragma once

#include "app/Program.h"

namespace quorvex::app {

// Opens the window that looks for the cycles whose composite follows the moving average best. What was found
// there becomes the content of the grid, nothing else is left of the cycles before; without it everything
// stays as it was.
void FindBestCycles(Program& program, Services& services);

// Opens the window that tests whether the cycles forecast. Everything stays as it was.
void TestForecast(Program& program, Services& services);

// Writes the grid into a parameter file that the user names.
void WriteParameterFile(Program& program, Services& services);

} // namespace quorvex::app
