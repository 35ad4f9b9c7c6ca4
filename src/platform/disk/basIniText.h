// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Finding and changing single values in the text of an INI file. Every other byte of the text stays as it is.
//
// The rewriting is our own because what SimpleIni saves has lost much of what it read: blank lines and line
// ends change, comments move, sections of one name are joined, and a key that is set stands there twice when
// duplicates are to be kept.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::platform::disk {

// The value of the first key of this name in the first section of this name, as it stands in the file without
// the blanks and tabs around it. Nothing when there is none.
[[nodiscard]] std::optional<std::string_view> FindIniValue(std::string_view file, std::string_view section,
                                                           std::string_view key);

// Gives that key this value. A missing key is added behind the last entry of its section, a missing section
// at the end of the file, in lines that end with CR LF. A value whose bare text is the same already stays as
// it is spelled. Raises "Type mismatch", with nothing changed, for a file in UTF-16. REQUIRES: the value fits
// on one line.
void SetIniValue(std::string& file, std::string_view section, std::string_view key, std::string_view value);

} // namespace quorvex::platform::disk
