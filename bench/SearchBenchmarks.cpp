// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "SearchWork.h"

#include <benchmark/benchmark.h>

namespace quorvex::bench {

namespace {

void SearchOf500Days(benchmark::State& state) {
    SearchWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.Find(static_cast<int>(state.range(0)));
    }
}

void SinesOfAllPeriods(benchmark::State& state) {
    SearchWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.ComputeSinesAndCosines();
    }
}

BENCHMARK(SearchOf500Days)->Arg(1)->Arg(3)->Arg(5)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(SinesOfAllPeriods)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quorvex::bench
