// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion from its arguments to its exit status.
#pragma once

#include "cli/ExitStatus.h"
#include "platform/Console.h"
#include "platform/PdfPrintQueue.h"
#include "platform/PictureEncoder.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace quorvex::cli {

// What draws and prints without a display.
struct Outputs {
    std::unique_ptr<platform::PictureEncoder> Pictures;
    std::unique_ptr<platform::PdfPrintQueue> Printing; // none in a build without Qt
};

// Adds every sub-command to the application. The others must outlive it.
void AddSubCommands(CLI::App& app, platform::Console const& console, Outputs const& outputs,
                    ExitStatus& status);

// Runs the sub-command that the arguments of main() name. Faults are told on standard error, those of making
// the outputs included. Returns the exit status.
[[nodiscard]] int RunCommandLine(int argc, char** argv, Outputs (*makeOutputs)());

} // namespace quorvex::cli
