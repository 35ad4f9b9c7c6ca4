// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"

#include "richtext/basRichText.h"

#include <stdexcept>
#include <variant>

namespace quorvex::richtext {

namespace {

constexpr std::string_view Head =
    R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss\fcharset0 Arial;}{\f1\fcharset238 Warsaw;})"
    R"({\f2\fcharset2 Symbol;}{\f3\fcharset204 Moscow;}}{\colortbl;\red255\green0\blue0;)"
    R"(\red16\green32\blue48;})";

std::string OutlineOf(std::vector<Block> const& blocks, std::string_view separator);

std::string OutlineOf(Table const& table) {
    std::string outline;
    for (TableRow const& row : table.Rows) {
        std::string cells;
        for (TableCell const& cell : row.Cells) {
            cells += (cells.empty() ? "[" : "|") + OutlineOf(cell.Blocks, "/");
        }
        outline += cells + "]";
    }
    return outline;
}

std::string OutlineOf(std::vector<Block> const& blocks, std::string_view separator) {
    std::string outline;
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        outline += index == 0 ? "" : separator;
        outline += std::visit([](auto const& content) { return OutlineOf(content); }, blocks[index].Content);
    }
    return outline;
}

} // namespace

RichTextDocument ReadBody(std::string_view body) {
    std::string document(Head);
    document += body;
    document += '}';
    return ReadRichText(document);
}

std::string OutlineOf(RichTextDocument const& document) {
    return OutlineOf(document.Blocks, "\n");
}

std::string OutlineOf(Paragraph const& paragraph) {
    std::string outline = paragraph.Marker.empty() ? "" : "(" + paragraph.Marker + ")";
    for (Inline const& part : paragraph.Content) {
        auto const* const run = std::get_if<TextRun>(&part);
        outline += run == nullptr ? "<picture>" : run->Text;
    }
    for (auto at = outline.find(LineBreak); at != std::string::npos; at = outline.find(LineBreak)) {
        outline.replace(at, LineBreak.size(), "^");
    }
    return outline;
}

std::string TextOf(std::string_view body) {
    return OutlineOf(ReadBody(body));
}

Paragraph const& ParagraphAt(RichTextDocument const& document, std::size_t index) {
    return std::get<Paragraph>(document.Blocks.at(index).Content);
}

Table const& TableAt(RichTextDocument const& document, std::size_t index) {
    return std::get<Table>(document.Blocks.at(index).Content);
}

TextRun const& RunAt(Paragraph const& paragraph, std::size_t index) {
    return std::get<TextRun>(paragraph.Content.at(index));
}

CharacterStyle const& StyleOf(RichTextDocument const& document, std::string_view text) {
    for (Block const& block : document.Blocks) {
        auto const* const paragraph = std::get_if<Paragraph>(&block.Content);
        if (paragraph == nullptr) {
            continue;
        }
        for (Inline const& part : paragraph->Content) {
            auto const* const run = std::get_if<TextRun>(&part);
            if (run != nullptr && run->Text == text) {
                return run->Style;
            }
        }
    }
    throw std::out_of_range("no run \"" + std::string(text) + "\" in " + OutlineOf(document));
}

} // namespace quorvex::richtext
