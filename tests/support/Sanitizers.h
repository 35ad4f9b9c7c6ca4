// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Whether the tests run under the address sanitizer.
#pragma once

namespace quorvex::tests {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool HasSanitizers = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool HasSanitizers = true;
#else
inline constexpr bool HasSanitizers = false;
#endif
#else
inline constexpr bool HasSanitizers = false;
#endif

// How many of so many random cases a test tries. Under the sanitizers it is a quarter: each takes some ten
// times as long there, and all of them are tried in an optimised build.
[[nodiscard]] constexpr int Repetitions(int count) {
    return HasSanitizers ? count / 4 : count;
}

// From one of many cases alike to the next that a test tries, likewise.
inline constexpr int Stride = HasSanitizers ? 4 : 1;

} // namespace quorvex::tests
