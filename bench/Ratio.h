// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <vector>

namespace quorvex::bench {

// The middle one, of an even number the upper. REQUIRES: one value.
[[nodiscard]] double Median(std::vector<double> values);

using Work = std::function<void()>;

// From now on one round is enough: for a run that shows that everything runs, whatever it measures.
void MeasureOnce();

// How many times as long the work takes as its baseline. Both run by turns in many short rounds, and the
// median of the rounds' ratios counts: what else the machine does disturbs both alike or a few rounds only.
[[nodiscard]] double MeasureRatio(Work const& work, Work const& baseline);

// A work and what comes before it each time, which is not counted.
struct PreparedWork {
    Work Prepare;
    Work Do;
};

// The same for works that find the machine as something else has left it: each is prepared and done once a
// round.
[[nodiscard]] double MeasureRatio(PreparedWork const& work, PreparedWork const& baseline);

// How many milliseconds the work takes, the median of many runs: for work that waits for the disk rather than
// computes.
[[nodiscard]] double MeasureMilliseconds(Work const& work);

} // namespace quorvex::bench
