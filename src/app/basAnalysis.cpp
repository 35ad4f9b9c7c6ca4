// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basAnalysis.h"

#include "app/basRecompute.h"
#include "cycles/basCorrel.h"
#include "cycles/basParameters.h"
#include "platform/basMessages.h"
#include "quotes/basDateRange.h"
#include "quotes/basDisk.h"
#include "text/RunTimeError.h"

namespace quorvex::app {

namespace {

void Report(std::optional<text::RunTimeError> const& error, platform::Dialogs& dialogs) {
    if (error) {
        platform::ShowError(dialogs, *error);
    }
}

void NarrowDates(Program& program, platform::Dialogs& dialogs, AnalysisRequest const& request) {
    if (request.StartDate.empty() && request.EndDate.empty()) {
        return;
    }
    quotes::DateRange range{request.StartDate.empty() ? program.Quotes.FirstQuoteDate : request.StartDate,
                            request.EndDate.empty() ? program.Quotes.LastQuoteDate : request.EndDate};
    Report(text::Trap([&] { quotes::AdjustQuoteDateRange(program.Quotes, range); }), dialogs);
}

void TakeParameters(Program& program, Services& services, AnalysisRequest const& request,
                    AnalysisResult& result) {
    if (!request.ParameterPath.empty()) {
        program.Cycles.ParameterFileName = request.ParameterPath;
        cycles::ReadParameterFile(request.ParameterPath, program.Cycles, services.Files, services.Dialogs);
        Report(text::Trap([&] { cycles::WriteGrid(program.Cycles, services.Grid); }), services.Dialogs);
    }
    if (request.AutomatedCycles > 0) {
        Report(text::Trap([&] {
                   cycles::AutomateCycles(request.AutomatedCycles, program.Quotes.WorkingCount,
                                          program.Curves, program.Cycles, services.Grid, result.Fits);
               }),
               services.Dialogs);
    }
}

void Correlate(Program const& program, AnalysisResult& result) {
    auto const error = text::Trap([&] {
        result.CorrelationCoefficient =
            cycles::CoefficientOfCorrelation(program.Curves, program.Quotes.WorkingCount);
        result.CorrelationMessage = cycles::CorrelationMessage(result.CorrelationCoefficient);
    });
    if (error) {
        result.CorrelationMessage = platform::ErrorMessage(*error);
    }
}

Forecast ComputeWholeForecast(Program const& program) {
    Forecast forecast;
    forecast.Values = cycles::ComputeForecast(program.Cycles, program.Quotes);
    forecast.Dates = cycles::ComputeForecastDates(program.Quotes.LastQuoteDate);
    forecast.PreviousCloses = cycles::PreviousCloseLines(program.Quotes);
    forecast.EstimatedValues = cycles::EstimatedValueLines(forecast.Values, forecast.Dates);
    return forecast;
}

} // namespace

std::optional<AnalysisResult> Analyse(Program& program, Services& services, AnalysisRequest const& request) {
    if (quotes::LoadQuoteFile(program.Quotes, program.Settings, services.Files, services.Dialogs) == 0) {
        return std::nullopt;
    }
    AnalysisResult result;
    NarrowDates(program, services.Dialogs, request);
    auto faults = Recompute(program, services);
    Report(faults.Quotes, services.Dialogs);
    result.HasMovingAverage = !faults.Quotes;
    TakeParameters(program, services, request, result);
    faults = Recompute(program, services);
    Report(faults.Cycles, services.Dialogs);
    bool const active = cycles::HasActiveCycle(program.Cycles);
    result.HasComposite = active && !faults.Cycles;
    result.HasResidual = result.HasComposite && result.HasMovingAverage && !faults.Residual;
    Correlate(program, result);
    if (cycles::SumOfWeights(services.Grid) != 0) {
        Report(text::Trap([&] { result.ForecastShown = ComputeWholeForecast(program); }), services.Dialogs);
    }
    return result;
}

} // namespace quorvex::app
