// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"
#include "cycles/basAutomate.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvex::bench {

// The curves of the 500 generated days.
class CycleWork {
public:
    // Computes everything once; throws when the three-cycle fit went wrong.
    CycleWork();

    void Average(std::int16_t length);
    void ComputeTenCycles();
    void SubtractComposite();
    void FitThreeCycles();

    // The least that the fit can cost: the sine and the cosine of every day at the three frequencies that it
    // finds, kept for use.
    void ComputeSinesAndCosines();

private:
    // A fit clears what it is given, so it has a set and curves of its own.
    struct Fitting {
        cycles::CycleCurves Curves;
        cycles::CycleParameterSet Set;
        cycles::TextGrid Grid;
        std::vector<cycles::SinusoidFit> Fits;
    };

    struct Basis {
        cycles::QuoteCurve Cosine;
        cycles::QuoteCurve Sine;
    };

    std::unique_ptr<quotes::QuoteSeries> series_;
    quotes::PriceScale scale_;
    cycles::CycleCurves curves_;
    cycles::CycleParameterSet set_;
    Fitting fitting_;
    Basis basis_;
};

} // namespace quorvex::bench
