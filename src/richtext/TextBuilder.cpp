// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/TextBuilder.h"

#include "richtext/basCodePages.h"

namespace quorvex::richtext {

void TextBuilder::AddText(std::string_view text, CharacterStyle const& style) {
    if (!text.empty()) {
        RunOf(style) += text;
    }
}

void TextBuilder::AddCharacter(char32_t character, CharacterStyle const& style) {
    AppendUtf8(RunOf(style), character);
}

void TextBuilder::AddPicture(Picture picture) {
    open_.Content.emplace_back(std::move(picture));
}

void TextBuilder::EndParagraph(ParagraphFormat const& format, std::size_t depth) {
    blocks_.AddParagraph(TakeParagraph(format), depth);
}

void TextBuilder::EndCell(ParagraphFormat const& format, std::size_t depth) {
    blocks_.EndCell(TakeParagraph(format), depth);
}

void TextBuilder::EndRow(ParagraphFormat const& format, RowDefinition const& definition, std::size_t depth) {
    if (HasContent()) {
        EndCell(format, depth);
    }
    blocks_.EndRow(definition, depth);
}

void TextBuilder::BreakPage(ParagraphFormat const& format, std::size_t depth) {
    if (HasContent()) {
        EndParagraph(format, depth);
    }
    break_ = Break::Page;
}

void TextBuilder::BreakSection(ParagraphFormat const& format, std::size_t depth) {
    if (HasContent()) {
        EndParagraph(format, depth);
    }
    if (break_ == Break::None) {
        break_ = Break::Section;
    }
}

void TextBuilder::KeepSectionOnPage() {
    if (break_ == Break::Section) {
        break_ = Break::None;
    }
}

std::vector<Block> TextBuilder::Finish(ParagraphFormat const& format, std::size_t depth) {
    if (HasContent()) {
        EndParagraph(format, depth);
    }
    return blocks_.Finish();
}

std::string& TextBuilder::RunOf(CharacterStyle const& style) {
    auto* run = open_.Content.empty() ? nullptr : std::get_if<TextRun>(&open_.Content.back());
    if (run == nullptr || run->Style != style) {
        open_.Content.emplace_back(TextRun{{}, style});
        run = std::get_if<TextRun>(&open_.Content.back());
    }
    return run->Text;
}

Paragraph TextBuilder::TakeParagraph(ParagraphFormat const& format) {
    auto paragraph = std::exchange(open_, {});
    paragraph.Format = format;
    if (std::exchange(break_, Break::None) != Break::None) {
        paragraph.Format.PageBreakBefore = true;
    }
    return paragraph;
}

} // namespace quorvex::richtext
