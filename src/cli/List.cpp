// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/EditSession.h"
#include "cli/PdfOutput.h"
#include "cli/SettingOptions.h"
#include "cli/SubCommands.h"
#include "editor/basListing.h"
#include "platform/MousePointer.h"

#include <memory>
#include <optional>
#include <string>

namespace quorvex::cli {

namespace {

struct ListOptions {
    std::string QuotePath;
    std::optional<std::string> Format;
    std::string OutputPath;
};

ExitStatus List(ListOptions const& options, platform::PdfPrintQueue& queue) {
    EditSession session(options.QuotePath, options.Format);
    if (!session.Open()) {
        return ExitStatus::Refused;
    }
    platform::NoMousePointer pointer;
    bool const written = PrintToPdf(queue, options.OutputPath, [&](auto& printing) {
        editor::PrintQuotes(session.Edited(), session.QuoteFileName(), session.Settings(), printing, pointer);
    });
    return written ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace

void AddList(CLI::App& app, platform::PdfPrintQueue* queue, ExitStatus& status) {
    auto const options = std::make_shared<ListOptions>();
    CLI::App* command = app.add_subcommand("list", "Print the listing of the quotes into a PDF file");
    command->add_option("QUOTES", options->QuotePath, "Quote file to read")->required()->type_name("");
    AddFormatOption(*command, options->Format);
    AddPdfOption(*command, options->OutputPath, queue);
    command->callback([options, queue, &status] { status = List(*options, *queue); });
}

} // namespace quorvex::cli
