// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basBootstrap.h"

#include <algorithm>
#include <cmath>

namespace quorvex::evaluation {

namespace {

// What the samples gave for one set of moves.
struct SampledFigures {
    std::vector<double> ErrorRatio;
    std::vector<double> RightDirections;
    std::vector<double> Correlation;

    void Take(Figures const& figures) {
        Take(figures.ErrorRatio, ErrorRatio);
        Take(figures.RightDirections, RightDirections);
        Take(figures.Correlation, Correlation);
    }

    [[nodiscard]] FigureIntervals Intervals(int sampleCount) {
        return {IntervalOf(ErrorRatio, sampleCount), IntervalOf(RightDirections, sampleCount),
                IntervalOf(Correlation, sampleCount)};
    }

private:
    static void Take(std::optional<double> const& value, std::vector<double>& values) {
        if (value) {
            values.push_back(*value);
        }
    }

    static std::optional<Interval> IntervalOf(std::vector<double>& values, int sampleCount) {
        bool const areFew = 2 * values.size() < static_cast<std::size_t>(sampleCount);
        return areFew ? std::nullopt : MiddleOf(values);
    }
};

// The value so far through the sorted ones, 0..1.
double Quantile(std::vector<double> const& sorted, double share) {
    double const place = share * static_cast<double>(sorted.size() - 1);
    auto const below = static_cast<std::size_t>(place);
    std::size_t const above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (place - static_cast<double>(below)) * (sorted[above] - sorted[below]);
}

} // namespace

// The sequence is to be the same in every run. NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp)
BlockResampler::BlockResampler(std::size_t count, std::size_t blockLength)
    : count_(count),
      blockLength_(blockLength) {}

std::span<std::size_t const> BlockResampler::Next() {
    positions_.clear();
    while (positions_.size() < count_) {
        std::size_t const first = random_() % (count_ - blockLength_ + 1);
        for (std::size_t step = 0; step < blockLength_ && positions_.size() < count_; ++step) {
            positions_.push_back(first + step);
        }
    }
    return positions_;
}

std::optional<Interval> MiddleOf(std::vector<double>& values) {
    constexpr double Tail = 0.025;
    if (values.empty()) {
        return std::nullopt;
    }
    std::sort(values.begin(), values.end());
    return Interval{Quantile(values, Tail), Quantile(values, 1 - Tail)};
}

std::vector<FigureIntervals> ResampledIntervals(std::span<Moves const> sets, std::size_t blockLength,
                                                int sampleCount, search::GoOn const& goOn) {
    std::vector<std::vector<Sums>> parts;
    for (Moves const& moves : sets) {
        parts.push_back(PartsOf(moves));
    }
    std::vector<SampledFigures> sampled(sets.size());
    BlockResampler resampler(parts.empty() ? 1 : parts.front().size(), blockLength);
    for (int sample = 0; sample < sampleCount; ++sample) {
        if (!goOn()) {
            return {};
        }
        std::span<std::size_t const> const positions = resampler.Next();
        for (std::size_t set = 0; set < sets.size(); ++set) {
            Sums sums;
            for (std::size_t const position : positions) {
                sums.Add(parts[set][position]);
            }
            sampled[set].Take(FiguresOf(sums));
        }
    }
    std::vector<FigureIntervals> intervals;
    for (std::size_t set = 0; set < sets.size(); ++set) {
        bool const areFew = ForecastCount(sets[set]) < FewestForecasts;
        intervals.push_back(areFew ? FigureIntervals() : sampled[set].Intervals(sampleCount));
    }
    return intervals;
}

} // namespace quorvex::evaluation
