// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli analyse QUOTES: one whole analysis, as a report to read or as JSON.
#pragma once

#include "cli/SubCommand.h"
#include "platform/Console.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command. What it ended with is stored when it runs. On a terminal the report ends with a
// chart.
void AddAnalyse(CLI::App& app, platform::Console const& console, ExitStatus& status);

} // namespace quorvex::cli
