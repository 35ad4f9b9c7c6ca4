// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The errors of all models by horizon, one below the other.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/PlotArea.h"
#include "platform/Canvas.h"

namespace quorvex::evaluation {

// The height that the errors take with their captions, in twips.
[[nodiscard]] double ErrorPlotHeight(platform::Canvas const& canvas, Evaluation const& evaluation);

// Draws the error ratios with their intervals, a column for each horizon, the drift in the first row.
void DrawErrors(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation);

} // namespace quorvex::evaluation
