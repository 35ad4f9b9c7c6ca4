// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The companion: the program's routines without a window, for scripts.

#include "app/Program.h"
#include "cli/Analyse.h"
#include "cli/FormatNumbers.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommand.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <string>

int main(int argc, char** argv) {
    using quorvex::cli::ExitStatus;
    auto status = ExitStatus::Success;
    try {
        CLI::App app("Cycle analysis of commodity futures quotes", "quorvex-cli");
        app.set_version_flag("--version", "quorvex-cli " + std::string(quorvex::app::ProgramVersion));
        app.require_subcommand(1);
        quorvex::cli::AddAnalyse(app, status);
        quorvex::cli::AddFormat(app, status);
        try {
            app.parse(argc, argv);
        } catch (CLI::ParseError const& error) {
            bool const asked = app.exit(error) == 0; // prints help, version or what is wrong
            status = asked ? ExitStatus::Success : ExitStatus::Usage;
        }
    } catch (std::exception const& error) {
        quorvex::cli::Complain(error.what());
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}
