// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Words of headings and dates, whatever their case, accents and punctuation.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex::imports {

// Whether the text is digits alone, or empty.
[[nodiscard]] bool AreDigits(std::string_view text);

// The text as it is told to a user: on one line, and of a longer one its first characters, so many bytes at
// the most, with dots behind.
[[nodiscard]] std::string Shown(std::string_view text, std::size_t most);

// The text in small letters without accents; what is neither letter nor digit is one blank between words, and
// what stands in brackets of any kind but <> is dropped: "Schlußkurs (EUR)" is "schlusskurs", "<OPENINT>" is
// "openint". Letters of other alphabets are blanks.
[[nodiscard]] std::string FoldWords(std::string_view text);

} // namespace quorvex::imports
