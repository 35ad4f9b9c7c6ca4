// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion's sub-commands. Each routine adds one to the application; when that one is run, the status
// becomes what the run ended with. All must outlive the application's parsing.
#pragma once

#include "cli/ExitStatus.h"
#include "platform/Console.h"
#include "platform/PdfPrintQueue.h"
#include "platform/PictureEncoder.h"

#include <CLI/CLI.hpp>

namespace quorvex::cli {

// "analyse". On a terminal its report ends with a chart.
void AddAnalyse(CLI::App& app, platform::Console const& console, ExitStatus& status);

// "batch". Its progress goes to a terminal.
void AddBatch(CLI::App& app, platform::Console const& console, ExitStatus& status);

// "chart". Without an encoder it writes no pictures, JSON alone.
void AddChart(CLI::App& app, platform::PictureEncoder& encoder, ExitStatus& status);

// "check".
void AddCheck(CLI::App& app, ExitStatus& status);

// "convert" with its three kinds.
void AddConvert(CLI::App& app, ExitStatus& status);

// "format".
void AddFormat(CLI::App& app, ExitStatus& status);

// "evaluate". Without an encoder it draws no plot.
void AddEvaluate(CLI::App& app, platform::Console const& console, platform::PictureEncoder& encoder,
                 ExitStatus& status);

// "import".
void AddImport(CLI::App& app, ExitStatus& status);

// "search".
void AddSearch(CLI::App& app, ExitStatus& status);

// "list", which prints the listing of the quotes, and "print", which prints the chart page, into a PDF file.
// Without a queue they accept no file, as there is nothing to print with.
void AddList(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status);
void AddPrint(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status);

} // namespace quorvex::cli
