// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The characters of the single-byte code pages that documents are written in.
#pragma once

#include <string>
#include <string_view>

namespace quorvex::richtext {

// A code page by the characters that its bytes stand for. Views of tables that are always there.
struct CodePage {
    char16_t const* Lower = nullptr; // of the bytes 0x20..0x7F; null: ASCII
    char16_t const* Upper = nullptr; // of the bytes 0x80..0xFF; null: the code page is not known

    bool operator==(CodePage const&) const = default;
};

// What stands for bytes without a character.
constexpr char32_t Replacement = 0xFFFD;

// The code page of this number, such as 1252. Of one that is not known, double-byte ones among them, only
// the ASCII half has characters.
[[nodiscard]] CodePage FindCodePage(int number);

// The number of the code page of a font's character set; 0: that of the document.
[[nodiscard]] int CodePageOfCharacterSet(int characterSet);

// The character set of fonts whose letters are signs.
constexpr int SymbolCharacterSet = 2;

// What the bytes mean in a font of signs: for "Symbol" and the bullets of "Wingdings" the characters that any
// other font has too, otherwise the private ones U+F020..U+F0FF.
[[nodiscard]] CodePage FindSymbolPage(std::string_view fontName);

// The character of the byte.
[[nodiscard]] char32_t DecodeByte(CodePage page, unsigned char byte);

// Adds the character's UTF-8 bytes; nothing that is no character is added as Replacement.
void AppendUtf8(std::string& text, char32_t character);

} // namespace quorvex::richtext
