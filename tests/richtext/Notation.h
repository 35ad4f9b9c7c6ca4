// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "richtext/RichText.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvex::richtext {

// The document with this between its head and its closing brace. The head has the fonts 0 Arial (default),
// 1 Warsaw (Central European), 2 Symbol, 3 Moscow (Cyrillic) and the colours 1 red and 2 0x102030.
[[nodiscard]] RichTextDocument ReadBody(std::string_view body);

// The text of a document: a line for each block. Markers stand in parentheses, pictures are "<picture>", ends
// of lines "^", rows "[cell|cell]" with "/" between the blocks of a cell.
[[nodiscard]] std::string OutlineOf(RichTextDocument const& document);

[[nodiscard]] std::string OutlineOf(Paragraph const& paragraph);

// The same for a document with this body.
[[nodiscard]] std::string TextOf(std::string_view body);

// The parts of a document; std::bad_variant_access or std::out_of_range when there is no such one.
[[nodiscard]] Paragraph const& ParagraphAt(RichTextDocument const& document, std::size_t index);
[[nodiscard]] Table const& TableAt(RichTextDocument const& document, std::size_t index);
[[nodiscard]] TextRun const& RunAt(Paragraph const& paragraph, std::size_t index);

// The style of the first run with this text; std::out_of_range when no paragraph of the body has one.
[[nodiscard]] CharacterStyle const& StyleOf(RichTextDocument const& document, std::string_view text);

} // namespace quorvex::richtext
