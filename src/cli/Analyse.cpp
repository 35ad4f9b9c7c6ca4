// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/Analyse.h"

#include "app/Program.h"
#include "app/basAnalysis.h"
#include "cli/AnalysisJson.h"
#include "cli/AnalysisOptions.h"
#include "cli/AnalysisReport.h"
#include "cli/CharacterChart.h"
#include "cli/ConsoleDialogs.h"
#include "cli/StandardStreams.h"
#include "platform/BlankCanvas.h"
#include "platform/disk/DiskFiles.h"

#include <memory>
#include <string>

namespace quorvex::cli {

namespace {

struct AnalyseOptions {
    AnalysisOptions Analysis;
    bool Json = false;
};

ExitStatus Analyse(AnalyseOptions const& options, platform::Console const& console) {
    auto const program = std::make_unique<app::Program>();
    cycles::TextGrid grid;
    ConsoleDialogs dialogs;
    platform::disk::DiskFiles files;
    platform::NoPendingMessages pending;
    platform::BlankCanvas box;
    app::Services services{grid, {box, box, box, box}, dialogs, files, pending};

    app::StartUp(*program, grid, "./");
    TakeAnalysisOptions(options.Analysis, *program);
    auto const result = app::Analyse(*program, services, options.Analysis.Request);
    if (!result) {
        return ExitStatus::Refused;
    }
    std::string output;
    if (options.Json) {
        output = AnalysisJson(*program, grid, *result);
    } else {
        output = AnalysisReport(*program, grid, *result);
        if (console.IsTerminal()) {
            output += '\n' + CharacterChart(*program, *result, console.Width());
        }
    }
    bool const written = Print(output);
    return written && !dialogs.HasShown() ? ExitStatus::Success : ExitStatus::Refused;
}

} // namespace

void AddAnalyse(CLI::App& app, platform::Console const& console, ExitStatus& status) {
    auto const options = std::make_shared<AnalyseOptions>();
    CLI::App* command = app.add_subcommand("analyse", "Analyse the quotes of one contract");
    AddAnalysisOptions(*command, options->Analysis);
    command->add_flag("--json", options->Json, "Print one JSON object instead of a report");
    command->callback([options, &console, &status] { status = Analyse(*options, console); });
}

} // namespace quorvex::cli
