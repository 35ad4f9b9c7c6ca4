// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basComputation.h"

#include "cycles/basCurves.h"
#include "settings/ChartTypes.h"

#include <initializer_list>
#include <optional>

namespace quorvex::cycles {

namespace {

// In twips. Nobody shows a box that is higher.
constexpr double HighestBox = 1'000'000;

// Raises "Overflow" for a value beyond what a box can show of which each unit takes so many twips.
void RequireShowable(double value, double twipsOfUnit) {
    static_cast<void>(text::RequireFinite(value * twipsOfUnit));
}

// The twips of a unit in the highest box. Raises "Division by zero" for an axis without height.
double TwipsOfUnit(double top, double bottom) {
    double const twips = text::Divide(HighestBox, top - bottom);
    RequireShowable(top + bottom, twips);
    return twips;
}

void RequireShowableQuotes(quotes::QuoteSeries const& series, settings::QuoteStyle style, double twips) {
    for (int day = 1; day <= series.WorkingCount; ++day) {
        RequireShowable(series.Working[day].Close, twips);
        if (style != settings::QuoteStyle::Line) {
            RequireShowable(series.Working[day].Open, twips);
        }
    }
}

std::optional<Need> NeedOfQuotes(quotes::QuoteSeries const& series) {
    if (!series.HasQuotes()) {
        return Need::QuoteFile;
    }
    return series.WorkingCount > 0 ? std::nullopt : std::optional(Need::Quotes);
}

std::optional<Need> NeedOfCycles(CycleParameterSet const& set) {
    return HasActiveCycle(set) ? std::nullopt : std::optional(Need::ActiveCycle);
}

std::optional<Need> NeedOfResidual(quotes::QuoteSeries const& series, CycleParameterSet const& set) {
    auto const need = NeedOfQuotes(series);
    return need ? need : NeedOfCycles(set);
}

void ComputeShowableCycles(CycleParameterSet& set, std::int16_t workingCount) {
    ComputeCycleValues(set, workingCount);
    for (int index = 1; index <= CycleCount; ++index) {
        if (set.Cycles[index].IsActive()) {
            RequireShowable(set.Cycles[index].Weight, HighestBox);
        }
    }
}

void ComputeShowableComposite(CycleParameterSet const& set, std::int16_t workingCount, CycleCurve& curve) {
    ComputeComposite(set, workingCount, curve);
    for (int day = 1; day <= CurveDays(workingCount); ++day) {
        RequireShowable(curve[day], HighestBox);
    }
}

void ComputeShowableResidual(CycleCurves& curves, std::int16_t workingCount) {
    ComputeResidual(curves, curves.PriceScale, workingCount);
    auto const bounds = ScaleResidual(curves.ResidualCurve, workingCount);
    static_cast<void>(TwipsOfUnit(bounds.High, bounds.Low));
}

// Computes what rests on what was computed before, unless that ended with a fault, which then is its own.
template <class Routine>
ChartState ComputeAfter(ChartState const& before, Routine&& routine) {
    ChartState state;
    state.Fault = before.Fault ? before.Fault : text::Trap(routine);
    return state;
}

void ComputeFromCycles(quotes::QuoteSeries const& series, CycleParameterSet& set, CycleCurves& curves) {
    std::int16_t const count = series.WorkingCount;
    ChartStates& states = curves.States;
    states.Cycles = ComputeAfter({}, [&] { ComputeShowableCycles(set, count); });
    states.Composite =
        ComputeAfter(states.Cycles, [&] { ComputeShowableComposite(set, count, curves.CompositeCurve); });
    if (!NeedOfQuotes(series)) {
        states.Residual = ComputeAfter(states.Composite, [&] { ComputeShowableResidual(curves, count); });
    }
}

} // namespace

void ComputeCurves(quotes::QuoteSeries const& series, settings::Settings const& settings,
                   CycleParameterSet& set, CycleCurves& curves) {
    ComputeQuoteCurves(series, settings, curves);
    ComputeCurvesOfCycles(series, set, curves);
}

void ComputeCurvesOfCycles(quotes::QuoteSeries const& series, CycleParameterSet& set, CycleCurves& curves) {
    MarkEmptyCharts(series, set, curves.States);
    if (!NeedOfCycles(set)) {
        ComputeFromCycles(series, set, curves);
    }
}

void ComputeQuoteCurves(quotes::QuoteSeries const& series, settings::Settings const& settings,
                        CycleCurves& curves) {
    ChartState& state = curves.States.Quotes;
    state = {NeedOfQuotes(series), {}};
    if (state.Missing) {
        return;
    }
    curves.PriceScale = {};
    state.Fault = text::Trap([&] {
        curves.PriceScale = quotes::ComputePriceScale(series);
        double const twips = TwipsOfUnit(curves.PriceScale.PriceScaleHigh, curves.PriceScale.PriceScaleLow);
        RequireShowableQuotes(series, settings::ChartTypeOf(settings.ChartType).Style, twips);
    });
    if (!state.Fault) {
        RefreshMovingAverage(series, settings, curves);
    }
}

void RefreshMovingAverage(quotes::QuoteSeries const& series, settings::Settings const& settings,
                          CycleCurves& curves) {
    ChartState state;
    state.Fault = text::Trap([&] {
        curves.MovingAverageLength = MovingAverageLength(settings.MovingAverageIndex);
        ComputeMovingAverage(series, curves.MovingAverageLength, curves.MovingAverageCurve);
    });
    curves.States.MovingAverage = state;
}

void MarkEmptyCharts(quotes::QuoteSeries const& series, CycleParameterSet const& set, ChartStates& states) {
    if (auto const need = NeedOfQuotes(series)) {
        states.Quotes = {need, {}};
    }
    if (auto const need = NeedOfCycles(set)) {
        for (ChartState* state : {&states.Cycles, &states.Composite}) {
            *state = {need, {}};
        }
    }
    if (auto const need = NeedOfResidual(series, set)) {
        states.Residual = {need, {}};
    }
}

} // namespace quorvex::cycles
