// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/CharacterReader.h"
#include "richtext/ControlWords.h"
#include "richtext/DocumentParts.h"
#include "richtext/GroupStack.h"
#include "richtext/RichText.h"
#include "richtext/RowDefinition.h"
#include "richtext/RtfTokenizer.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvex::richtext {

// Reads one document: follows its groups and has its words and characters taken by what they concern.
class RtfReader {
public:
    // The bytes, which start with a brace, must outlive the reader.
    explicit RtfReader(std::string_view bytes) : tokens_(bytes) {}

    RtfReader(RtfReader const&) = delete;
    RtfReader& operator=(RtfReader const&) = delete;
    ~RtfReader() = default;

    // Reads to the end of the document's group. To be called once.
    [[nodiscard]] RichTextDocument Read();

private:
    void TakeToken(Token const& token);
    void OpenGroup();
    void CloseGroup();
    void LeaveDestination(Destination destination);
    void SkipGroup();

    void TakeSymbol(std::string_view symbol);
    void TakeWord(Token const& token);
    [[nodiscard]] bool EntersGroup(ControlWord const& word);
    void ApplyWord(ControlWord const& word, std::optional<int> number);
    void ApplyFontWord(ControlWord const& word, std::optional<int> number);
    void ApplyColourWord(ControlWord const& word, std::optional<int> number);
    void ApplyBodyWord(ControlWord const& word, std::optional<int> number);
    void ApplyDocumentWord(ControlWord const& word, std::optional<int> number);
    void ApplyFlowWord(ControlWord const& word);
    void EndParagraph();
    [[nodiscard]] std::size_t TableDepth() const;

    [[nodiscard]] GroupState& State() { return groups_.Current(); }

    [[nodiscard]] GroupState const& State() const { return groups_.Current(); }

    RtfTokenizer tokens_;
    GroupStack groups_;
    DocumentParts parts_;
    CharacterReader characters_{groups_, parts_};
    RowDefinition row_;
    RowDefinition nestedRow_;
    bool isIgnorable_ = false; // \* stands in front of the next word
};

} // namespace quorvex::richtext
