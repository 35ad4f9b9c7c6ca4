// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The closes with the forecasts that one model made at each origin.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/PlotArea.h"
#include "evaluation/basEvaluationPlot.h"
#include "platform/Canvas.h"

#include <string>

namespace quorvex::evaluation {

// Whose forecasts they are, such as "Search of 3 cycles, composite".
[[nodiscard]] std::string FanName(Evaluation const& evaluation, FanChoice const& choice);

// Draws them with prices at the left and dates below.
void DrawFan(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
             FanChoice const& choice);

} // namespace quorvex::evaluation
