// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basRecompute.h"

#include "chart/basScale.h"
#include "cycles/basCurves.h"

namespace quorvex::app {

namespace {

void ComputeMovingAverage(Program& program) {
    cycles::ComputeMovingAverage(program.Quotes,
                                 cycles::MovingAverageLength(program.Settings.MovingAverageIndex),
                                 program.Curves.MovingAverageCurve);
}

} // namespace

void RecomputeQuotes(Program& program) {
    if (!program.Quotes.HasQuotes()) {
        return;
    }
    program.PriceScale = chart::ComputePriceScale(program.Quotes);
    // A scale without height has no place for any price, and the moving average is drawn on it.
    static_cast<void>(text::Divide(1, program.PriceScale.PriceScaleHigh - program.PriceScale.PriceScaleLow));
    ComputeMovingAverage(program);
}

void RefreshMovingAverage(Program& program) {
    static_cast<void>(text::Trap([&] { RecomputeQuotes(program); }));
    static_cast<void>(text::Trap([&] { ComputeMovingAverage(program); }));
}

RecomputeFaults Recompute(Program& program, Services& services) {
    RecomputeFaults faults;
    cycles::ReadGrid(services.Grid, program.Cycles, services.Pending);
    faults.Quotes = text::Trap([&] { RecomputeQuotes(program); });
    if (!cycles::HasActiveCycle(program.Cycles)) {
        return faults;
    }
    auto const count = program.Quotes.WorkingCount;
    faults.Cycles = text::Trap([&] {
        cycles::ComputeCycleValues(program.Cycles, count);
        cycles::ComputeComposite(program.Cycles, count, program.Curves.CompositeCurve);
    });
    if (program.Quotes.HasQuotes() && !faults.Cycles) {
        faults.Residual =
            text::Trap([&] { cycles::ComputeResidual(program.Curves, program.PriceScale, count); });
    }
    return faults;
}

} // namespace quorvex::app
