// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws the three charts below the quotes: single cycles, composite and residual.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "platform/Canvas.h"

#include <cstdint>

namespace quorvex::chart {

// Draws the curve of each active cycle over the working days, or 100 without any; 210 cycle units fill the
// height.
void DrawCycles(platform::Canvas& box, cycles::CycleParameterSet const& set, std::int16_t workingCount);

// Draws the composite over the same days; 220 cycle units fill the height.
void DrawComposite(platform::Canvas& box, cycles::CycleCurve const& compositeCurve,
                   std::int16_t workingCount);

// Draws the residual on a scale of its own. Raises "Division by zero" when all its values are equal.
// REQUIRES: one working day.
void DrawResidual(platform::Canvas& box, cycles::QuoteCurve const& residualCurve, std::int16_t workingCount);

} // namespace quorvex::chart
