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
        // In place: a cleared record to copy from would be as long once more.
        CycleRecord& record = set.Cycles[cycle];
        record.Weight = 0;
        record.Period = 0;
        record.Shift = 0;
        record.Decay = 0;
        record.Values.Fill(0);
    }
    compositeCurve.Fill(0);
}

} // namespace quorvex::cycles
