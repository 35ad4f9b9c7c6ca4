// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace quorvex::tests {

// Chance that is the same for the same seed with every standard library, whose distributions differ. Several
// throws in one expression stand in braces, which have an order.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    // One of 0 to count - 1; count must be above 0.
    [[nodiscard]] int Below(int count) {
        return static_cast<int>(engine_() % static_cast<std::uint64_t>(count));
    }

    // One of low to high.
    [[nodiscard]] int Between(int low, int high) { return low + Below(high - low + 1); }

    // True once in so many times.
    [[nodiscard]] bool OneIn(int count) { return Below(count) == 0; }

    // An item of a list that is not empty.
    template <class List>
    [[nodiscard]] auto const& Pick(List const& list) {
        using Size = decltype(list.size());
        return list[static_cast<Size>(Below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace quorvex::tests
