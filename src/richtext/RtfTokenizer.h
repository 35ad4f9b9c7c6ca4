// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A rich-text file taken apart into its words, braces and texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvex::richtext {

enum class TokenKind : std::uint8_t {
    End,
    GroupStart,
    GroupEnd,
    Word,   // backslash, letters and perhaps a number
    Symbol, // backslash and the one character of Text; none at the end of the file
    Byte,   // \'hh, the character is Parameter
    Text,   // bytes that stand for themselves, no line ends among them
    Binary, // \bin and the bytes behind it
};

struct Token {
    TokenKind Kind = TokenKind::End;
    std::string_view Text; // the word's letters, or the bytes; part of the file
    std::optional<int> Parameter;
};

// The value of a hexadecimal digit.
[[nodiscard]] std::optional<int> HexDigit(char c);

// Hands out the tokens one after the other. Any bytes can be taken apart.
class RtfTokenizer {
public:
    // The bytes must outlive the tokenizer and its tokens.
    explicit RtfTokenizer(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] Token Take();

    // Moves in front of the brace that closes the group, or to the end of a file that does not close it.
    void SkipGroup();

private:
    [[nodiscard]] Token TakeControl();
    [[nodiscard]] Token TakeWord();
    [[nodiscard]] Token TakeByte();
    [[nodiscard]] Token TakeText();
    [[nodiscard]] std::optional<int> TakeNumber();
    [[nodiscard]] std::string_view TakeBytes(std::size_t count);

    std::string_view bytes_;
    std::size_t at_ = 0;
};

} // namespace quorvex::richtext
