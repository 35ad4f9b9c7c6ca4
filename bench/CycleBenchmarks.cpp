// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "CycleWork.h"

#include <benchmark/benchmark.h>

namespace quorvex::bench {

namespace {

void MovingAverage(benchmark::State& state) {
    CycleWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.Average(static_cast<std::int16_t>(state.range(0)));
    }
}

void TenCyclesAndComposite(benchmark::State& state) {
    CycleWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.ComputeTenCycles();
    }
}

void Residual(benchmark::State& state) {
    CycleWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.SubtractComposite();
    }
}

void ThreeCycleFit(benchmark::State& state) {
    CycleWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.FitThreeCycles();
    }
}

void ItsSinesAndCosines(benchmark::State& state) {
    CycleWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.ComputeSinesAndCosines();
    }
}

BENCHMARK(MovingAverage)->Arg(3)->Arg(9)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK(TenCyclesAndComposite)->Unit(benchmark::kMicrosecond);
BENCHMARK(Residual)->Unit(benchmark::kMicrosecond);
BENCHMARK(ThreeCycleFit)->Unit(benchmark::kMicrosecond);
BENCHMARK(ItsSinesAndCosines)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quorvex::bench
