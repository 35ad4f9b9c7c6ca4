// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the profile functions of Windows do to a text between the program and the file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex::platform {

// The longest text that comes back from a profile, in bytes.
inline constexpr std::size_t MaxProfileText = 127;

// The part of a value that is meant: without the blanks and tabs at its ends, and then without the one pair
// of quotation marks, single or double, that encloses it.
[[nodiscard]] std::string_view BareProfileText(std::string_view value);

// The text cut behind its last character that ends within the longest length. A character of UTF-8 is never
// cut in two.
[[nodiscard]] std::string_view CutProfileText(std::string_view text);

// The value to be written so that its bare text is this text.
[[nodiscard]] std::string QuoteProfileText(std::string_view text);

// Raises "Invalid procedure call or argument" for a value with a line end or a NUL byte: what stands behind
// it would be read as something else.
void RequireProfileValue(std::string_view value);

} // namespace quorvex::platform
