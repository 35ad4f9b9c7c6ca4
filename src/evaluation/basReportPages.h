// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The test of forecasts on paper.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/basEvaluationPlot.h"
#include "platform/MousePointer.h"
#include "platform/Printer.h"

namespace quorvex::evaluation {

// Prints the verdicts with the plot on the first page, the table of errors and the notes on those that
// follow. The pointer is the hourglass until it is done. Raises "Printer error"; nothing is printed then.
void PrintEvaluation(platform::PrintQueue& queue, platform::MousePointer& pointer,
                     Evaluation const& evaluation, FanChoice const& choice);

} // namespace quorvex::evaluation
