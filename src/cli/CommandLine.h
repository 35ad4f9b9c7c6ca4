// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion from its arguments to its exit status.
#pragma once

#include "platform/PdfPrintQueue.h"
#include "platform/PictureEncoder.h"

#include <memory>

namespace quorvex::cli {

// What draws and prints without a display.
struct Outputs {
    std::unique_ptr<platform::PictureEncoder> Pictures;
    std::unique_ptr<platform::PdfPrintQueue> Printing; // none in a build without Qt
};

// Runs the sub-command that the arguments of main() name. Faults are told on standard error, those of making
// the outputs included. Returns the exit status.
[[nodiscard]] int RunCommandLine(int argc, char** argv, Outputs (*makeOutputs)());

} // namespace quorvex::cli
