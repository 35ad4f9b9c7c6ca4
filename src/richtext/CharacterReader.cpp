// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/CharacterReader.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quorvex::richtext {

namespace {

constexpr char32_t LineSeparator = 0x2028;
constexpr char32_t ParagraphSeparator = 0x2029;

// The characters by which the bytes of a font of signs can be written as numbers.
constexpr char32_t FirstSign = 0xF020;
constexpr char32_t LastSign = 0xF0FF;

constexpr bool IsPlain(char c) {
    return c >= 0x20 && c < 0x7F;
}

constexpr bool IsControl(char32_t character) {
    return (character < 0x20 && character != U'\t') || (character >= 0x7F && character < 0xA0);
}

constexpr bool IsFirstHalf(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsSecondHalf(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr char32_t Join(char32_t firstHalf, char32_t secondHalf) {
    return 0x10000 + ((firstHalf - 0xD800) << 10U) + (secondHalf - 0xDC00);
}

} // namespace

void CharacterReader::TakeText(std::string_view text) {
    auto const skipped = std::min(static_cast<std::size_t>(fallbackLeft_), text.size());
    text.remove_prefix(skipped);
    fallbackLeft_ -= static_cast<int>(skipped);
    if (text.empty()) {
        return;
    }
    SendLoneHalf();
    if (State().Target == Destination::Picture) {
        parts_.Picture.TakeHex(text);
        return;
    }
    CodePage const page = CurrentPage();
    while (!text.empty()) {
        auto const end =
            page.Lower == nullptr ? std::find_if_not(text.begin(), text.end(), IsPlain) : text.begin();
        auto const plain = static_cast<std::size_t>(end - text.begin());
        SendPlain(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty()) {
            Send(DecodeByte(page, static_cast<unsigned char>(text.front())));
            text.remove_prefix(1);
        }
    }
}

void CharacterReader::TakeByte(unsigned char byte) {
    if (!IsFallback()) {
        SendLoneHalf();
        Send(DecodeByte(CurrentPage(), byte));
    }
}

void CharacterReader::TakeBinary(std::string_view bytes) {
    if (!IsFallback() && State().Target == Destination::Picture) {
        parts_.Picture.TakeBytes(bytes);
    }
}

void CharacterReader::TakeCharacter(char32_t character) {
    if (!IsFallback()) {
        SendLoneHalf();
        Send(character);
    }
}

void CharacterReader::TakeSeparator(char32_t character) {
    EndFallback();
    SendLoneHalf();
    Send(character);
}

void CharacterReader::TakeUnicode(int number) {
    fallbackLeft_ = State().FallbackLength;
    SendUnit(static_cast<char32_t>(number < 0 ? number + 0x10000 : number));
}

CodePage CharacterReader::CurrentPage() const {
    auto const page = State().Target == Destination::FontTable ? parts_.Fonts.EntryPage()
                                                               : parts_.Fonts.PageOf(State().Style.Font);
    return page.value_or(parts_.CodePage);
}

// Counts a character that stands for the last \u.
bool CharacterReader::IsFallback() {
    if (fallbackLeft_ == 0) {
        return false;
    }
    --fallbackLeft_;
    return true;
}

void CharacterReader::SendUnit(char32_t unit) {
    if (firstHalf_ && IsSecondHalf(unit)) {
        Send(Join(*std::exchange(firstHalf_, std::nullopt), unit));
        return;
    }
    SendLoneHalf();
    if (IsFirstHalf(unit)) {
        firstHalf_ = unit;
        return;
    }
    CodePage const page = CurrentPage();
    bool const isSign = page.Lower != nullptr && unit >= FirstSign && unit <= LastSign;
    Send(isSign ? DecodeByte(page, static_cast<unsigned char>(unit & 0xFFU)) : unit);
}

void CharacterReader::SendLoneHalf() {
    if (std::exchange(firstHalf_, std::nullopt)) {
        Send(Replacement);
    }
}

void CharacterReader::SendPlain(std::string_view text) {
    if (State().Target == Destination::Body) {
        if (!State().IsHidden) {
            parts_.Text.AddText(text, State().Style);
        }
        return;
    }
    for (char const c : text) {
        Send(static_cast<unsigned char>(c));
    }
}

void CharacterReader::Send(char32_t character) {
    switch (State().Target) {
    case Destination::Body:
    case Destination::Marker:
        SendToText(character);
        break;
    case Destination::FontTable:
        if (!IsControl(character)) {
            parts_.Fonts.TakeCharacter(character);
        }
        break;
    case Destination::ColourTable:
        if (character == U';') {
            parts_.Colours.EndEntry();
        }
        break;
    case Destination::Picture:
        break;
    }
}

// A paragraph ends by its word alone, so that whoever shows the text never finds an end within it.
void CharacterReader::SendToText(char32_t character) {
    if (IsControl(character) || State().IsHidden) {
        return;
    }
    char32_t const shown = character == ParagraphSeparator ? LineSeparator : character;
    if (State().Target == Destination::Marker) {
        AppendUtf8(parts_.Marker, shown);
    } else {
        parts_.Text.AddCharacter(shown, State().Style);
    }
}

} // namespace quorvex::richtext
