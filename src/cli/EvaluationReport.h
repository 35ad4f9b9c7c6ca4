// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "evaluation/Evaluation.h"

#include <string>

namespace quorvex::cli {

// The test of forecasts as a text to read: the table of errors, the surrogates and the verdicts.
[[nodiscard]] std::string EvaluationReport(evaluation::Evaluation const& evaluation);

} // namespace quorvex::cli
