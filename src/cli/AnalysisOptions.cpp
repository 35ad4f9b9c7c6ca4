// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisOptions.h"

#include "cli/QuotePath.h"
#include "cli/SearchOptions.h"
#include "cli/SettingOptions.h"
#include "text/basDates.h"

namespace quorvex::cli {

namespace {

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

void AddQuoteOptions(CLI::App& command, AnalysisOptions& options) {
    command.add_option("QUOTES", options.QuotePath, "Quote file to read")->required()->type_name("");
    AddReadingOptions(command, options, "--format");
}

void AddReadingOptions(CLI::App& command, AnalysisOptions& options, std::string const& formatName) {
    AddMovingAverageOption(command, options.MovingAverage);
    AddFormatOption(command, options.Format, formatName);
    command.add_option("--start", options.Request.StartDate, "First day to analyse")
        ->type_name("mm/dd/yy")
        ->check(IsDate());
    command.add_option("--end", options.Request.EndDate, "Last day to analyse")
        ->type_name("mm/dd/yy")
        ->check(IsDate());
}

void AddCycleOptions(CLI::App& command, AnalysisOptions& options) {
    auto* const parameters = command
                                 .add_option("--parameters", options.Request.ParameterPath,
                                             "Read the cycles from a parameter file")
                                 ->type_name("FILE.dat");
    auto* const automate = command
                               .add_option("--automate", options.Request.AutomatedCycles,
                                           "Fit so many cycles to the moving average")
                               ->type_name("1|2|3")
                               ->check(IsFitCount())
                               ->excludes(parameters);
    AddSearchOptions(command, "--search", options.Request.Search)->excludes(parameters)->excludes(automate);
}

void AddAnalysisOptions(CLI::App& command, AnalysisOptions& options) {
    AddQuoteOptions(command, options);
    AddCycleOptions(command, options);
    AddChartTypeOption(command, options.ChartType);
}

void TakeAnalysisOptions(AnalysisOptions const& options, app::Program& program) {
    RequirePeriods(options.Request.Search);
    settings::Settings& settings = program.Settings;
    settings.MovingAverageIndex = options.MovingAverage.value_or(settings.MovingAverageIndex);
    settings.CurrencyFormat = options.Format.value_or(settings.CurrencyFormat);
    settings.ChartType = options.ChartType.value_or(settings.ChartType);
    TakeQuotePath(options.QuotePath, settings, program.Quotes);
}

} // namespace quorvex::cli
