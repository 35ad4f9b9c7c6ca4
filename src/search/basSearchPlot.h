// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The correlation over the number of cycles as a small curve, from which one sees where more cycles stop
// paying.
#pragma once

#include "platform/Canvas.h"
#include "search/CycleModel.h"

#include <span>

namespace quorvex::search {

// Draws the correlations of the models of 1, 2 .. cycles, as many as there are yet, and marks the one of the
// chosen number. A box that is too small for it stays empty.
void DrawSearchPlot(platform::Canvas& box, std::span<CycleModel const> models, int chosen);

// Where a number of cycles, 1..10, stands in a plot of this width, in twips from its left edge.
[[nodiscard]] double PlaceOfCount(double width, int cycleCount);

// The number of cycles nearest to the place, 0 beside the curve.
[[nodiscard]] int CountAtPlace(double width, double place);

} // namespace quorvex::search
