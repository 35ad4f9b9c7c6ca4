// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/QuoteSeries.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvex::tests {

// A series with these closes; opens, highs and lows a little off them.
[[nodiscard]] std::unique_ptr<quotes::QuoteSeries> SeriesOfCloses(std::vector<double> const& closes);

// Closes that go up or down by a whole number up to 8 every day.
[[nodiscard]] std::vector<double> WalkingCloses(int days, std::uint32_t seed);

// Two cycles, of 20 and 47 days, with noise of less than half their size.
[[nodiscard]] std::vector<double> CyclicCloses(int days, std::uint32_t seed);

// Days 1..count of the working copy.
[[nodiscard]] std::vector<quotes::QuoteRecord> RecordsOf(quotes::QuoteSeries const& series);

} // namespace quorvex::tests
