// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basCodePages.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::richtext {
namespace {

std::string Utf8Of(char32_t character) {
    std::string text;
    AppendUtf8(text, character);
    return text;
}

TEST(CodePages, HaveTheirOwnCharacters) {
    EXPECT_EQ(DecodeByte(FindCodePage(1252), 0x80), U'\u20AC');
    EXPECT_EQ(DecodeByte(FindCodePage(1252), 0xFF), U'\u00FF');
    EXPECT_EQ(DecodeByte(FindCodePage(1250), 0xB3), U'\u0142');
    EXPECT_EQ(DecodeByte(FindCodePage(1251), 0xCF), U'\u041F');
    EXPECT_EQ(DecodeByte(FindCodePage(1253), 0xE1), U'\u03B1');
    EXPECT_EQ(DecodeByte(FindCodePage(1254), 0xFD), U'\u0131');
    EXPECT_EQ(DecodeByte(FindCodePage(1255), 0xE0), U'\u05D0');
    EXPECT_EQ(DecodeByte(FindCodePage(1256), 0xC7), U'\u0627');
    EXPECT_EQ(DecodeByte(FindCodePage(1257), 0xE0), U'\u0105');
    EXPECT_EQ(DecodeByte(FindCodePage(1258), 0xF0), U'\u0111');
    EXPECT_EQ(DecodeByte(FindCodePage(437), 0x81), U'\u00FC');
    EXPECT_EQ(DecodeByte(FindCodePage(437), 0xB3), U'\u2502');
    EXPECT_EQ(DecodeByte(FindCodePage(850), 0x9B), U'\u00F8');
    EXPECT_EQ(DecodeByte(FindCodePage(852), 0x88), U'\u0142');
    EXPECT_EQ(DecodeByte(FindCodePage(866), 0x8F), U'\u041F');
    EXPECT_EQ(DecodeByte(FindCodePage(874), 0xA1), U'\u0E01');
    EXPECT_EQ(DecodeByte(FindCodePage(10000), 0x80), U'\u00C4');
}

TEST(CodePages, ShareAscii) {
    for (int const number : {437, 850, 874, 932, 1250, 1252, 10000}) {
        EXPECT_EQ(DecodeByte(FindCodePage(number), 'A'), U'A');
        EXPECT_EQ(DecodeByte(FindCodePage(number), '~'), U'~');
    }
}

TEST(CodePages, ReplaceBytesWithoutACharacter) {
    EXPECT_EQ(DecodeByte(FindCodePage(1252), 0x81), Replacement);
    EXPECT_EQ(DecodeByte(FindCodePage(932), 0x81), Replacement);
    EXPECT_EQ(DecodeByte(FindCodePage(0), 0xE4), Replacement);
}

TEST(CodePages, AreFoundByCharacterSet) {
    EXPECT_EQ(CodePageOfCharacterSet(0), 1252);
    EXPECT_EQ(CodePageOfCharacterSet(1), 0);
    EXPECT_EQ(CodePageOfCharacterSet(77), 10000);
    EXPECT_EQ(CodePageOfCharacterSet(128), 932);
    EXPECT_EQ(CodePageOfCharacterSet(161), 1253);
    EXPECT_EQ(CodePageOfCharacterSet(204), 1251);
    EXPECT_EQ(CodePageOfCharacterSet(238), 1250);
    EXPECT_EQ(CodePageOfCharacterSet(-1), 0);
}

TEST(SymbolPages, GiveSignsTheirCharacters) {
    EXPECT_EQ(DecodeByte(FindSymbolPage("Symbol"), 0xB7), U'\u2022');
    EXPECT_EQ(DecodeByte(FindSymbolPage("Symbol"), 'a'), U'\u03B1');
    EXPECT_EQ(DecodeByte(FindSymbolPage("Symbol"), 0xA3), U'\u2264');
    EXPECT_EQ(DecodeByte(FindSymbolPage("Wingdings"), 0xA7), U'\u25AA');
    EXPECT_EQ(DecodeByte(FindSymbolPage("Wingdings"), 'l'), U'\u25CF');
    EXPECT_EQ(DecodeByte(FindSymbolPage("Wingdings"), 'A'), char32_t{0xF041});
    EXPECT_EQ(DecodeByte(FindSymbolPage("Webdings"), 0xFF), char32_t{0xF0FF});
}

TEST(Utf8, HasOneToFourBytes) {
    EXPECT_EQ(Utf8Of(U'~'), "~");
    EXPECT_EQ(Utf8Of(0x80), "\xC2\x80");
    EXPECT_EQ(Utf8Of(0x7FF), "\xDF\xBF");
    EXPECT_EQ(Utf8Of(0x800), "\xE0\xA0\x80");
    EXPECT_EQ(Utf8Of(0xFFFD), "\xEF\xBF\xBD");
    EXPECT_EQ(Utf8Of(0x10000), "\xF0\x90\x80\x80");
    EXPECT_EQ(Utf8Of(0x10FFFD), "\xF4\x8F\xBF\xBD");
}

TEST(Utf8, ReplacesWhatIsNoCharacter) {
    for (char32_t const value :
         {0xD800U, 0xDFFFU, 0xFDD0U, 0xFFFEU, 0xFFFFU, 0x1FFFFU, 0x110000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Utf8Of(value), "\xEF\xBF\xBD");
    }
}

} // namespace
} // namespace quorvex::richtext
