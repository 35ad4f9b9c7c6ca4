// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/BlockBuilder.h"
#include "richtext/RichText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::richtext {

// Puts a document's text together, paragraph by paragraph.
class TextBuilder {
public:
    // Adds characters to the open paragraph.
    void AddText(std::string_view text, CharacterStyle const& style);
    void AddCharacter(char32_t character, CharacterStyle const& style);
    void AddPicture(Picture picture);

    // The open paragraph is an item of a list with this bullet or number.
    void SetMarker(std::string marker) { open_.Marker = std::move(marker); }

    // The depth of a paragraph is that of BlockBuilder.
    void EndParagraph(ParagraphFormat const& format, std::size_t depth);
    void EndCell(ParagraphFormat const& format, std::size_t depth);
    void EndRow(ParagraphFormat const& format, RowDefinition const& definition, std::size_t depth);

    // What follows stands on a new page. Ends a paragraph that has something in it.
    void BreakPage(ParagraphFormat const& format, std::size_t depth);
    void BreakSection(ParagraphFormat const& format, std::size_t depth);

    // The section that was just begun does not need a new page.
    void KeepSectionOnPage();

    // Ends a paragraph that has something in it and hands out what was built.
    [[nodiscard]] std::vector<Block> Finish(ParagraphFormat const& format, std::size_t depth);

private:
    enum class Break : std::uint8_t { None, Section, Page };

    [[nodiscard]] bool HasContent() const { return !open_.Content.empty() || !open_.Marker.empty(); }

    [[nodiscard]] std::string& RunOf(CharacterStyle const& style);
    [[nodiscard]] Paragraph TakeParagraph(ParagraphFormat const& format);

    BlockBuilder blocks_;
    Paragraph open_;
    Break break_ = Break::None;
};

} // namespace quorvex::richtext
