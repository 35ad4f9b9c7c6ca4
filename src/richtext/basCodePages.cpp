// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basCodePages.h"

#include "richtext/CodePageTables.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvex::richtext {

namespace {

struct NumberedPage {
    int Number;
    UpperHalf const* Upper;
};

constexpr std::array<NumberedPage, 15> Pages = {{
    {437, &Latin437},
    {850, &Latin850},
    {852, &Latin852},
    {866, &Cyrillic866},
    {874, &Thai874},
    {1250, &CentralEuropean1250},
    {1251, &Cyrillic1251},
    {1252, &Western1252},
    {1253, &Greek1253},
    {1254, &Turkish1254},
    {1255, &Hebrew1255},
    {1256, &Arabic1256},
    {1257, &Baltic1257},
    {1258, &Vietnamese1258},
    {10000, &MacRoman10000},
}};

struct CharacterSetPage {
    int CharacterSet;
    int CodePage;
};

// The last six are double-byte: their code pages have no table.
constexpr std::array<CharacterSetPage, 18> CharacterSets = {{
    {0, 1252},
    {77, 10000},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {254, 437},
    {255, 850},
    {128, 932},
    {129, 949},
    {130, 1361},
    {134, 936},
    {136, 950},
}};

constexpr char16_t PrivateSigns = 0xF000;

template <class Half>
constexpr Half MakePrivate(unsigned firstByte) {
    Half half{};
    for (std::size_t index = 0; index < half.size(); ++index) {
        half[index] = static_cast<char16_t>(PrivateSigns + firstByte + index);
    }
    return half;
}

constexpr LowerHalf PrivateLower = MakePrivate<LowerHalf>(0x20);
constexpr UpperHalf PrivateUpper = MakePrivate<UpperHalf>(0x80);

// The signs that stand in front of list items.
constexpr LowerHalf MakeWingdingsLower() {
    auto half = PrivateLower;
    half['l' - 0x20] = 0x25CF;
    half['n' - 0x20] = 0x25A0;
    half['q' - 0x20] = 0x2751;
    half['u' - 0x20] = 0x25C6;
    half['v' - 0x20] = 0x2756;
    return half;
}

constexpr UpperHalf MakeWingdingsUpper() {
    auto half = PrivateUpper;
    half[0xA7 - 0x80] = 0x25AA;
    half[0xA8 - 0x80] = 0x25FB;
    half[0xD8 - 0x80] = 0x27A2;
    half[0xE0 - 0x80] = 0x2192;
    half[0xFC - 0x80] = 0x2713;
    return half;
}

constexpr LowerHalf WingdingsLower = MakeWingdingsLower();
constexpr UpperHalf WingdingsUpper = MakeWingdingsUpper();

// Neither half a pair of UTF-16 nor one of the values that programs may use as marks of their own.
constexpr bool IsCharacter(char32_t value) {
    bool const isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    bool const isMark = (value >= 0xFDD0 && value <= 0xFDEF) || (value & 0xFFFEU) == 0xFFFE;
    return value <= 0x10FFFF && !isSurrogate && !isMark;
}

constexpr char ContinuationByte(char32_t value, unsigned shift) {
    return static_cast<char>(0x80U | ((value >> shift) & 0x3FU));
}

} // namespace

CodePage FindCodePage(int number) {
    auto const found =
        std::find_if(Pages.begin(), Pages.end(), [&](auto const& page) { return page.Number == number; });
    return {nullptr, found == Pages.end() ? nullptr : found->Upper->data()};
}

int CodePageOfCharacterSet(int characterSet) {
    auto const found = std::find_if(CharacterSets.begin(), CharacterSets.end(),
                                    [&](auto const& entry) { return entry.CharacterSet == characterSet; });
    return found == CharacterSets.end() ? 0 : found->CodePage;
}

CodePage FindSymbolPage(std::string_view fontName) {
    if (fontName.starts_with("Symbol")) {
        return {SymbolLower.data(), SymbolUpper.data()};
    }
    if (fontName == "Wingdings") {
        return {WingdingsLower.data(), WingdingsUpper.data()};
    }
    return {PrivateLower.data(), PrivateUpper.data()};
}

char32_t DecodeByte(CodePage page, unsigned char byte) {
    if (byte >= 0x80) {
        return page.Upper == nullptr ? Replacement : page.Upper[byte - 0x80];
    }
    return page.Lower == nullptr || byte < 0x20 ? byte : page.Lower[byte - 0x20];
}

void AppendUtf8(std::string& text, char32_t character) {
    char32_t const value = IsCharacter(character) ? character : Replacement;
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0U | (value >> 6U));
        text += ContinuationByte(value, 0);
    } else if (value < 0x10000) {
        text += static_cast<char>(0xE0U | (value >> 12U));
        text += ContinuationByte(value, 6);
        text += ContinuationByte(value, 0);
    } else {
        text += static_cast<char>(0xF0U | (value >> 18U));
        text += ContinuationByte(value, 12);
        text += ContinuationByte(value, 6);
        text += ContinuationByte(value, 0);
    }
}

} // namespace quorvex::richtext
