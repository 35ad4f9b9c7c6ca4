// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/Analyse.h"

#include "app/Program.h"
#include "app/basAnalysis.h"
#include "cli/AnalysisJson.h"
#include "cli/AnalysisReport.h"
#include "cli/CharacterChart.h"
#include "cli/ConsoleDialogs.h"
#include "cli/StandardStreams.h"
#include "platform/disk/DiskFiles.h"
#include "text/basDates.h"

#include <memory>
#include <string>
#include <string_view>

namespace quorvex::cli {

namespace {

// The options as typed; empty texts keep the program's defaults.
struct AnalyseOptions {
    std::string QuotePath;
    std::string MovingAverage;
    std::string Format;
    std::string ChartType;
    app::AnalysisRequest Request;
    bool Json = false;
};

// Splits a path into the data folder, with its separator, and the bare name.
void TakeQuotePath(std::string_view path, app::Program& program) {
    auto const folderEnd = path.find_last_of(platform::disk::FolderEnds) + 1; // 0 when there is none
    program.Settings.DataPath = path.substr(0, folderEnd);
    program.Quotes.QuoteFileName = path.substr(folderEnd);
}

void TakeSettings(AnalyseOptions const& options, CLI::App const& command, prefs::Settings& settings) {
    if (command.count("--moving-average") > 0) {
        settings.MovingAverageIndex = options.MovingAverage;
    }
    if (command.count("--format") > 0) {
        settings.CurrencyFormat = options.Format;
    }
    if (command.count("--chart-type") > 0) {
        settings.ChartType = options.ChartType;
    }
}

ExitStatus Analyse(AnalyseOptions const& options, CLI::App const& command, platform::Console const& console) {
    auto const program = std::make_unique<app::Program>();
    cycles::TextGrid grid;
    ConsoleDialogs dialogs;
    platform::disk::DiskFiles files;
    platform::NoPendingMessages pending;
    app::Services services{grid, dialogs, files, pending};

    app::StartUp(*program, grid, "./");
    TakeSettings(options, command, program->Settings);
    TakeQuotePath(options.QuotePath, *program);
    auto const result = app::Analyse(*program, services, options.Request);
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

// Without a description of its own: the help names the type of the option.
CLI::Validator IsDate() {
    return {
        [](std::string const& text) { return text::ParseDate(text) ? std::string() : text + " is no date"; },
        ""};
}

CLI::Validator IsFitCount() {
    return {[](std::string const& text) {
                bool const good = text == "1" || text == "2" || text == "3";
                return good ? std::string() : text + " is not 1, 2 or 3";
            },
            ""};
}

} // namespace

void AddAnalyse(CLI::App& app, platform::Console const& console, ExitStatus& status) {
    auto const options = std::make_shared<AnalyseOptions>();
    CLI::App* command = app.add_subcommand("analyse", "Analyse the quotes of one contract");
    command->add_option("QUOTES", options->QuotePath, "Quote file to read")->required()->type_name("");
    auto* const parameters = command
                                 ->add_option("--parameters", options->Request.ParameterPath,
                                              "Read the cycles from a parameter file")
                                 ->type_name("FILE.dat");
    command
        ->add_option("--automate", options->Request.AutomatedCycles,
                     "Fit so many cycles to the moving average")
        ->type_name("1|2|3")
        ->check(IsFitCount())
        ->excludes(parameters);
    command->add_option("--moving-average", options->MovingAverage, "Length of the moving average [3]")
        ->type_name("K");
    command->add_option("--format", options->Format, "Number format of prices [####0.00]")->type_name("F");
    command->add_option("--chart-type", options->ChartType, "Kind of quote chart [Daily Bar Chart]")
        ->type_name("T");
    command->add_option("--start", options->Request.StartDate, "First day to analyse")
        ->type_name("mm/dd/yy")
        ->check(IsDate());
    command->add_option("--end", options->Request.EndDate, "Last day to analyse")
        ->type_name("mm/dd/yy")
        ->check(IsDate());
    command->add_flag("--json", options->Json, "Print one JSON object instead of a report");
    command->callback(
        [options, command, &console, &status] { status = Analyse(*options, *command, console); });
}

} // namespace quorvex::cli
