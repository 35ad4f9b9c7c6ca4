// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPrint.h"
#include "cli/AnalysisSession.h"
#include "cli/PdfOutput.h"
#include "cli/SubCommands.h"

#include <memory>
#include <string>

namespace quorvex::cli {

namespace {

struct PrintOptions {
    AnalysisOptions Analysis;
    std::string OutputPath;
};

ExitStatus PrintPage(PrintOptions const& options, platform::PdfPrintQueue& queue) {
    AnalysisSession session(options.Analysis);
    if (!session.Analyse()) {
        return ExitStatus::Refused;
    }
    platform::NoMousePointer pointer;
    bool const written = PrintToPdf(queue, options.OutputPath, [&](auto& printing) {
        chart::PrintChart(printing, pointer, session.Program().Quotes, session.Program().Settings);
    });
    return session.Status(written);
}

} // namespace

void AddPrint(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status) {
    auto const options = std::make_shared<PrintOptions>();
    CLI::App* command = app.add_subcommand("print", "Print the chart page into a PDF file");
    AddAnalysisOptions(*command, options->Analysis);
    AddPdfOption(*command, options->OutputPath, queue);
    command->callback([options, queue, &status] { status = PrintPage(*options, *queue); });
}

} // namespace quorvex::cli
