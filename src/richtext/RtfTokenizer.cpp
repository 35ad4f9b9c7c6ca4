// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/RtfTokenizer.h"

#include "text/Characters.h"

#include <algorithm>
#include <limits>

namespace quorvex::richtext {

namespace {

constexpr bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr bool IsSpecial(char c) {
    return c == '\\' || c == '{' || c == '}' || c == '\r' || c == '\n';
}

} // namespace

std::optional<int> HexDigit(char c) {
    if (text::IsDigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return std::nullopt;
}

Token RtfTokenizer::Take() {
    while (at_ < bytes_.size() && (bytes_[at_] == '\r' || bytes_[at_] == '\n')) {
        ++at_;
    }
    if (at_ == bytes_.size()) {
        return {};
    }
    switch (bytes_[at_]) {
    case '{':
        return {TokenKind::GroupStart, TakeBytes(1), {}};
    case '}':
        return {TokenKind::GroupEnd, TakeBytes(1), {}};
    case '\\':
        return TakeControl();
    default:
        return TakeText();
    }
}

void RtfTokenizer::SkipGroup() {
    std::size_t depth = 0;
    for (;;) {
        at_ = std::min(bytes_.find_first_of("\\{}", at_), bytes_.size());
        if (at_ == bytes_.size()) {
            return;
        }
        if (bytes_[at_] == '\\') {
            static_cast<void>(TakeControl());
            continue;
        }
        if (bytes_[at_] == '}' && depth == 0) {
            return;
        }
        depth = bytes_[at_] == '{' ? depth + 1 : depth - 1;
        ++at_;
    }
}

// Braces and backslashes behind a backslash stand for themselves.
Token RtfTokenizer::TakeControl() {
    ++at_;
    if (at_ == bytes_.size()) {
        return {TokenKind::Symbol, {}, {}};
    }
    char const c = bytes_[at_];
    if (IsLetter(c)) {
        return TakeWord();
    }
    if (c == '\'') {
        return TakeByte();
    }
    bool const isText = c == '\\' || c == '{' || c == '}';
    return {isText ? TokenKind::Text : TokenKind::Symbol, TakeBytes(1), {}};
}

Token RtfTokenizer::TakeWord() {
    std::size_t const start = at_;
    while (at_ < bytes_.size() && IsLetter(bytes_[at_])) {
        ++at_;
    }
    Token word{TokenKind::Word, bytes_.substr(start, at_ - start), TakeNumber()};
    if (at_ < bytes_.size() && bytes_[at_] == ' ') {
        ++at_;
    }
    if (word.Text == "bin") {
        auto const count = static_cast<std::size_t>(std::max(word.Parameter.value_or(0), 0));
        return {TokenKind::Binary, TakeBytes(count), {}};
    }
    return word;
}

// A number beyond the range of an int is the nearest one within.
std::optional<int> RtfTokenizer::TakeNumber() {
    std::size_t at = at_;
    bool const isNegative = at < bytes_.size() && bytes_[at] == '-';
    if (isNegative) {
        ++at;
    }
    if (at == bytes_.size() || !text::IsDigit(bytes_[at])) {
        return std::nullopt;
    }
    constexpr std::int64_t Highest = std::numeric_limits<int>::max();
    std::int64_t number = 0;
    for (; at < bytes_.size() && text::IsDigit(bytes_[at]); ++at) {
        number = std::min(number * 10 + (bytes_[at] - '0'), Highest);
    }
    at_ = at;
    return static_cast<int>(isNegative ? -number : number);
}

// Without two hexadecimal digits it is a symbol that nobody knows.
Token RtfTokenizer::TakeByte() {
    std::string_view const mark = TakeBytes(1);
    if (bytes_.size() - at_ >= 2) {
        auto const high = HexDigit(bytes_[at_]);
        auto const low = HexDigit(bytes_[at_ + 1]);
        if (high && low) {
            return {TokenKind::Byte, TakeBytes(2), *high * 16 + *low};
        }
    }
    return {TokenKind::Symbol, mark, {}};
}

Token RtfTokenizer::TakeText() {
    auto const rest = bytes_.substr(at_);
    auto const end = std::find_if(rest.begin(), rest.end(), IsSpecial);
    return {TokenKind::Text, TakeBytes(static_cast<std::size_t>(end - rest.begin())), {}};
}

std::string_view RtfTokenizer::TakeBytes(std::size_t count) {
    auto const taken = bytes_.substr(at_, count);
    at_ += taken.size();
    return taken;
}

} // namespace quorvex::richtext
