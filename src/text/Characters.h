// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Kinds of characters, the same in every locale, and what marks the start and the end of a text.
#pragma once

#include <string_view>

namespace quorvex::text {

// In place of a field or of a line, it ends the text.
inline constexpr char CtrlZ = '\x1a';

// At the start of a text it tells that the text is UTF-8, and is skipped.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// What may stand around a field or a number.
[[nodiscard]] constexpr bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

[[nodiscard]] constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace quorvex::text
