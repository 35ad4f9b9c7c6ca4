// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "evaluation/Evaluation.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::evaluation {

struct ReportSection {
    std::string_view Head;
    std::vector<std::string> Lines;
};

// What the columns and signs of the table mean.
[[nodiscard]] ReportSection KeySection(Evaluation const& evaluation);

// What is told besides table and verdicts: origins without a forecast, and the surrogates. Those that have
// nothing to tell are left out.
[[nodiscard]] std::vector<ReportSection> Notes(Evaluation const& evaluation);

// The test of forecasts as a text to read: the verdict on all models in a sentence, what was tested, the
// table of errors with its key, the notes and the verdicts.
[[nodiscard]] std::string EvaluationReport(Evaluation const& evaluation);

} // namespace quorvex::evaluation
