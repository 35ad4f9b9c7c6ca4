// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/PdfOutput.h"

#include "cli/StandardStreams.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

namespace quorvex::cli {

namespace {

CLI::Validator IsPdfFile(bool hasQueue) {
    return {[hasQueue](std::string const& text) -> std::string {
                if (!hasQueue) {
                    return "this program was built without Qt and cannot print";
                }
                bool const isPdf = text == "-" || text::UpperCase(text).ends_with(".PDF");
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

bool PrintToPdf(platform::PdfPrintQueue& queue, std::string const& path, platform::Files& files,
                platform::Dialogs& dialogs, PrintRoutine const& print) {
    bool isWritten = true;
    bool const isPrinted = platform::RunReported(dialogs, [&] {
        print(queue);
        if (path == "-") {
            isWritten = PrintBytes(queue.Pdf());
        } else {
            files.Overwrite(path, queue.Pdf());
        }
    });
    return isPrinted && isWritten;
}

} // namespace quorvex::cli
