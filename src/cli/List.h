// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli list QUOTES -o LISTING.pdf: the listing that the quote editor prints.
#pragma once

#include "cli/SubCommand.h"
#include "platform/PdfPrintQueue.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command. Without a queue it refuses to run, as there is nothing to print with. What it ended
// with is stored when it runs.
void AddList(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status);

} // namespace quorvex::cli
