// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The help documents under resources/help.
#pragma once

#include "richtext/RichText.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {

inline constexpr std::array<std::string_view, 5> HelpFileNames = {
    "Quorvex-ReadMe.rtf", "Quorvex-QuickStart.rtf", "Quorvex-Index.rtf", "CommoditySymbols.rtf",
    "ConvertCustom.rtf"};

// The bytes of the document.
[[nodiscard]] std::string HelpFile(std::string_view name);

[[nodiscard]] richtext::RichTextDocument ReadHelp(std::string_view name);

// The paragraphs in reading order, those in the cells of tables too. They are part of the document.
[[nodiscard]] std::vector<richtext::Paragraph const*>
ParagraphsOf(richtext::RichTextDocument const& document);

// The tables of the document's body. They are part of the document.
[[nodiscard]] std::vector<richtext::Table const*> TablesOf(richtext::RichTextDocument const& document);

// The text without pictures and markers.
[[nodiscard]] std::string TextOf(richtext::Paragraph const& paragraph);

// The paragraphs of the cell, joined by blanks.
[[nodiscard]] std::string TextOf(richtext::TableCell const& cell);

// The paragraphs of the document, a line each.
[[nodiscard]] std::string TextOf(richtext::RichTextDocument const& document);

// The first run's style; that of no paragraph when there is no text.
[[nodiscard]] richtext::CharacterStyle StyleOf(richtext::Paragraph const& paragraph);

// One entry of the index: "Name (Place)" in bold, then its explanation. A message stands in quotation marks.
struct IndexEntry {
    std::string Name;
    std::string Place; // empty when the entry has none
    std::string Explanation;
};

// In the order of the document.
[[nodiscard]] std::vector<IndexEntry> ReadIndexEntries();

} // namespace quorvex::tests
