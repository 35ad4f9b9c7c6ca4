// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is a rich-text file.

#include "Require.h"
#include "richtext/BlockBuilder.h"
#include "richtext/RichText.h"
#include "richtext/RowDefinition.h"
#include "richtext/RulerTable.h"
#include "richtext/basRichText.h"
#include "text/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

namespace quorvex::fuzz {

namespace {

using namespace richtext;

// A byte of the file is at most one character of three bytes; the words' characters are longer than that.
constexpr std::size_t TextGrowth = 3;

// What was found in the document.
struct Amounts {
    std::size_t TextBytes = 0;
    std::size_t Blocks = 0;
};

// How many bytes the UTF-8 character at the text's start has; 0 when there is none.
std::size_t CharacterLength(std::string_view text) {
    auto const first = static_cast<unsigned char>(text.front());
    std::size_t const length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (first > 0xF4 || length > text.size()) {
        return 0;
    }
    auto const rest = text.substr(1, std::max<std::size_t>(length, 1) - 1);
    bool const goesOn = std::all_of(rest.begin(), rest.end(),
                                    [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; });
    return goesOn ? length : 0;
}

void CheckText(std::string_view text) {
    while (!text.empty()) {
        auto const length = CharacterLength(text);
        Require(length != 0);
        auto const first = static_cast<unsigned char>(text.front());
        Require(length != 1 || first == '\t' || (first >= 0x20 && first != 0x7F));
        text.remove_prefix(length);
    }
}

void CheckInline(Inline const& part, RichTextDocument const& document, Amounts& amounts) {
    if (auto const* const picture = std::get_if<Picture>(&part)) {
        Require(picture->Png.starts_with("\x89PNG\r\n\x1A\n"));
        Require(picture->Width >= 0 && picture->Height >= 0);
        amounts.TextBytes += picture->Png.size();
        return;
    }
    auto const& run = std::get<TextRun>(part);
    Require(!run.Text.empty() && run.Style.Font < document.Fonts.size() && run.Style.HalfPoints > 0);
    CheckText(run.Text);
    amounts.TextBytes += run.Text.size();
}

void CheckParagraph(Paragraph const& paragraph, RichTextDocument const& document, Amounts& amounts) {
    Require(paragraph.Format.Ruler < document.Rulers.size());
    CheckText(paragraph.Marker);
    amounts.TextBytes += paragraph.Marker.size();
    TextRun const* last = nullptr;
    for (Inline const& part : paragraph.Content) {
        CheckInline(part, document, amounts);
        auto const* const run = std::get_if<TextRun>(&part);
        Require(run == nullptr || last == nullptr || run->Style != last->Style);
        last = run;
    }
}

void CheckRow(TableRow const& row, std::size_t columnCount) {
    Require(!row.Cells.empty() && row.Cells.size() <= MostCells);
    int next = 0;
    for (TableCell const& cell : row.Cells) {
        Require(cell.Column >= next && cell.ColumnSpan > 0 && cell.Width > 0);
        next = cell.Column + cell.ColumnSpan;
    }
    Require(static_cast<std::size_t>(next) <= columnCount);
}

void CheckBlocks(std::vector<Block> const& blocks, RichTextDocument const& document, std::size_t depth,
                 Amounts& amounts) {
    Require(depth <= BlockBuilder::DeepestTable);
    amounts.Blocks += blocks.size();
    for (Block const& block : blocks) {
        if (auto const* const paragraph = std::get_if<Paragraph>(&block.Content)) {
            CheckParagraph(*paragraph, document, amounts);
            continue;
        }
        auto const& table = std::get<Table>(block.Content);
        Require(!table.Rows.empty() && table.ColumnWidths.size() <= MostCells);
        for (TableRow const& row : table.Rows) {
            CheckRow(row, table.ColumnWidths.size());
            for (TableCell const& cell : row.Cells) {
                CheckBlocks(cell.Blocks, document, depth + 1, amounts);
            }
        }
    }
}

void CheckTables(RichTextDocument const& document) {
    Require(!document.Fonts.empty() && !document.Rulers.empty() && document.Rulers.front().empty());
    std::for_each(document.Fonts.begin(), document.Fonts.end(), CheckText);
    for (auto const& stops : document.Rulers) {
        Require(stops.size() <= RulerTable::MostTabStops);
        auto const isDisordered = [](TabStop const& left, TabStop const& right) {
            return left.Position >= right.Position;
        };
        Require(std::adjacent_find(stops.begin(), stops.end(), isDisordered) == stops.end());
    }
}

void CheckRichText(std::string_view file) {
    RichTextDocument document;
    auto const error = text::Trap([&] { document = ReadRichText(file); });
    Require(error.has_value() != file.starts_with("{\\rtf"));
    if (error) {
        return;
    }
    CheckTables(document);
    Amounts amounts;
    CheckBlocks(document.Blocks, document, 0, amounts);
    Require(amounts.TextBytes <= file.size() * TextGrowth);
    Require(amounts.Blocks <= file.size());
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    quorvex::fuzz::CheckRichText(input);
    return 0;
}
