// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The search by plain loops over days, periods and shifts: slow, and easy to see through.
#pragma once

#include "search/CycleModel.h"

#include <cstdint>
#include <vector>

namespace quorvex::tests {

using Series = std::vector<double>;

// Weight 1, over the days 1..n.
[[nodiscard]] Series CurveOf(int period, int shift, int days);

// The sum of the model's weighted curves.
[[nodiscard]] Series CompositeOf(search::CycleModel const& model, int days);

// Pearson's coefficient; 0 when a series does not change.
[[nodiscard]] double PlainCorrelation(Series const& a, Series const& b);

// The one cycle with the largest correlation over all periods of the range and all shifts -99..99, of equal
// ones that with the shorter period and the smaller shift.
[[nodiscard]] search::CycleModel BestOneCycle(Series const& series, int minPeriod, int maxPeriod);

// The largest correlation of two curves of the range with any weights above zero that is found from the best
// single one by taking up the best second, then replacing each by the best until nothing improves.
[[nodiscard]] double PursueTwoCycles(Series const& series, int minPeriod, int maxPeriod);

// The largest correlation that the model's periods and shifts reach with any weights of zero or more.
[[nodiscard]] double CorrelationWithAnyWeights(search::CycleModel const& model, Series const& series);

// Never ends a search.
[[nodiscard]] inline bool GoOnAlways() {
    return true;
}

// Random walks and noise, the same in every run.
class Randomness {
public:
    explicit Randomness(std::uint32_t seed) : state_(seed) {}

    // Between -1 and 1.
    [[nodiscard]] double Next();

    [[nodiscard]] Series Walk(int days);

private:
    std::uint64_t state_;
};

} // namespace quorvex::tests
