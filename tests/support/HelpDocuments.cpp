// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/HelpDocuments.h"

#include "richtext/basRichText.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quorvex::tests {

using namespace richtext;

namespace {

// The headings of the entries are bold and of this size; nothing else is.
constexpr int EntryHalfPoints = 22;

void CollectParagraphs(std::vector<Block> const& blocks, std::vector<Paragraph const*>& paragraphs) {
    for (Block const& block : blocks) {
        if (auto const* paragraph = std::get_if<Paragraph>(&block.Content)) {
            paragraphs.push_back(paragraph);
            continue;
        }
        for (TableRow const& row : std::get<Table>(block.Content).Rows) {
            for (TableCell const& cell : row.Cells) {
                CollectParagraphs(cell.Blocks, paragraphs);
            }
        }
    }
}

IndexEntry SplitHeading(std::string const& heading) {
    auto const place = heading.rfind(" (");
    if (place == std::string::npos) {
        return {heading, {}, {}};
    }
    return {heading.substr(0, place), heading.substr(place + 2, heading.size() - place - 3), {}};
}

} // namespace

std::string HelpFile(std::string_view name) {
    std::ifstream file(std::string(QUORVEX_HELP_FOLDER) + '/' + std::string(name), std::ios::binary);
    if (!file) {
        throw std::runtime_error("No such help document: " + std::string(name));
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

RichTextDocument ReadHelp(std::string_view name) {
    return ReadRichText(HelpFile(name));
}

std::vector<Paragraph const*> ParagraphsOf(RichTextDocument const& document) {
    std::vector<Paragraph const*> paragraphs;
    CollectParagraphs(document.Blocks, paragraphs);
    return paragraphs;
}

std::vector<Table const*> TablesOf(RichTextDocument const& document) {
    std::vector<Table const*> tables;
    for (Block const& block : document.Blocks) {
        if (auto const* table = std::get_if<Table>(&block.Content)) {
            tables.push_back(table);
        }
    }
    return tables;
}

std::string TextOf(Paragraph const& paragraph) {
    std::string text;
    for (Inline const& part : paragraph.Content) {
        if (auto const* run = std::get_if<TextRun>(&part)) {
            text += run->Text;
        }
    }
    return text;
}

std::string TextOf(TableCell const& cell) {
    std::vector<Paragraph const*> paragraphs;
    CollectParagraphs(cell.Blocks, paragraphs);
    std::string text;
    for (Paragraph const* paragraph : paragraphs) {
        text += (text.empty() ? "" : " ") + TextOf(*paragraph);
    }
    return text;
}

std::string TextOf(RichTextDocument const& document) {
    std::string text;
    for (Paragraph const* paragraph : ParagraphsOf(document)) {
        text += TextOf(*paragraph) + '\n';
    }
    return text;
}

CharacterStyle StyleOf(Paragraph const& paragraph) {
    for (Inline const& part : paragraph.Content) {
        if (auto const* run = std::get_if<TextRun>(&part)) {
            return run->Style;
        }
    }
    return {};
}

std::vector<IndexEntry> ReadIndexEntries() {
    auto const document = ReadHelp("Quorvex-Index.rtf");
    std::vector<IndexEntry> entries;
    for (Paragraph const* paragraph : ParagraphsOf(document)) {
        auto const style = StyleOf(*paragraph);
        if (style.Bold && style.HalfPoints == EntryHalfPoints) {
            entries.push_back(SplitHeading(TextOf(*paragraph)));
        } else if (!entries.empty() && style.HalfPoints < EntryHalfPoints) {
            entries.back().Explanation += TextOf(*paragraph);
        }
    }
    return entries;
}

} // namespace quorvex::tests
