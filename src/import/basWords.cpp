// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basWords.h"

#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvex::imports {

namespace {

// The characters U+00C0..U+00FF by their letters of ASCII.
constexpr std::array<std::string_view, 64> Latin = {
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  " ", "o", "u", "u", "u", "u", "y", "th", "ss",
    "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  " ", "o", "u", "u", "u", "u", "y", "th", "y"};

// Those beyond that occur in headings: the Polish ones.
struct FurtherLetter {
    std::string_view Spelled;
    std::string_view Letters;
};

constexpr std::array<FurtherLetter, 14> Further = {{{"\xC4\x84", "a"},
                                                    {"\xC4\x85", "a"},
                                                    {"\xC4\x86", "c"},
                                                    {"\xC4\x87", "c"},
                                                    {"\xC4\x98", "e"},
                                                    {"\xC4\x99", "e"},
                                                    {"\xC5\x81", "l"},
                                                    {"\xC5\x82", "l"},
                                                    {"\xC5\x84", "n"},
                                                    {"\xC5\x9A", "s"},
                                                    {"\xC5\x9B", "s"},
                                                    {"\xC5\xBA", "z"},
                                                    {"\xC5\xBC", "z"},
                                                    {"\xC5\xBB", "z"}}};

std::size_t LengthOfUtf8(char lead) {
    auto const byte = static_cast<unsigned char>(lead);
    return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

std::string_view LettersOf(std::string_view character) {
    constexpr char FirstOfLatin = '\xC3';
    if (character.size() == 2 && character[0] == FirstOfLatin) {
        return Latin.at(static_cast<unsigned char>(character[1]) - 0x80U);
    }
    auto const found = std::ranges::find(Further, character, &FurtherLetter::Spelled);
    return found == Further.end() ? " " : found->Letters;
}

char FoldAscii(char c) {
    if (c >= 'A' && c <= 'Z') {
        return static_cast<char>(c - 'A' + 'a');
    }
    return (c >= 'a' && c <= 'z') || text::IsDigit(c) ? c : ' ';
}

// Puts the letters behind the words, at most one blank between two of them.
void AppendLetters(std::string& words, std::string_view letters) {
    for (char const c : letters) {
        if (c != ' ' || (!words.empty() && words.back() != ' ')) {
            words += c;
        }
    }
}

} // namespace

bool AreDigits(std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string Shown(std::string_view text, std::size_t most) {
    std::size_t length = std::min(text.size(), most);
    while (length > 0 && length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80) {
        --length;
    }
    std::string shown(text.substr(0, length));
    std::ranges::replace_if(
        shown, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
    return shown.append(length < text.size() ? "..." : "");
}

std::string FoldWords(std::string_view text) {
    std::string words;
    int depth = 0;
    while (!text.empty()) {
        char const c = text.front();
        std::size_t const length = std::min(LengthOfUtf8(c), text.size());
        if (c == '(' || c == '[') {
            ++depth;
        } else if (c == ')' || c == ']') {
            depth = std::max(depth - 1, 0);
        } else if (depth == 0) {
            AppendLetters(words, length == 1 ? std::string_view(std::array{FoldAscii(c)}.data(), 1)
                                             : LettersOf(text.substr(0, length)));
        }
        text.remove_prefix(length);
    }
    if (!words.empty() && words.back() == ' ') {
        words.pop_back();
    }
    return words;
}

} // namespace quorvex::imports
