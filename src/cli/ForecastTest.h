// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The test of forecasts for the sub-commands that make it.
#pragma once

#include "app/Program.h"
#include "evaluation/basEvaluation.h"
#include "platform/Dialogs.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <vector>

namespace quorvex::cli {

struct TestOptions {
    int Every = evaluation::DefaultEvery;           // origins, in days
    int Surrogates = evaluation::DefaultSurrogates; // 1 at least
    int Jobs = 1;                                   // threads
};

// Adds those that change the result, and returns them. The options must outlive the sub-command.
std::vector<CLI::Option*> AddTestOptions(CLI::App& command, TestOptions& options);

// Tests the standard models on the program's quotes, and with parameters its cycles, one of which must be
// active. Nothing after a refusal, which goes to the dialogs, and when the watch has ended it.
[[nodiscard]] std::optional<evaluation::Evaluation>
TestForecasts(app::Program const& program, bool hasParameters, TestOptions const& options,
              platform::Dialogs& dialogs, evaluation::Watch const& watch);

} // namespace quorvex::cli
