// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Computes everything that the charts, their words, the companion and the benchmarks show. Faults do not come
// through: they stand in the states of the charts.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

namespace quorvex::cycles {

// Computes price scale and moving average, and with the active cycles their curves, the composite and, of
// open quotes, the residual.
//
// A value too large for a box of any height counts as a fault of its chart. Prices that cannot be shown, such
// as those without a range, leave the moving average and its state as they were. Without all cycles there is
// no composite, without a composite no residual.
void ComputeCurves(quotes::QuoteSeries const& series, settings::Settings const& settings,
                   CycleParameterSet& set, CycleCurves& curves);

// The part of the quotes: price scale and moving average.
void ComputeQuoteCurves(quotes::QuoteSeries const& series, settings::Settings const& settings,
                        CycleCurves& curves);

// The rest, which follows from that part.
void ComputeCurvesOfCycles(quotes::QuoteSeries const& series, CycleParameterSet& set, CycleCurves& curves);

// The moving average alone, whatever the prices are.
void RefreshMovingAverage(quotes::QuoteSeries const& series, settings::Settings const& settings,
                          CycleCurves& curves);

// Makes the charts empty that have nothing to show any more, as after the quote file was closed, and leaves
// the others.
void MarkEmptyCharts(quotes::QuoteSeries const& series, CycleParameterSet const& set, ChartStates& states);

} // namespace quorvex::cycles
