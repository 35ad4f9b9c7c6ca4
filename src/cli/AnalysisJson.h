// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "app/basAnalysis.h"

#include <string>

namespace quorvex::cli {

// The analysis as one JSON object and a line end. Arrays start with day 1; what does not exist is null.
// docs/formats/analysis-json.md describes the members.
[[nodiscard]] std::string AnalysisJson(app::Program const& program, cycles::ParameterGrid const& grid,
                                       app::AnalysisResult const& result);

} // namespace quorvex::cli
