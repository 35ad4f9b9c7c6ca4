// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Small changes of texts, the same in every locale.
#pragma once

#include <string>
#include <string_view>

namespace quorvex::text {

// The letter with a..z raised; any other byte stays.
[[nodiscard]] char UpperCase(char letter);

// The text with its letters a..z raised.
[[nodiscard]] std::string UpperCase(std::string_view text);

// The text without the blanks at both of its ends.
[[nodiscard]] std::string_view Trim(std::string_view text);

// The part of the text without the blanks and tabs at both of its ends. An empty part, too, points into the
// text.
[[nodiscard]] std::string_view TrimBlanksAndTabs(std::string_view text);

// Whether the text is long enough for a file name and ends, in either case, with the extension, which is
// given in upper case with its dot: five characters at least, one in front of a dot and three letters.
[[nodiscard]] bool IsNameWithExtension(std::string_view name, std::string_view extension);

} // namespace quorvex::text
