// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli chart QUOTES -o FILE: the four charts as the main window draws them.
#pragma once

#include "cli/SubCommand.h"
#include "platform/PictureEncoder.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command. Without an encoder it writes no pictures, JSON alone. What it ended with is stored
// when it runs.
void AddChart(CLI::App& app, platform::PictureEncoder* encoder, ExitStatus& status);

} // namespace quorvex::cli
