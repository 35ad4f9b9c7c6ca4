// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion: the program's routines without a window, for scripts.

#include "app/Program.h"
#include "cli/ExitStatus.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "platform/disk/HostArguments.h"
#include "platform/disk/HostConsole.h"
#ifdef QUORVEX_PICTURES
#include "platform/pictures/QtPdfPrintQueue.h"
#include "platform/pictures/QtPictureEncoder.h"
#endif

#include <CLI/CLI.hpp>

#include <exception>
#include <memory>
#include <new>
#include <string>

namespace {

namespace platform = quorvex::platform;

// What draws and prints without a display; nothing in a build without Qt.
struct Outputs {
    std::unique_ptr<platform::PictureEncoder> Pictures;
    std::unique_ptr<platform::PdfPrintQueue> Printing;
};

Outputs MakeOutputs() {
#ifdef QUORVEX_PICTURES
    return {std::make_unique<platform::pictures::QtPictureEncoder>(),
            std::make_unique<platform::pictures::QtPdfPrintQueue>()};
#else
    return {};
#endif
}

} // namespace

int main(int argc, char** argv) {
    using quorvex::cli::ExitStatus;
    auto status = ExitStatus::Success;
    try {
        CLI::App app("Cycle analysis of commodity futures quotes", "quorvex-cli");
        app.set_version_flag("--version", "quorvex-cli " + std::string(quorvex::app::ProgramVersion));
        app.require_subcommand(1);
        app.allow_windows_style_options(false);
        platform::disk::HostConsole const console;
        Outputs const outputs = MakeOutputs();
        quorvex::cli::AddAnalyse(app, console, status);
        quorvex::cli::AddChart(app, outputs.Pictures.get(), status);
        quorvex::cli::AddCheck(app, status);
        quorvex::cli::AddConvert(app, status);
        quorvex::cli::AddList(app, outputs.Printing.get(), status);
        quorvex::cli::AddPrint(app, outputs.Printing.get(), status);
        quorvex::cli::AddSearch(app, status);
        quorvex::cli::AddFormat(app, status);
        try {
            app.parse(platform::disk::ReversedArguments(argc, argv));
        } catch (CLI::ParseError const& error) {
            bool const asked = app.exit(error) == 0; // prints help, version or what is wrong
            status = asked ? ExitStatus::Success : ExitStatus::Usage;
        }
    } catch (std::bad_alloc const&) {
        quorvex::cli::Complain({}, "Out of memory");
        status = ExitStatus::Refused;
    } catch (std::exception const& error) {
        quorvex::cli::Complain({}, error.what());
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}
