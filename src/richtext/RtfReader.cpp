// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/RtfReader.h"

#include "richtext/basFormatWords.h"

#include <algorithm>
#include <utility>

namespace quorvex::richtext {

namespace {

constexpr char32_t NoBreakSpace = 0xA0;
constexpr char32_t SoftHyphen = 0xAD;
constexpr char32_t NoBreakHyphen = 0x2011;

constexpr std::size_t TableInBody = 1;
constexpr std::size_t TableInCell = 2;

std::string_view TrimMarker(std::string_view marker) {
    constexpr std::string_view Blanks = " \t";
    marker = marker.substr(0, marker.find_last_not_of(Blanks) + 1);
    return marker.substr(std::min(marker.find_first_not_of(Blanks), marker.size()));
}

} // namespace

RichTextDocument RtfReader::Read() {
    for (Token token = tokens_.Take(); token.Kind != TokenKind::End; token = tokens_.Take()) {
        if (token.Kind == TokenKind::GroupEnd && groups_.Depth() == 1) {
            break;
        }
        TakeToken(token);
    }
    LeaveDestination(State().Target);

    RichTextDocument document;
    document.Page = parts_.Page;
    document.Blocks = parts_.Text.Finish(State().Paragraph, TableDepth());
    document.Fonts = parts_.Fonts.ReleaseNames();
    document.Rulers = parts_.Rulers.Release();
    return document;
}

void RtfReader::TakeToken(Token const& token) {
    bool const wasIgnorable = std::exchange(isIgnorable_, false);
    switch (token.Kind) {
    case TokenKind::GroupStart:
        OpenGroup();
        break;
    case TokenKind::GroupEnd:
        CloseGroup();
        break;
    case TokenKind::Word:
        isIgnorable_ = wasIgnorable;
        TakeWord(token);
        isIgnorable_ = false;
        break;
    case TokenKind::Symbol:
        TakeSymbol(token.Text);
        break;
    case TokenKind::Byte:
        characters_.TakeByte(static_cast<unsigned char>(token.Parameter.value_or(0)));
        break;
    case TokenKind::Text:
        characters_.TakeText(token.Text);
        break;
    case TokenKind::Binary:
        characters_.TakeBinary(token.Text);
        break;
    case TokenKind::End:
        break;
    }
}

void RtfReader::OpenGroup() {
    characters_.EndFallback();
    parts_.Rulers.Freeze();
    groups_.Open();
}

void RtfReader::CloseGroup() {
    characters_.EndFallback();
    auto const left = State().Target;
    groups_.Close();
    if (State().Target != left) {
        LeaveDestination(left);
    }
}

// Called with the state of the group around it.
void RtfReader::LeaveDestination(Destination destination) {
    if (destination == Destination::FontTable) {
        parts_.Fonts.EndEntry();
    } else if (destination == Destination::Picture) {
        auto picture = parts_.Picture.Finish();
        if (picture && State().Target != Destination::Marker && !State().IsHidden) {
            parts_.Text.AddPicture(std::move(*picture));
        }
    } else if (destination == Destination::Marker) {
        parts_.Text.SetMarker(std::string(TrimMarker(std::exchange(parts_.Marker, {}))));
    }
}

// The document's own group is never skipped: a misplaced word would take everything behind it away.
void RtfReader::SkipGroup() {
    if (groups_.Depth() > 1) {
        tokens_.SkipGroup();
    }
}

void RtfReader::TakeSymbol(std::string_view symbol) {
    switch (symbol.empty() ? '\0' : symbol.front()) {
    case '*':
        isIgnorable_ = true;
        break;
    case '~':
        characters_.TakeCharacter(NoBreakSpace);
        break;
    case '-':
        characters_.TakeCharacter(SoftHyphen);
        break;
    case '_':
        characters_.TakeCharacter(NoBreakHyphen);
        break;
    case '\t':
        characters_.TakeSeparator(U'\t');
        break;
    case '\r':
    case '\n':
        characters_.EndFallback();
        if (State().Target == Destination::Body) {
            EndParagraph();
        }
        break;
    default:
        break;
    }
}

void RtfReader::TakeWord(Token const& token) {
    ControlWord const* const word = FindControlWord(token.Text);
    if (word != nullptr && word->Kind == WordKind::Character && !isIgnorable_) {
        characters_.TakeCharacter(static_cast<char32_t>(word->Value));
        return;
    }
    characters_.EndFallback();
    if (word != nullptr && EntersGroup(*word)) {
        return;
    }
    if (isIgnorable_) {
        SkipGroup();
    } else if (word != nullptr) {
        ApplyWord(*word, token.Parameter);
    }
}

// Whether the word says what its group holds.
bool RtfReader::EntersGroup(ControlWord const& word) {
    switch (word.Kind) {
    case WordKind::SkippedGroup:
        SkipGroup();
        return true;
    case WordKind::ShownGroup:
        return true;
    case WordKind::NestedRowGroup:
        State().DefinesNestedRow = true;
        return true;
    case WordKind::FontTable:
        State().Target = Destination::FontTable;
        return true;
    case WordKind::ColourTable:
        State().Target = Destination::ColourTable;
        return true;
    case WordKind::Picture:
        State().Target = Destination::Picture;
        return true;
    case WordKind::Marker:
        State().Target = Destination::Marker;
        return true;
    default:
        return false;
    }
}

void RtfReader::ApplyWord(ControlWord const& word, std::optional<int> number) {
    switch (word.Kind) {
    case WordKind::Separator:
        characters_.TakeSeparator(static_cast<char32_t>(word.Value));
        return;
    case WordKind::Unicode:
        characters_.TakeUnicode(number.value_or(0));
        return;
    case WordKind::FallbackLength:
        State().FallbackLength = std::max(number.value_or(1), 0);
        return;
    default:
        break;
    }
    switch (State().Target) {
    case Destination::Body:
        ApplyBodyWord(word, number);
        break;
    case Destination::Marker:
        ApplyStyleWord(State(), word, number, parts_.Fonts, parts_.Colours);
        break;
    case Destination::FontTable:
        ApplyFontWord(word, number);
        break;
    case Destination::ColourTable:
        ApplyColourWord(word, number);
        break;
    case Destination::Picture:
        parts_.Picture.TakeWord(word, number);
        break;
    }
}

void RtfReader::ApplyFontWord(ControlWord const& word, std::optional<int> number) {
    if (word.Kind == WordKind::Font) {
        parts_.Fonts.StartEntry(number.value_or(0));
    } else if (word.Kind == WordKind::CharacterSet) {
        parts_.Fonts.SetCharacterSet(number.value_or(0));
    } else if (word.Kind == WordKind::FontCodePage) {
        parts_.Fonts.SetCodePage(number.value_or(0));
    }
}

void RtfReader::ApplyColourWord(ControlWord const& word, std::optional<int> number) {
    if (word.Kind == WordKind::Red) {
        parts_.Colours.SetRed(number.value_or(0));
    } else if (word.Kind == WordKind::Green) {
        parts_.Colours.SetGreen(number.value_or(0));
    } else if (word.Kind == WordKind::Blue) {
        parts_.Colours.SetBlue(number.value_or(0));
    }
}

void RtfReader::ApplyBodyWord(ControlWord const& word, std::optional<int> number) {
    ApplyDocumentWord(word, number);
    ApplyStyleWord(State(), word, number, parts_.Fonts, parts_.Colours);
    ApplyParagraphWord(State(), word, number, parts_.Rulers);
    (State().DefinesNestedRow ? nestedRow_ : row_).TakeWord(word, number, parts_.Colours);
    ApplyFlowWord(word);
}

void RtfReader::ApplyDocumentWord(ControlWord const& word, std::optional<int> number) {
    if (word.Kind == WordKind::DefaultFont) {
        parts_.Fonts.SetDefault(number.value_or(0));
    } else if (word.Kind == WordKind::CodePage) {
        parts_.CodePage = FindCodePage(word.Value != 0 ? word.Value : number.value_or(0));
    } else {
        ApplyPageWord(parts_.Page, word, number);
    }
}

void RtfReader::ApplyFlowWord(ControlWord const& word) {
    auto const& format = State().Paragraph;
    auto const depth = TableDepth();
    switch (word.Kind) {
    case WordKind::EndParagraph:
        EndParagraph();
        break;
    case WordKind::Page:
        parts_.Text.BreakPage(format, depth);
        break;
    case WordKind::Section:
        parts_.Text.BreakSection(format, depth);
        break;
    case WordKind::SectionGoesOn:
        parts_.Text.KeepSectionOnPage();
        break;
    case WordKind::EndCell:
        parts_.Text.EndCell(format, TableInBody);
        break;
    case WordKind::EndRow:
        parts_.Text.EndRow(format, row_, TableInBody);
        break;
    case WordKind::EndNestedCell:
        parts_.Text.EndCell(format, std::max(depth, TableInCell));
        break;
    case WordKind::EndNestedRow:
        parts_.Text.EndRow(format, nestedRow_, std::max(depth, TableInCell));
        break;
    default:
        return;
    }
    parts_.Rulers.Freeze();
}

void RtfReader::EndParagraph() {
    parts_.Text.EndParagraph(State().Paragraph, TableDepth());
    parts_.Rulers.Freeze();
}

std::size_t RtfReader::TableDepth() const {
    return std::max<std::size_t>(State().NestingLevel, State().IsInTable ? TableInBody : 0);
}

} // namespace quorvex::richtext
