// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The numbers of control words brought into the ranges that the document's values have.
#pragma once

#include <algorithm>
#include <optional>

namespace quorvex::richtext {

// 22 inches, the longest length that a document can name; longer ones are cut to it, so that sums of lengths
// stay far from the range of an int.
constexpr int LongestTwips = 31680;

[[nodiscard]] constexpr int Twips(std::optional<int> number) {
    return std::clamp(number.value_or(0), -LongestTwips, LongestTwips);
}

[[nodiscard]] constexpr int PositiveTwips(std::optional<int> number) {
    return std::clamp(number.value_or(0), 0, LongestTwips);
}

// Words such as \b turn on, \b0 turns off.
[[nodiscard]] constexpr bool IsTurnedOn(std::optional<int> number) {
    return number.value_or(1) != 0;
}

} // namespace quorvex::richtext
