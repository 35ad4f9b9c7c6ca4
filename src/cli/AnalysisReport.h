// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "app/basAnalysis.h"

#include <string>

namespace quorvex::cli {

// The analysis as a text to read: statistics, cycles, fit, correlation and forecast.
[[nodiscard]] std::string AnalysisReport(app::Program const& program, cycles::ParameterGrid const& grid,
                                         app::AnalysisResult const& result);

// What a search found: the cycles and what each of them adds, the correlation, and that of fewer cycles.
[[nodiscard]] std::string SearchReport(app::Program const& program, cycles::ParameterGrid const& grid,
                                       app::AnalysisResult const& result);

} // namespace quorvex::cli
