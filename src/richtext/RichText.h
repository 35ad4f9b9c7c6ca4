// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A rich-text document as plain values, ready to be put into whatever shows it. Texts are UTF-8, lengths are
// twips (1/1440 inch), colours 0xRRGGBB.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quorvex::richtext {

// Without a value: the colour that the reader of the document has chosen for text or paper.
using Colour = std::optional<std::uint32_t>;

enum class ScriptPosition : std::uint8_t { Normal, Superscript, Subscript };

struct CharacterStyle {
    std::uint16_t Font = 0; // index into RichTextDocument::Fonts
    std::uint16_t HalfPoints = 24;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    ScriptPosition Script = ScriptPosition::Normal;
    Colour Foreground;
    Colour Background;

    bool operator==(CharacterStyle const&) const = default;
};

// Stands in a run's text where a line ends within a paragraph: U+2028.
constexpr std::string_view LineBreak = "\xE2\x80\xA8";

// Characters of one style. A tab is '\t' and an end of line LineBreak; no other control characters are there.
struct TextRun {
    std::string Text; // never empty
    CharacterStyle Style;
};

struct Picture {
    std::string Png; // starts with the signature of a PNG file; the rest is as the document has it
    int Width = 0;   // as it is to be shown; 0: as the picture itself says
    int Height = 0;
};

using Inline = std::variant<TextRun, Picture>;

enum class Alignment : std::uint8_t { Left, Right, Centre, Justified };

enum class TabKind : std::uint8_t { Left, Right, Centre, Decimal };

struct TabStop {
    int Position = 0; // from the left margin
    TabKind Kind = TabKind::Left;

    bool operator==(TabStop const&) const = default;
};

// Indents count from the margins of the page or the cell; that of the first line adds to the left one.
struct ParagraphFormat {
    int LeftIndent = 0;
    int RightIndent = 0;
    int FirstLineIndent = 0;
    int SpaceBefore = 0;
    int SpaceAfter = 0;
    std::uint32_t Ruler = 0; // index into RichTextDocument::Rulers
    richtext::Alignment Alignment = Alignment::Left;
    bool PageBreakBefore = false;

    bool operator==(ParagraphFormat const&) const = default;
};

struct Paragraph {
    ParagraphFormat Format;
    std::string Marker; // the bullet or number of a list's paragraph, without the tab behind it
    std::vector<Inline> Content;
};

struct Block;

// One side of a cell.
struct Border {
    int Width = 0; // 0: no line
    Colour Drawn;
};

// How a cell goes with that above it.
enum class VerticalMerge : std::uint8_t { None, First, Continued };

enum CellSide : std::uint8_t { TopSide, LeftSide, BottomSide, RightSide };

struct TableCell {
    int Column = 0; // index into Table::ColumnWidths
    int ColumnSpan = 1;
    int Width = 0;
    VerticalMerge Merge = VerticalMerge::None;
    std::array<Border, 4> Borders{}; // by CellSide
    Colour Shading;
    std::vector<Block> Blocks;
};

struct TableRow {
    int Left = 0; // the left edge of the first cell, from the left margin
    bool IsHeader = false;
    std::vector<TableCell> Cells; // at least one
};

// Cells of one row stand in rising columns and do not overlap; columns may stay empty.
struct Table {
    std::vector<int> ColumnWidths;
    std::vector<TableRow> Rows; // at least one
};

struct Block {
    std::variant<Paragraph, Table> Content;
};

// What the document says of its paper.
struct PageLayout {
    std::optional<int> PaperWidth;
    std::optional<int> PaperHeight;
    std::optional<int> LeftMargin;
    std::optional<int> RightMargin;
    std::optional<int> TopMargin;
    std::optional<int> BottomMargin;
};

struct RichTextDocument {
    PageLayout Page;
    std::vector<std::string> Fonts;           // names; the first is the document's default
    std::vector<std::vector<TabStop>> Rulers; // by position; the first is empty
    std::vector<Block> Blocks;
};

} // namespace quorvex::richtext
