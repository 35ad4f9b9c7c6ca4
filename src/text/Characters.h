// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Kinds of characters, the same in every locale.
#pragma once

namespace quorvex::text {

// What may stand around a field or a number.
[[nodiscard]] constexpr bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

[[nodiscard]] constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace quorvex::text
