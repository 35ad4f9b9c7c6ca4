// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/Program.h"
#include "app/basAnalysis.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace quorvex::cli {

// The options that every sub-command with an analysis takes, as typed; what is missing keeps the program's
// default.
struct AnalysisOptions {
    std::string QuotePath;
    std::optional<std::string> MovingAverage;
    std::optional<std::string> Format;
    std::optional<std::string> ChartType;
    app::AnalysisRequest Request;
};

// They add what they tell to the sub-command. The options must outlive it.

// The quote file, and with it what tells how it is read.
void AddQuoteOptions(CLI::App& command, AnalysisOptions& options);

// Moving average, the number format of prices under this name, and the days to analyse.
void AddReadingOptions(CLI::App& command, AnalysisOptions& options, std::string const& formatName);

// Where cycles come from: a parameter file, a fit or a search.
void AddCycleOptions(CLI::App& command, AnalysisOptions& options);

// All of these, and the chart type.
void AddAnalysisOptions(CLI::App& command, AnalysisOptions& options);

// Puts the settings and the quote file of the options into the started program.
void TakeAnalysisOptions(AnalysisOptions const& options, app::Program& program);

} // namespace quorvex::cli
