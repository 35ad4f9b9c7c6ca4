// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The closes with the forecasts that one model made at each origin.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/PlotArea.h"
#include "evaluation/basEvaluationPlot.h"
#include "platform/Canvas.h"

namespace quorvex::evaluation {

// Draws them with prices at the left and dates below.
void DrawFan(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
             FanChoice const& choice);

} // namespace quorvex::evaluation
