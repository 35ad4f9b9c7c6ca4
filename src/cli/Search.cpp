// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisJson.h"
#include "cli/AnalysisOptions.h"
#include "cli/AnalysisReport.h"
#include "cli/AnalysisSession.h"
#include "cli/ConsoleDialogs.h"
#include "cli/PipeFiles.h"
#include "cli/SearchOptions.h"
#include "cli/StandardStreams.h"
#include "cli/SubCommands.h"
#include "cycles/basParameters.h"
#include "platform/basFiles.h"
#include "platform/basMessages.h"
#include "text/basTexts.h"

#include <memory>
#include <string>

namespace quorvex::cli {

namespace {

struct FindOptions {
    AnalysisOptions Analysis;
    std::string OutputPath;
    bool Force = false;
    bool Json = false;
};

CLI::Validator IsParameterFile() {
    return {[](std::string const& text) {
                bool const good = text == PipeName || text::UpperCase(text).ends_with(".DAT");
                return good ? std::string() : text + " does not end with .dat";
            },
            ""};
}

// Returns whether the parameter file may be written; if not, that has been told.
bool MayWrite(FindOptions const& options) {
    if (options.OutputPath.empty() || options.OutputPath == PipeName || options.Force ||
        !platform::IsThere(PipeFiles(), options.OutputPath)) {
        return true;
    }
    Complain(options.OutputPath, "The file is there already. Give --force to replace it");
    return false;
}

// Returns whether the file was written.
bool WriteParameters(FindOptions const& options, cycles::ParameterGrid const& grid) {
    PipeFiles files;
    ConsoleDialogs dialogs(OutputName(options.OutputPath));
    return platform::RunReported(dialogs,
                                 [&] { files.Replace(options.OutputPath, cycles::ParameterFileText(grid)); });
}

ExitStatus Find(FindOptions const& options) {
    if (options.OutputPath == PipeName && options.Json) {
        throw CLI::ValidationError("-o - and --json cannot both have standard output");
    }
    AnalysisSession session(options.Analysis);
    if (!MayWrite(options)) {
        return ExitStatus::Refused;
    }
    auto const result = session.Analyse();
    if (!result || result->Models.empty()) {
        return ExitStatus::Refused;
    }
    if (!options.OutputPath.empty() && !WriteParameters(options, session.Grid())) {
        return ExitStatus::Refused;
    }
    if (options.OutputPath == PipeName) {
        return session.Status(true);
    }
    return session.Status(Print(options.Json ? AnalysisJson(session.Program(), session.Grid(), *result)
                                             : SearchReport(session.Program(), session.Grid(), *result)));
}

} // namespace

void AddSearch(CLI::App& app, ExitStatus& status) {
    auto const options = std::make_shared<FindOptions>();
    CLI::App* command =
        app.add_subcommand("search", "Find the cycles that follow the moving average of one contract best");
    options->Analysis.Request.Search = search::SearchRequest();
    AddQuoteOptions(*command, options->Analysis);
    AddSearchOptions(*command, "--cycles", options->Analysis.Request.Search);
    auto* const output =
        command->add_option("-o", options->OutputPath, "Parameter file to write, - for standard output alone")
            ->type_name("FILE.dat")
            ->check(IsParameterFile());
    command->add_flag("--force", options->Force, "Replace the parameter file when it is there already")
        ->needs(output);
    command->add_flag("--json", options->Json, "Print one JSON object instead of a report");
    command->callback([options, &status] { status = Find(*options); });
}

} // namespace quorvex::cli
