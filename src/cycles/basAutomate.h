// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Finds cycles in the centred moving average: each frequency is estimated in closed form, amplitude and phase
// follow by least squares, and the sinusoid is taken off the series before the next one is sought.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"

#include <cstdint>
#include <vector>

namespace quorvex::cycles {

// The sinusoid a cos(w t) + b sin(w t), t in days from 1.
struct SinusoidFit {
    double Amplitude = 0;
    double Frequency = 0; // w, radians a day
    double Phase = 0;     // radians
    double CosineCoefficient = 0;
    double SineCoefficient = 0;
};

// The angle whose cosine is x, in radians; 0 from 1 on and from -1 down (docs/behaviour.md).
[[nodiscard]] double ArcCosine(double x);

// Fits one sinusoid to the values 1..count. Raises "Division by zero" when no point tells a frequency or the
// least squares have no solution.
[[nodiscard]] SinusoidFit FitSinusoid(QuoteCurve const& series, std::int16_t count);

// Clears set, composite and grid, fits 1, 2 or 3 cycles to the moving average of the working days and writes
// them into the grid, with fixed weights, as whole numbers. The fits are put into the list as they are made.
// Without working days nothing happens. A fault, from FitSinusoid or "Overflow" of a Period or Shift, leaves
// what was written before.
void AutomateCycles(int cycleCount, std::int16_t workingCount, CycleCurves& curves, CycleParameterSet& set,
                    ParameterGrid& grid, std::vector<SinusoidFit>& fits);

} // namespace quorvex::cycles
