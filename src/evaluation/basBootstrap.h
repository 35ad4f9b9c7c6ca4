// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Intervals by the moving-block bootstrap: what the figures might as well have been. Forecasts from origins
// near each other share days, so blocks of origins are drawn, not single ones.
#pragma once

#include "evaluation/basFigures.h"
#include "search/GoOn.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace quorvex::evaluation {

struct Interval {
    double Low = 0;
    double High = 0;
};

// Draws origins in blocks with replacement, the same in every run and on every machine.
class BlockResampler {
public:
    // REQUIRES: 1 <= block length <= count.
    BlockResampler(std::size_t count, std::size_t blockLength);

    // The positions of the next sample, as many as there are origins.
    [[nodiscard]] std::span<std::size_t const> Next();

private:
    std::size_t count_;
    std::size_t blockLength_;
    std::vector<std::size_t> positions_;
    std::mt19937_64 random_; // NOLINT(cert-msc32-c,cert-msc51-cpp): it is to begin the same each time
};

// The middle 95 % of the values, ends interpolated between neighbours; nothing of no values. Sorts them.
[[nodiscard]] std::optional<Interval> MiddleOf(std::vector<double>& values);

// Each figure's interval. A sample in which a figure does not exist tells nothing of it; a figure that most
// samples lack has no interval, nor has one of fewer than ten forecasts.
struct FigureIntervals {
    std::optional<Interval> ErrorRatio;
    std::optional<Interval> RightDirections;
    std::optional<Interval> Correlation;
};

// The intervals of several sets of moves from the same origins, all from the same samples. Nothing at all
// when the callback ended it.
[[nodiscard]] std::vector<FigureIntervals> ResampledIntervals(std::span<Moves const> sets,
                                                              std::size_t blockLength, int sampleCount,
                                                              search::GoOn const& goOn);

} // namespace quorvex::evaluation
