// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "evaluation/Evaluation.h"

#include <string>

namespace quorvex::cli {

// The test of forecasts as one JSON object on one line: docs/formats/evaluation-json.md.
[[nodiscard]] std::string EvaluationJson(evaluation::Evaluation const& evaluation);

} // namespace quorvex::cli
