// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// One whole analysis of one quote file, as a user would run it in the window: open, narrow, read or fit
// parameters, correlate, forecast.
#pragma once

#include "app/Program.h"
#include "auxiliary/basProperties.h"
#include "cycles/basAutomate.h"
#include "cycles/basForecast.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "search/basSearch.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvex::app {

struct AnalysisRequest {
    std::optional<std::string> ParameterPath; // parameter file to read
    int AutomatedCycles = 0;                  // cycles to fit; none when 0
    std::string StartDate;                    // first day to analyse; the first of the file when empty
    std::string EndDate;                      // last day to analyse; the last of the file when empty
    std::optional<search::SearchRequest> Search = std::nullopt; // what to look for instead of a fit
};

struct WholeForecast {
    cycles::ForecastCurve Values;
    cycles::ForecastDates Dates;
};

// What an analysis asks of the outside.
struct AnalysisServices {
    cycles::ParameterGrid& Grid;
    platform::Files const& Files;
    platform::Dialogs& Dialogs;
    platform::Dialogs& ParameterDialogs; // for what is wrong with the parameter file
};

// What an analysis leaves beside the program's data, in whose curves stands what could not be computed. What
// does not exist is empty.
struct AnalysisResult {
    std::vector<cycles::SinusoidFit> Fits;
    std::vector<search::CycleModel> Models; // found by the search, of 1, 2 .. cycles; the last is in the grid
    bool IsDetrended = false;               // whether these follow the moving average less its straight line
    std::optional<double> CorrelationCoefficient;
    platform::Message CorrelationMessage; // what the Correlation command would show
    std::optional<WholeForecast> ForecastShown;
    std::optional<std::vector<auxiliary::PropertyCaption>> Properties;
};

// The first step of an analysis alone: opens the quote file and narrows it to the days asked for. Returns
// whether there are such days; what is in the way goes to the dialogs.
[[nodiscard]] bool OpenQuotes(Program& program, AnalysisServices const& services,
                              AnalysisRequest const& request);

// Takes the cycles of the parameter file up through the grid. Returns whether the whole file could be read
// and one cycle at least is active; what is in the way goes to the dialogs of the parameters, the first of
// it.
[[nodiscard]] bool TakeParameters(Program& program, AnalysisServices const& services,
                                  std::string const& path);

// Analyses the quote file that the program's settings and file name point at; the program has just been
// started up. Messages and faults go to the dialogs; after them the analysis goes on with what there is,
// only a fit or a search that fails leaves no cycles. Nothing comes back when the quote file was refused or
// could not be read, or when it has no such days as were asked for.
[[nodiscard]] std::optional<AnalysisResult> Analyse(Program& program, AnalysisServices const& services,
                                                    AnalysisRequest const& request);

} // namespace quorvex::app
