// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli convert barchart|csi|custom SOURCE DESTINATION: a vendor's file becomes a quote file.
#pragma once

#include "cli/SubCommand.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command with its three kinds. What it ended with is stored when it runs.
void AddConvert(CLI::App& app, ExitStatus& status);

} // namespace quorvex::cli
