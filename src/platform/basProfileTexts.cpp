// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basProfileTexts.h"

#include "text/RunTimeError.h"
#include "text/basTexts.h"

namespace quorvex::platform {

namespace {

// Where the byte stands in a character of several bytes.
bool StartsLongCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0xC0U;
}

bool ContinuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

std::string_view BareProfileText(std::string_view value) {
    value = text::TrimBlanksAndTabs(value);
    bool const quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view CutProfileText(std::string_view text) {
    constexpr std::size_t MostContinuations = 3;
    if (text.size() <= MaxProfileText) {
        return text;
    }
    std::size_t length = MaxProfileText;
    while (length > MaxProfileText - MostContinuations && ContinuesCharacter(text[length])) {
        --length;
    }
    // Bytes of another encoding make no such character and are cut where the length ends.
    return text.substr(0, StartsLongCharacter(text[length]) ? length : MaxProfileText);
}

std::string QuoteProfileText(std::string_view text) {
    std::string value(text);
    if (BareProfileText(text) != text) {
        value = '"' + value + '"';
    }
    return value;
}

void RequireProfileValue(std::string_view value) {
    if (value.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos) {
        throw text::RunTimeError(text::Fault::InvalidProcedureCall);
    }
}

} // namespace quorvex::platform
