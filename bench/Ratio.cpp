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

// By turns; neither always comes first, so that a clock rate that drifts favours neither.
template <class TimeWork, class TimeBaseline>
double MedianRatio(TimeWork const& timeWork, TimeBaseline const& timeBaseline) {
    std::vector<double> ratios;
    auto const end = Clock::now() + LongestMeasurement;
    for (std::size_t round = 0; round < fewestRounds || (round < mostRounds && Clock::now() < end); ++round) {
        if (round % 2 == 0) {
            auto const onWork = timeWork();
            ratios.push_back(onWork / timeBaseline());
        } else {
            auto const onBaseline = timeBaseline();
            ratios.push_back(timeWork() / onBaseline);
        }
    }
    return Median(std::move(ratios));
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
    return MedianRatio([&] { return TimeOf(work, workTimes) / workTimes; },
                       [&] { return TimeOf(baseline, baselineTimes) / baselineTimes; });
}

double MeasureRatio(PreparedWork const& work, PreparedWork const& baseline) {
    auto const timeOf = [](PreparedWork const& prepared) {
        prepared.Prepare();
        return TimeOf(prepared.Do, 1);
    };
    return MedianRatio([&] { return timeOf(work); }, [&] { return timeOf(baseline); });
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
