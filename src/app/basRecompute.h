// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// From the grid and the quotes to the curves: everything that a redraw computes.
#pragma once

#include "app/Program.h"
#include "text/RunTimeError.h"

#include <optional>

namespace quorvex::app {

// What ended each part early; empty where the part ran to its end or had nothing to do.
struct RecomputeFaults {
    std::optional<text::RunTimeError> Quotes;
    std::optional<text::RunTimeError> Cycles;
    std::optional<text::RunTimeError> Residual;
};

// Computes price scale and moving average of the open quotes. Raises "Division by zero" for a price scale
// without height, before the moving average.
void RecomputeQuotes(Program& program);

// Brings the moving average up to date before a fit. A fault, such as of prices without a range, ends it
// quietly where it stands.
void RefreshMovingAverage(Program& program);

// Reads the grid and computes, in the order of the charts, price scale and moving average, the cycles with
// their composite, and the residual. Without quotes only the cycles are computed, without an active cycle
// only the quotes. A fault of the cycles leaves the residual out.
RecomputeFaults Recompute(Program& program, Services& services);

} // namespace quorvex::app
