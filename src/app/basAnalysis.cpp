// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basAnalysis.h"

#include "cycles/basComputation.h"
#include "cycles/basCorrel.h"
#include "cycles/basParameters.h"
#include "platform/basMessages.h"
#include "quotes/basDateRange.h"
#include "quotes/basDisk.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"

#include <utility>

namespace quorvex::app {

namespace {

void Report(cycles::ChartState const& state, platform::Dialogs& dialogs) {
    if (state.Fault) {
        platform::ShowError(dialogs, *state.Fault);
    }
}

// Narrows the quotes to the days asked for. Returns false, after saying why, when there are no such days: the
// rules of the preferences window would then analyse other days than the ones asked for.
bool NarrowDates(Program& program, platform::Dialogs& dialogs, AnalysisRequest const& request) {
    if (request.StartDate.empty() && request.EndDate.empty()) {
        return true;
    }
    quotes::QuoteSeries& series = program.Quotes;
    quotes::DateRange range{request.StartDate.empty() ? series.FirstQuoteDate : request.StartDate,
                            request.EndDate.empty() ? series.LastQuoteDate : request.EndDate};
    std::string refusal;
    bool const narrowed = platform::RunReported(dialogs, [&] {
        auto const start = text::RequireDate(range.Start);
        auto const end = text::RequireDate(range.End);
        auto const last = text::RequireDate(series.LastQuoteDate);
        if (start > last) {
            refusal = "No quote is dated " + range.Start + " or later";
        } else if (end <= start) {
            refusal = "The start date must lie before the end date";
        } else if (quotes::AdjustQuoteDateRange(series, range);
                   text::RequireDate(series.LastQuoteDate) != end) {
            refusal = "No quote is dated " + range.End;
        }
    });
    if (!refusal.empty()) {
        platform::ShowWarning(dialogs, refusal);
    }
    return narrowed && refusal.empty();
}

// Returns whether there was no fault; after one the grid has what was read before it.
bool ReadParameters(Program& program, AnalysisServices const& services, std::string const& path) {
    program.Cycles.ParameterFileName = path;
    bool const isRead =
        cycles::ReadParameterFile(path, program.Cycles, services.Files, services.ParameterDialogs);
    bool const isWritten = platform::RunReported(services.ParameterDialogs,
                                                 [&] { cycles::WriteGrid(program.Cycles, services.Grid); });
    return isRead && isWritten;
}

// Returns whether all cycles were fitted.
bool FitCycles(Program& program, AnalysisServices const& services, int cycleCount,
               std::vector<cycles::SinusoidFit>& fits) {
    // It has been computed, unless the prices cannot be shown.
    if (cycleCount > 1 && !program.Curves.States.MovingAverage.IsReady()) {
        cycles::RefreshMovingAverage(program.Quotes, program.Settings, program.Curves);
    }
    return platform::RunReported(services.Dialogs, [&] {
        cycles::AutomateCycles(cycleCount, program.Quotes.WorkingCount, program.Curves, program.Cycles,
                               services.Grid, fits);
    });
}

// Returns whether there was something to find cycles in.
bool FindCycles(Program const& program, AnalysisServices const& services,
                search::SearchRequest const& request, std::vector<search::CycleModel>& models) {
    if (!program.Curves.States.MovingAverage.IsReady()) {
        return false; // which has been told
    }
    search::SearchOutcome outcome = search::SearchMovingAverage(program.Curves, program.Quotes.WorkingCount,
                                                                request, [] { return true; });
    if (!outcome.Refusal.empty()) {
        platform::ShowWarning(services.Dialogs, outcome.Refusal);
        return false;
    }
    models = std::move(outcome.Models);
    search::WriteModel(models.back(), services.Grid);
    return true;
}

// Puts cycles into the grid as it was asked for. Returns false when those could not be found.
bool MakeCycles(Program& program, AnalysisServices const& services, AnalysisRequest const& request,
                AnalysisResult& result) {
    if (request.ParameterPath) {
        ReadParameters(program, services, *request.ParameterPath);
    }
    if (request.Search) {
        result.IsDetrended = request.Search->Detrend;
        return FindCycles(program, services, *request.Search, result.Models);
    }
    return request.AutomatedCycles == 0 || FitCycles(program, services, request.AutomatedCycles, result.Fits);
}

void Correlate(Program const& program, AnalysisResult& result) {
    auto const error = text::Trap([&] {
        if (program.Curves.States.MovingAverage.IsReady()) {
            result.CorrelationCoefficient =
                cycles::CoefficientOfCorrelation(program.Curves, program.Quotes.WorkingCount);
        }
        result.CorrelationMessage = cycles::CorrelationMessage(result.CorrelationCoefficient);
    });
    if (error) {
        result.CorrelationMessage = platform::ErrorMessage(*error);
    }
}

WholeForecast ComputeWholeForecast(Program const& program) {
    WholeForecast forecast;
    forecast.Values = cycles::ComputeForecast(program.Cycles, program.Quotes);
    forecast.Dates = cycles::ComputeForecastDates(program.Quotes.LastQuoteDate);
    return forecast;
}

// Takes the cycles up from the grid, computes everything and forecasts.
void FollowCycles(Program& program, AnalysisServices const& services, AnalysisResult& result) {
    platform::NoPendingMessages pending;
    cycles::ReadGrid(services.Grid, program.Cycles, pending);
    cycles::ComputeCurvesOfCycles(program.Quotes, program.Cycles, program.Curves);
    cycles::ChartStates const& states = program.Curves.States;
    Report(states.Composite, services.Dialogs); // which has the fault of the cycles, if they have one
    if (states.Composite.IsReady() && states.MovingAverage.IsReady()) {
        Report(states.Residual, services.Dialogs);
    }
    if (cycles::SumOfWeights(services.Grid) != 0) {
        platform::RunReported(services.Dialogs,
                              [&] { result.ForecastShown = ComputeWholeForecast(program); });
    }
}

} // namespace

bool OpenQuotes(Program& program, AnalysisServices const& services, AnalysisRequest const& request) {
    return quotes::LoadQuoteFile(program.Quotes, program.Settings, services.Files, services.Dialogs) != 0 &&
           NarrowDates(program, services.Dialogs, request);
}

bool TakeParameters(Program& program, AnalysisServices const& services, std::string const& path) {
    if (!ReadParameters(program, services, path)) {
        return false;
    }
    platform::NoPendingMessages pending;
    if (cycles::ReadGrid(services.Grid, program.Cycles, pending) && cycles::HasActiveCycle(program.Cycles)) {
        return true;
    }
    platform::ShowWarning(services.ParameterDialogs, "There is no cycle with a weight and a period");
    return false;
}

std::optional<AnalysisResult> Analyse(Program& program, AnalysisServices const& services,
                                      AnalysisRequest const& request) {
    if (!OpenQuotes(program, services, request)) {
        return std::nullopt;
    }
    AnalysisResult result;
    cycles::ComputeQuoteCurves(program.Quotes, program.Settings, program.Curves);
    Report(program.Curves.States.Quotes, services.Dialogs);
    Report(program.Curves.States.MovingAverage, services.Dialogs);
    if (MakeCycles(program, services, request, result)) {
        FollowCycles(program, services, result);
    }
    Correlate(program, result);
    platform::RunReported(services.Dialogs, [&] {
        result.Properties = auxiliary::DescribeQuotes(program.Quotes, program.Settings.CurrencyFormat);
    });
    return result;
}

} // namespace quorvex::app
