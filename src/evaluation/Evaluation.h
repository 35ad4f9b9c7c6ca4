// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a test of forecasts found.
#pragma once

#include "evaluation/basBootstrap.h"
#include "evaluation/basFigures.h"
#include "evaluation/basForecasts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::evaluation {

struct HorizonReport {
    evaluation::Figures Figures;
    FigureIntervals Intervals;
    std::optional<double> Chance; // of such an error ratio without skill, corrected; none when not tested
    bool IsBetter = false;        // than the last close, beyond chance
};

using HorizonReports = std::array<HorizonReport, Horizons.size()>;

struct KindReport {
    int ForecastCount = 0; // origins with a forecast
    HorizonReports ByHorizon;
};

// How one of the searches follows the days that it has seen, and the surrogates theirs.
struct SurrogateReport {
    int CycleCount = 0;
    double Correlation = 0; // with the moving average of all days
    int AsWell = 0;         // surrogates that correlate at least as well
};

struct ModelReport {
    evaluation::Model Model;
    std::array<KindReport, ForecastKinds.size()> ByKind;
    std::map<std::string, int> Faults; // origins without a forecast, by what is in the way
    std::string Verdict;               // a sentence without its subject and full stop

    [[nodiscard]] KindReport const& Of(ForecastKind kind) const {
        return ByKind.at(static_cast<std::size_t>(kind));
    }
};

struct Origin {
    int Day = 0;                          // of the working days, from 1 on
    std::vector<ModelForecast> Forecasts; // in the order of the models
};

struct Evaluation {
    std::string QuoteFileName;
    std::vector<std::string> Dates; // day 1 first, as the next
    std::vector<double> Closes;
    int MovingAverageLength = 0;
    int Every = 0;
    int BlockLength = 0; // origins
    int SampleCount = 0;
    std::vector<Origin> Origins;
    std::array<double, Horizons.size()> LastCloseError{}; // mean absolute error, in prices
    HorizonReports Drift;                                 // the mean daily change so far goes on
    std::vector<ModelReport> Models;
    int SurrogateCount = 0;
    std::vector<SurrogateReport> Surrogates; // of the searches among the models

    // Whether the cycles of a model may have been chosen with the days in view that it is tested on.
    [[nodiscard]] bool HasFixedCycles() const {
        return std::any_of(Models.begin(), Models.end(),
                           [](ModelReport const& report) { return !IsRefitted(report.Model); });
    }

    [[nodiscard]] std::string const& DateOf(Origin const& origin) const {
        return Dates[static_cast<std::size_t>(origin.Day) - 1];
    }
};

} // namespace quorvex::evaluation
