// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Printed documents as PDF files, for the sub-commands that print.
#pragma once

#include "platform/PdfPrintQueue.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>

namespace quorvex::cli {

// Adds the required option that names the file. Without a queue no file is accepted, so that the sub-command
// need not expect that.
void AddPdfOption(CLI::App& command, std::string& path, platform::PdfPrintQueue const* queue);

using PrintRoutine = std::function<void(platform::PrintQueue& queue)>;

// Runs the routine, which prints one document, and writes that to the file, or to standard output for "-".
// Returns false, after telling what is wrong, when it was not printed or not written; the file is as it was
// then.
[[nodiscard]] bool PrintToPdf(platform::PdfPrintQueue& queue, std::string const& path,
                              PrintRoutine const& print);

} // namespace quorvex::cli
