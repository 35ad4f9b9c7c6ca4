// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "QuoteWork.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace quorvex::bench {

namespace {

void CountBytes(benchmark::State& state, QuoteWork const& work) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(work.TextSize()));
}

void LoadQuoteFile(benchmark::State& state) {
    QuoteWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.Load();
    }
    CountBytes(state, work);
}

void ReadQuotes(benchmark::State& state) {
    QuoteWork work;
    for ([[maybe_unused]] auto const _ : state) {
        work.ReadText();
    }
    CountBytes(state, work);
}

void OneFromCharsPass(benchmark::State& state) {
    QuoteWork const work;
    for ([[maybe_unused]] auto const _ : state) {
        work.ParseNumbers();
    }
    CountBytes(state, work);
}

void QuoteFileText(benchmark::State& state) {
    QuoteWork const work;
    for ([[maybe_unused]] auto const _ : state) {
        work.SpellText();
    }
    CountBytes(state, work);
}

BENCHMARK(LoadQuoteFile)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadQuotes)->Unit(benchmark::kMicrosecond);
BENCHMARK(OneFromCharsPass)->Unit(benchmark::kMicrosecond);
BENCHMARK(QuoteFileText)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quorvex::bench
