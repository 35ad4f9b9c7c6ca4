// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli format F NUMBER...: numbers in a number format, one a line.
#pragma once

#include "cli/SubCommand.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command. What it ended with is stored when it runs.
void AddFormat(CLI::App& app, ExitStatus& status);

} // namespace quorvex::cli
