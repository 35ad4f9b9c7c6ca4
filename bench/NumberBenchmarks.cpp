// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Spelling the four prices of each of the 500 generated days in the usual format.

#include "QuoteWork.h"
#include "text/basFormats.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <vector>

namespace quorvex::bench {

namespace {

constexpr char const* PriceFormat = "####0.00";

std::vector<double> Prices() {
    QuoteWork const work;
    std::vector<double> prices;
    for (int day = 1; day <= work.Series().QuoteCount; ++day) {
        quotes::QuoteRecord const& quote = work.Series().Master[day];
        prices.insert(prices.end(), {quote.Open, quote.High, quote.Low, quote.Close});
    }
    return prices;
}

template <class Spell>
void SpellPrices(benchmark::State& state, Spell const& spell) {
    auto const prices = Prices();
    for ([[maybe_unused]] auto const _ : state) {
        for (double const price : prices) {
            spell(price);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(prices.size()));
}

// Reads the format for each number anew.
void FormatNumber(benchmark::State& state) {
    SpellPrices(state,
                [](double price) { benchmark::DoNotOptimize(text::FormatNumber(price, PriceFormat)); });
}

void FormatReadOnce(benchmark::State& state) {
    text::NumberFormat const format(PriceFormat);
    SpellPrices(state, [&](double price) { benchmark::DoNotOptimize(format.Format(price)); });
}

void ToCharsFixed(benchmark::State& state) {
    std::array<char, 32> text{};
    SpellPrices(state, [&](double price) {
        benchmark::DoNotOptimize(
            std::to_chars(text.data(), text.data() + text.size(), price, std::chars_format::fixed, 2).ptr);
        benchmark::ClobberMemory();
    });
}

BENCHMARK(FormatNumber)->Unit(benchmark::kMicrosecond);
BENCHMARK(FormatReadOnce)->Unit(benchmark::kMicrosecond);
BENCHMARK(ToCharsFixed)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quorvex::bench
