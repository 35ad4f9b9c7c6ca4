// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The curves of the four charts: what each day's value is. What looks odd here is meant: docs/behaviour.md.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"

#include <cstdint>
#include <string_view>

namespace quorvex::cycles {

// The full circle as every curve takes it.
inline constexpr double TwoPi = 6.28318530717958;

// The height of the price scale in cycle units: -100..+100.
inline constexpr double ScaleHeight = 200;

// The days that the cycles are shown for: the working days, or 100 when there are none.
[[nodiscard]] std::int16_t CurveDays(std::int16_t workingCount);

// Computes the curve of each active cycle for days 1..n+25, n being the days above: Weight x sin(2 pi day /
// Period + phase), the phase 2 pi / Shift or 0 when Shift is 0. An inactive cycle keeps its curve. Raises
// "Overflow" when a value leaves the range of a double.
void ComputeCycleValues(CycleParameterSet& set, std::int16_t workingCount);

// Sums the curves of all ten cycles, active or not, for the same days.
void ComputeComposite(CycleParameterSet const& set, std::int16_t workingCount, CycleCurve& compositeCurve);

// The moving average's length: its text's leading number, rounded to a whole number.
[[nodiscard]] std::int16_t MovingAverageLength(std::string_view movingAverageIndex);

// How many days at each end of the series have a shrinking window, of which the largest has one day less than
// twice as many. REQUIRES: length 2 or more.
[[nodiscard]] int MovingAverageReach(std::int16_t length);

// Computes the centred moving average of the working closes for days 1..n: the closes themselves below a
// length of 2, shrinking windows at both ends. The sum in the middle is divided by the length, although an
// even length sums one day more. Raises "Subscript out of range" when the windows at the ends reach beyond
// the arrays.
void ComputeMovingAverage(quotes::QuoteSeries const& series, std::int16_t length,
                          QuoteCurve& movingAverageCurve);

// Computes moving average minus composite for days 1..n in cycle units, in which the price scale spans
// -100..+100. Raises "Division by zero" for a price scale without height.
void ComputeResidual(CycleCurves& curves, quotes::PriceScale const& scale, std::int16_t workingCount);

// Bounds of the residual chart.
struct ResidualScale {
    double High = 0;
    double Low = 0;
};

// The largest and smallest residual of days 1..n, widened: first the upper bound by a tenth of their
// distance, then the lower one by a tenth of the distance from the widened upper bound. REQUIRES: n is 1 or
// more.
[[nodiscard]] ResidualScale ScaleResidual(QuoteCurve const& residualCurve, std::int16_t workingCount);

} // namespace quorvex::cycles
