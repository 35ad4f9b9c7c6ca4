// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Folder texts and file patterns. Works on texts alone and never looks at a disk.
#pragma once

#include <string>
#include <string_view>

namespace quorvex::text {

// The folder with a separator of its own style behind it: "C:\Quotes" becomes "C:\Quotes\", "/home/ann"
// becomes
// "/home/ann/". A text that has one already comes back unchanged.
[[nodiscard]] std::string EndWithSeparator(std::string_view folder);

// Whether the name fits the pattern, where `*` stands for any characters and `?` for one. Letters of ASCII
// fit in either case.
[[nodiscard]] bool MatchesPattern(std::string_view name, std::string_view pattern);

} // namespace quorvex::text
