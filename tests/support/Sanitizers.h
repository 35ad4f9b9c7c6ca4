// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Whether the tests run under the address sanitizer, where they take several times as long.
#pragma once

namespace quorvex::tests {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool IsSlowed = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool IsSlowed = true;
#else
inline constexpr bool IsSlowed = false;
#endif
#else
inline constexpr bool IsSlowed = false;
#endif

// How many of so many random cases a test tries. When slowed it is a quarter: each takes up to ten
// times as long there, and all of them are tried in an optimised build.
template <class Count>
[[nodiscard]] constexpr Count Repetitions(Count count) {
    return IsSlowed ? count / 4 : count;
}

// From one of many cases alike to the next that a test tries, likewise.
inline constexpr int Stride = IsSlowed ? 4 : 1;

} // namespace quorvex::tests
