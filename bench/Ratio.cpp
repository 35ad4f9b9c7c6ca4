// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Ratio.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace quorvex::bench {

namespace {

using Clock = std::chrono::steady_clock;

std::size_t mostRounds = 501;
std::size_t fewestRounds = 21;

// Slow work gets fewer rounds.
constexpr std::chrono::seconds LongestMeasurement(4);

// Long enough for the clock, short enough to fall between two disturbances.
constexpr std::chrono::duration<double> ShortestTurn = std::chrono::microseconds(500);

std::chrono::duration<double> TimeOf(Work const& work, int times) {
    auto const start = Clock::now();
    for (int time = 0; time < times; ++time) {
        work();
    }
    return Clock::now() - start;
}

int TimesInOneTurn(Work const& work) {
    int times = 1;
    while (TimeOf(work, times) < ShortestTurn) {
        times *= 2;
    }
    return times;
}

} // namespace

double Median(std::vector<double> values) {
    auto const middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void MeasureOnce() {
    mostRounds = 1;
    fewestRounds = 1;
}

double MeasureRatio(Work const& work, Work const& baseline) {
    int const workTimes = TimesInOneTurn(work);
    int const baselineTimes = TimesInOneTurn(baseline);
    std::vector<double> ratios;
    auto const end = Clock::now() + LongestMeasurement;
    for (std::size_t round = 0; round < fewestRounds || (round < mostRounds && Clock::now() < end); ++round) {
        // Neither always comes first, so that a clock rate that drifts favours neither.
        bool const workFirst = round % 2 == 0;
        auto const first = workFirst ? TimeOf(work, workTimes) : TimeOf(baseline, baselineTimes);
        auto const second = workFirst ? TimeOf(baseline, baselineTimes) : TimeOf(work, workTimes);
        auto const onWork = (workFirst ? first : second) / workTimes;
        auto const onBaseline = (workFirst ? second : first) / baselineTimes;
        ratios.push_back(onWork / onBaseline);
    }
    return Median(std::move(ratios));
}

double MeasureMilliseconds(Work const& work) {
    std::vector<double> times;
    auto const end = Clock::now() + LongestMeasurement;
    while (times.size() < fewestRounds || (times.size() < mostRounds && Clock::now() < end)) {
        times.push_back(std::chrono::duration<double, std::milli>(TimeOf(work, 1)).count());
    }
    return Median(std::move(times));
}

} // namespace quorvex::bench
