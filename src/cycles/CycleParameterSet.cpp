// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/CycleParameterSet.h"

namespace quorvex::cycles {

bool HasActiveCycle(CycleParameterSet const& set) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        if (set.Cycles[cycle].IsActive()) {
            return true;
        }
    }
    return false;
}

void ClearCycles(CycleParameterSet& set, CycleCurve& compositeCurve) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        set.Cycles[cycle] = CycleRecord();
    }
    compositeCurve.Fill(0);
}

} // namespace quorvex::cycles
