// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/DocumentParts.h"
#include "richtext/GroupStack.h"
#include "richtext/basCodePages.h"

#include <optional>
#include <string_view>

namespace quorvex::richtext {

// Makes characters of a document's bytes and numbers and sends them where the open group wants them.
class CharacterReader {
public:
    // Both must outlive the reader.
    CharacterReader(GroupStack const& groups, DocumentParts& parts) : groups_(groups), parts_(parts) {}

    void TakeText(std::string_view text);
    void TakeByte(unsigned char byte);
    void TakeBinary(std::string_view bytes);

    // A character that a word stands for. It can be what stands for a \u, unlike one that parts the text.
    void TakeCharacter(char32_t character);
    void TakeSeparator(char32_t character);

    // The number of a \u: a unit of UTF-16, negative above 0x7FFF. What stands for it is skipped.
    void TakeUnicode(int number);

    // No character that comes now stands for the last \u.
    void EndFallback() { fallbackLeft_ = 0; }

private:
    [[nodiscard]] GroupState const& State() const { return groups_.Current(); }

    [[nodiscard]] CodePage CurrentPage() const;
    [[nodiscard]] bool IsFallback();
    void SendUnit(char32_t unit);
    void SendLoneHalf();
    void SendPlain(std::string_view text);
    void Send(char32_t character);
    void SendToText(char32_t character);

    GroupStack const& groups_;
    DocumentParts& parts_;
    int fallbackLeft_ = 0;              // characters yet to come that stand for the last \u
    std::optional<char32_t> firstHalf_; // of a character that takes two \u
};

} // namespace quorvex::richtext
