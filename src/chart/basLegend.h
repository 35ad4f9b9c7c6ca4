// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Small samples of what the charts draw, for the legend.
#pragma once

#include "platform/Canvas.h"

namespace quorvex::chart {

enum class LegendSample { Quotes, MovingAverage, Cycles, Composite, Residual };

// Clears the box and draws the sample over its whole width, in the colours of the charts.
void DrawLegendSample(platform::Canvas& box, LegendSample sample);

} // namespace quorvex::chart
