// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisJson.h"
#include "cli/AnalysisOptions.h"
#include "cli/AnalysisReport.h"
#include "cli/AnalysisSession.h"
#include "cli/CharacterChart.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"

#include <memory>
#include <string>

namespace quorvex::cli {

namespace {

struct AnalyseOptions {
    AnalysisOptions Analysis;
    bool Json = false;
};

ExitStatus Analyse(AnalyseOptions const& options, platform::Console const& console) {
    AnalysisSession session(options.Analysis);
    auto const result = session.Analyse();
    if (!result) {
        return ExitStatus::Refused;
    }
    std::string output;
    if (options.Json) {
        output = AnalysisJson(session.Program(), session.Grid(), *result);
    } else {
        output = AnalysisReport(session.Program(), session.Grid(), *result);
        if (console.IsTerminal()) {
            output += '\n' + CharacterChart(session.Program(), console.Width());
        }
    }
    return session.Status(Print(output));
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
