// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "SearchWork.h"

#include "search/basSearch.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <numbers>
#include <stdexcept>

namespace quorvex::bench {

namespace {

constexpr int Days = 500;

} // namespace

SearchWork::SearchWork() {
    // A walk, the same in every run.
    std::uint64_t state = 1;
    double price = 400;
    for (int day = 0; day < Days; ++day) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        price += static_cast<double>(state >> 40U) / 8388608 - 1;
        series_.push_back(price);
    }
    sines_.resize(2 * Days);
}

void SearchWork::Find(int cycleCount) {
    auto const outcome = search::SearchSeries(series_, {.CycleCount = cycleCount}, [] { return true; });
    if (outcome.Models.empty()) {
        throw std::runtime_error(outcome.Refusal);
    }
    benchmark::DoNotOptimize(outcome.Models.data());
}

void SearchWork::ComputeSinesAndCosines() {
    for (int period = search::DefaultMinPeriod; period <= Days / 2; ++period) {
        double const frequency = 2 * std::numbers::pi / period;
        for (std::size_t day = 0; day < Days; ++day) {
            double const angle = frequency * static_cast<double>(day + 1);
            sines_[day] = std::sin(angle);
            sines_[Days + day] = std::cos(angle);
        }
        benchmark::DoNotOptimize(sines_.data());
        benchmark::ClobberMemory();
    }
}

} // namespace quorvex::bench
