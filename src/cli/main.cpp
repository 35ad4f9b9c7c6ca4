// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion: the program's routines without a window, for scripts.

#include "app/Program.h"
#include "cli/Analyse.h"
#include "cli/Chart.h"
#include "cli/FormatNumbers.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommand.h"
#include "platform/disk/HostArguments.h"
#include "platform/disk/HostConsole.h"
#ifdef QUORVEX_PICTURES
#include "platform/qt/QtPictureEncoder.h"
#endif

#include <CLI/CLI.hpp>

#include <exception>
#include <memory>
#include <new>
#include <string>

namespace {

// Nothing in a build without Qt.
std::unique_ptr<quorvex::platform::PictureEncoder> MakePictureEncoder() {
#ifdef QUORVEX_PICTURES
    return std::make_unique<quorvex::platform::qt::QtPictureEncoder>();
#else
    return nullptr;
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
        quorvex::platform::disk::HostConsole const console;
        auto const encoder = MakePictureEncoder();
        quorvex::cli::AddAnalyse(app, console, status);
        quorvex::cli::AddChart(app, encoder.get(), status);
        quorvex::cli::AddFormat(app, status);
        try {
            app.parse(quorvex::platform::disk::ReversedArguments(argc, argv));
        } catch (CLI::ParseError const& error) {
            bool const asked = app.exit(error) == 0; // prints help, version or what is wrong
            status = asked ? ExitStatus::Success : ExitStatus::Usage;
        }
    } catch (std::bad_alloc const&) {
        quorvex::cli::Complain("Out of memory");
        status = ExitStatus::Refused;
    } catch (std::exception const& error) {
        quorvex::cli::Complain(error.what());
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}
