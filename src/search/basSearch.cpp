// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearch.h"

#include "cycles/CycleParameterSet.h"
#include "cycles/basCorrel.h"
#include "cycles/basCurves.h"
#include "search/basNormalised.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

namespace quorvex::search {

namespace {

// What is left of a straight line by rounding, as a part of the series' largest value.
constexpr double LeastRest = 1e-9;

std::vector<int> PeriodsOf(SearchRequest const& request, int days) {
    int const count = MaxPeriodOf(request, days) - request.MinPeriod + 1;
    std::vector<int> periods(static_cast<std::size_t>(std::max(0, count)));
    std::iota(periods.begin(), periods.end(), request.MinPeriod);
    return periods;
}

// What is searched; empty when nothing changes in it.
std::vector<double> Searched(std::span<double const> series, SearchRequest const& request) {
    if (!request.Detrend) {
        return {series.begin(), series.end()};
    }
    std::vector<double> rest = WithoutLine(series);
    return LargestSize(rest) > LeastRest * LargestSize(series) ? rest : std::vector<double>();
}

// Why nothing was found in what is left of the series.
std::string RefusalOf(std::span<double const> series, std::span<double const> searched,
                      SearchRequest const& request) {
    if (Normalised(series).empty()) {
        return "The moving average does not change: there is no cycle in it";
    }
    if (Normalised(searched).empty()) {
        return "The moving average is a straight line: there is no cycle in it";
    }
    return "No cycle of " + std::to_string(request.MinPeriod) + " to " +
           std::to_string(MaxPeriodOf(request, static_cast<int>(series.size()))) +
           " days follows the moving average";
}

} // namespace

int MaxPeriodOf(SearchRequest const& request, int days) {
    return request.MaxPeriod.value_or(days / 2);
}

std::vector<double> WithoutLine(std::span<double const> series) {
    auto const n = static_cast<double>(series.size());
    double const middle = (n - 1) / 2;
    double mean = 0;
    for (double const value : series) {
        mean += value / n;
    }
    double moment = 0;
    double square = 0;
    for (std::size_t day = 0; day < series.size(); ++day) {
        double const place = static_cast<double>(day) - middle;
        moment += place * (series[day] - mean);
        square += place * place;
    }
    double const slope = square > 0 ? moment / square : 0;
    std::vector<double> rest;
    rest.reserve(series.size());
    for (std::size_t day = 0; day < series.size(); ++day) {
        rest.push_back(series[day] - mean - slope * (static_cast<double>(day) - middle));
    }
    return rest;
}

SearchOutcome SearchSeries(std::span<double const> series, SearchRequest const& request, GoOn const& goOn,
                           TakeModel const& take) {
    auto const days = static_cast<int>(series.size());
    std::vector<int> const periods = PeriodsOf(request, days);
    if (periods.empty()) {
        return {{},
                "No period lies between " + std::to_string(request.MinPeriod) + " and " +
                    std::to_string(MaxPeriodOf(request, days)) + " days" +
                    (request.MaxPeriod ? "" : " (half the days)")};
    }
    std::vector<double> const searched = Searched(series, request);
    bool isEnded = false;
    auto const follow = [&] {
        isEnded = isEnded || !goOn();
        return !isEnded;
    };
    SearchAim const aim{request.CycleCount, request.HowHard, request.LeastSwing};
    SearchOutcome outcome{CycleSearch(days, periods).Find(searched, aim, follow, take), {}};
    if (outcome.Models.empty() && !isEnded) {
        outcome.Refusal = RefusalOf(series, searched, request);
    }
    return outcome;
}

SearchOutcome SearchMovingAverage(cycles::CycleCurves const& curves, std::int16_t workingCount,
                                  SearchRequest const& request, GoOn const& goOn) {
    return SearchSeries(MovingAverageSeries(curves, workingCount), request, goOn);
}

std::vector<double> MovingAverageSeries(cycles::CycleCurves const& curves, std::int16_t workingCount) {
    std::vector<double> series;
    for (int day = 1; day <= workingCount; ++day) {
        series.push_back(curves.MovingAverageCurve[day]);
    }
    return series;
}

Extremes ExtremesOf(cycles::CycleCurve const& composite, std::int16_t workingCount) {
    Extremes extremes;
    for (int day = 1; day <= workingCount; ++day) {
        extremes.Lowest = std::min(extremes.Lowest, composite[day]);
        extremes.Highest = std::max(extremes.Highest, composite[day]);
    }
    return extremes;
}

GridComposite CompositeInGrid(CycleModel const& model, cycles::CycleCurves const& curves,
                              std::int16_t workingCount) {
    cycles::TextGrid grid;
    WriteModel(model, grid);
    platform::NoPendingMessages pending;
    auto const set = std::make_unique<cycles::CycleParameterSet>();
    cycles::ReadGrid(grid, *set, pending);
    auto const computed = std::make_unique<cycles::CycleCurves>(curves);
    cycles::ComputeCycleValues(*set, workingCount);
    cycles::ComputeComposite(*set, workingCount, computed->CompositeCurve);
    return {cycles::CoefficientOfCorrelation(*computed, workingCount),
            ExtremesOf(computed->CompositeCurve, workingCount)};
}

void WriteModel(CycleModel const& model, cycles::ParameterGrid& grid) {
    cycles::ClearGrid(grid);
    int cycle = 0;
    for (FoundCycle const& found : model.Cycles) {
        ++cycle;
        cycles::WriteCell(grid, cycles::Parameter::Weight, cycle, found.Weight);
        cycles::WriteCell(grid, cycles::Parameter::Period, cycle, found.Period);
        cycles::WriteCell(grid, cycles::Parameter::Shift, cycle, found.Shift);
    }
}

} // namespace quorvex::search
