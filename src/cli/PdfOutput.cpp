// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/PdfOutput.h"

#include "cli/ConsoleDialogs.h"
#include "cli/PipeFiles.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

namespace quorvex::cli {

namespace {

CLI::Validator IsPdfFile(bool hasQueue) {
    return {[hasQueue](std::string const& text) -> std::string {
                if (!hasQueue) {
                    return "this program was built without Qt and cannot print";
                }
                bool const isPdf = text == PipeName || text::UpperCase(text).ends_with(".PDF");
                return isPdf ? "" : text + " does not end with .pdf";
            },
            ""};
}

} // namespace

void AddPdfOption(CLI::App& command, std::string& path, platform::PdfPrintQueue const* queue) {
    command.add_option("-o", path, "File to write, - for standard output")
        ->type_name("FILE.pdf")
        ->required()
        ->check(IsPdfFile(queue != nullptr));
}

bool PrintToPdf(platform::PdfPrintQueue& queue, std::string const& path, PrintRoutine const& print) {
    ConsoleDialogs dialogs(OutputName(path));
    return platform::RunReported(dialogs, [&] {
        print(queue);
        PipeFiles().Overwrite(path, queue.Pdf());
    });
}

} // namespace quorvex::cli
