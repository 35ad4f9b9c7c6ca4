// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// quorvex-cli print QUOTES -o PAGE.pdf: the chart page.
#pragma once

#include "cli/SubCommand.h"
#include "platform/PdfPrintQueue.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// Adds the sub-command "print", which writes the chart page of a quote file as a PDF file; without a queue it
// has nothing to print on. Queue and status must outlive the app; the status is set when the sub-command
// runs.
void AddPrint(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status);

} // namespace quorvex::cli
