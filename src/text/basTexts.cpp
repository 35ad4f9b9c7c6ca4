// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basTexts.h"

#include "text/Characters.h"

#include <cstddef>

namespace quorvex::text {

namespace {

constexpr std::size_t ShortestName = 5;

} // namespace

char UpperCase(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string UpperCase(std::string_view text) {
    std::string raised(text);
    for (char& letter : raised) {
        letter = UpperCase(letter);
    }
    return raised;
}

std::string_view Trim(std::string_view text) {
    auto const first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view TrimBlanksAndTabs(std::string_view text) {
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool IsNameWithExtension(std::string_view name, std::string_view extension) {
    return name.size() >= ShortestName && UpperCase(name).ends_with(extension);
}

} // namespace quorvex::text
