// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli check QUOTES [--format F]: the check that the quote editor makes before it saves.
#pragma once

#include "cli/SubCommand.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command. What it ended with is stored when it runs.
void AddCheck(CLI::App& app, ExitStatus& status);

} // namespace quorvex::cli
