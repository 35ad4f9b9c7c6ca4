// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// UTF-8 that may be damaged: names of files and vendors' texts can be any bytes.
#pragma once

#include <cstddef>
#include <string_view>

namespace quorvex::text {

// How many bytes the character of UTF-8 has that the text begins with; 0 when it begins with none, as with a
// byte of another encoding, half a character, or one spelled in more bytes than it needs. The text is not
// empty.
[[nodiscard]] std::size_t LengthOfCharacter(std::string_view text);

} // namespace quorvex::text
