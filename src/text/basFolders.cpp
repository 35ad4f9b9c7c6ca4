// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFolders.h"

#include "text/basTexts.h"

#include <cstddef>

namespace quorvex::text {

std::string EndWithSeparator(std::string_view folder) {
    std::string ended(folder);
    if (ended.ends_with('\\') || ended.ends_with('/')) {
        return ended;
    }
    bool const posixStyle =
        folder.find('/') != std::string_view::npos && folder.find('\\') == std::string_view::npos;
    ended += posixStyle ? '/' : '\\';
    return ended;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
    // The usual two-finger walk: on a mismatch the last star takes one more character.
    std::size_t at = 0;
    std::size_t rule = 0;
    std::size_t star = std::string_view::npos;
    std::size_t afterStar = 0;
    while (at < name.size()) {
        if (rule < pattern.size() && pattern[rule] == '*') {
            star = rule++;
            afterStar = at;
        } else if (rule < pattern.size() &&
                   (pattern[rule] == '?' || UpperCase(pattern[rule]) == UpperCase(name[at]))) {
            ++rule;
            ++at;
        } else if (star != std::string_view::npos) {
            rule = star + 1;
            at = ++afterStar;
        } else {
            return false;
        }
    }
    while (rule < pattern.size() && pattern[rule] == '*') {
        ++rule;
    }
    return rule == pattern.size();
}

} // namespace quorvex::text
