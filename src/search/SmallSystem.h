// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>

namespace quorvex::search {

// The most waves that are chosen: the cycles of the grid.
inline constexpr std::size_t LargestSystem = 10;

// The inner products of some chosen waves with each other and with the series that they are to follow, whose
// own sum of squares is 1.
struct SmallSystem {
    using Row = std::array<double, LargestSystem>;

    std::size_t Size = 0;
    std::array<Row, LargestSystem> Products{}; // symmetric
    Row WithSeries{};
};

// The system of the waves with one component more that is the same in all, has this square, and is not in the
// series.
[[nodiscard]] SmallSystem WithCommonPart(SmallSystem system, double square);

} // namespace quorvex::search
