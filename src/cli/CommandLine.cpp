// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"

#include "app/Program.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "platform/disk/HostArguments.h"
#include "platform/disk/HostConsole.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <new>
#include <string>

namespace quorvex::cli {

void AddSubCommands(CLI::App& app, platform::Console const& console, Outputs const& outputs,
                    ExitStatus& status) {
    AddAnalyse(app, console, status);
    AddBatch(app, console, status);
    AddChart(app, *outputs.Pictures, status);
    AddCheck(app, status);
    AddConvert(app, status);
    AddEvaluate(app, console, *outputs.Pictures, status);
    AddImport(app, status);
    AddList(app, outputs.Printing.get(), status);
    AddPrint(app, outputs.Printing.get(), status);
    AddSearch(app, status);
    AddFormat(app, status);
}

int RunCommandLine(int argc, char** argv, Outputs (*makeOutputs)()) {
    auto status = ExitStatus::Success;
    platform::disk::HostConsole const console; // before anything is said
    try {
        CLI::App app("Cycle analysis of commodity futures quotes", "quorvex-cli");
        app.set_version_flag("--version", "quorvex-cli " + std::string(quorvex::app::ProgramVersion));
        app.require_subcommand(1);
        app.allow_windows_style_options(false);
        Outputs const outputs = makeOutputs();
        AddSubCommands(app, console, outputs, status);
        try {
            app.parse(platform::disk::ReversedArguments(argc, argv));
        } catch (CLI::ParseError const& error) {
            bool const asked = app.exit(error) == 0; // prints help, version or what is wrong
            status = asked ? ExitStatus::Success : ExitStatus::Usage;
        }
    } catch (std::bad_alloc const&) {
        Complain({}, "Out of memory");
        status = ExitStatus::Refused;
    } catch (std::exception const& error) {
        Complain({}, error.what());
        status = ExitStatus::Refused;
    }
    return static_cast<int>(status);
}

} // namespace quorvex::cli
