// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Promises about time, held on machines that do other work beside the tests.
#pragma once

#include "support/Sanitizers.h"

#include <algorithm>
#include <chrono>

namespace quorvex::tests {

// How much longer than the program's own promise a test may wait: instruments slow everything down, and
// Wine, under which tests for Windows run, does so with threads that wait for each other.
#ifdef _WIN32
inline constexpr int Patience = 5;
#else
inline constexpr int Patience = IsSlowed ? 5 : 1;
#endif

// How long the quickest of at most so many tries took; each returns its own duration. The first one below the
// limit is the last. Other programs hold up one try or two, not every one.
template <class Try>
[[nodiscard]] std::chrono::nanoseconds ShortestOf(int tries, std::chrono::nanoseconds limit, Try measure) {
    auto shortest = std::chrono::nanoseconds::max();
    for (int count = 0; count < tries && shortest >= limit; ++count) {
        shortest = std::min(shortest, std::chrono::nanoseconds(measure()));
    }
    return shortest;
}

} // namespace quorvex::tests
