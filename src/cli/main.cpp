// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion: the program's routines without a window, for scripts.

#include "cli/CommandLine.h"
#ifdef QUORVEX_PICTURES
#include "platform/pictures/QtPdfPrintQueue.h"
#include "platform/pictures/QtPictureEncoder.h"
#else
#include "platform/basSvg.h"
#endif

#include <memory>

namespace {

quorvex::cli::Outputs MakeOutputs() {
#ifdef QUORVEX_PICTURES
    namespace pictures = quorvex::platform::pictures;
    return {std::make_unique<pictures::QtPictureEncoder>(), std::make_unique<pictures::QtPdfPrintQueue>()};
#else
    return {std::make_unique<quorvex::platform::SvgEncoder>(), nullptr};
#endif
}

} // namespace

int main(int argc, char** argv) {
    return quorvex::cli::RunCommandLine(argc, argv, MakeOutputs);
}
