// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The cycle model: ten sine cycles.
#pragma once

#include "cycles/CycleCurves.h"
#include "text/SlotArray.h"

#include <string>

namespace quorvex::cycles {

inline constexpr int CycleCount = 10;

struct CycleRecord {
    double Weight = 0; // amplitude in cycle units
    double Period = 0; // trading days of one full cycle
    double Shift = 0;  // the phase is 2 pi / Shift
    double Decay = 0;  // kept with the others; no computation reads it
    CycleCurve Values; // the curve last computed, which an inactive cycle keeps

    // Whether the cycle takes part in curves and forecast.
    [[nodiscard]] bool IsActive() const { return Weight != 0 && Period != 0; }
};

struct CycleParameterSet {
    text::SlotArray<CycleRecord, CycleCount> Cycles; // 1..10
    std::string ParameterFileName;                   // whole path; empty when no parameter file is open
};

// Whether one cycle at least is active.
[[nodiscard]] bool HasActiveCycle(CycleParameterSet const& set);

// Sets the four parameters and the curve of every cycle to zero, and with them the composite.
void ClearCycles(CycleParameterSet& set, CycleCurve& compositeCurve);

} // namespace quorvex::cycles
