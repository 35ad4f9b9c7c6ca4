// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/basFormatWords.h"

#include "richtext/Measures.h"

#include <algorithm>
#include <cstdint>

namespace quorvex::richtext {

namespace {

constexpr int StandardHalfPoints = 24;
constexpr int MostHalfPoints = 3276;
constexpr int DeepestNesting = 255;

std::uint16_t HalfPoints(std::optional<int> number) {
    int const size = number.value_or(StandardHalfPoints);
    return static_cast<std::uint16_t>(size <= 0 ? StandardHalfPoints : std::min(size, MostHalfPoints));
}

ScriptPosition Script(ControlWord const& word, std::optional<int> number) {
    return IsTurnedOn(number) ? static_cast<ScriptPosition>(word.Value) : ScriptPosition::Normal;
}

void StartParagraphAnew(GroupState& state) {
    state.Paragraph = {};
    state.NestingLevel = 0;
    state.IsInTable = false;
    state.TabKind = TabKind::Left;
}

void AddTabStop(GroupState& state, int position, RulerTable& rulers) {
    state.Paragraph.Ruler = rulers.AddTabStop(state.Paragraph.Ruler, {position, state.TabKind});
    state.TabKind = TabKind::Left;
}

} // namespace

void ApplyStyleWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                    FontTable const& fonts, ColourTable const& colours) {
    CharacterStyle& style = state.Style;
    switch (word.Kind) {
    case WordKind::Plain:
        style = {};
        state.IsHidden = false;
        break;
    case WordKind::Font:
        style.Font = fonts.IndexOf(number.value_or(0));
        break;
    case WordKind::FontSize:
        style.HalfPoints = HalfPoints(number);
        break;
    case WordKind::Bold:
        style.Bold = IsTurnedOn(number);
        break;
    case WordKind::Italic:
        style.Italic = IsTurnedOn(number);
        break;
    case WordKind::Underline:
        style.Underline = IsTurnedOn(number);
        break;
    case WordKind::NoUnderline:
        style.Underline = false;
        break;
    case WordKind::StrikeOut:
        style.StrikeOut = IsTurnedOn(number);
        break;
    case WordKind::Script:
        style.Script = Script(word, number);
        break;
    case WordKind::Foreground:
        style.Foreground = colours.ColourOf(number);
        break;
    case WordKind::Background:
        style.Background = colours.ColourOf(number);
        break;
    case WordKind::Hidden:
        state.IsHidden = IsTurnedOn(number);
        break;
    default:
        break;
    }
}

void ApplyParagraphWord(GroupState& state, ControlWord const& word, std::optional<int> number,
                        RulerTable& rulers) {
    ParagraphFormat& format = state.Paragraph;
    switch (word.Kind) {
    case WordKind::ParagraphDefaults:
        StartParagraphAnew(state);
        break;
    case WordKind::Alignment:
        format.Alignment = static_cast<Alignment>(word.Value);
        break;
    case WordKind::LeftIndent:
        format.LeftIndent = Twips(number);
        break;
    case WordKind::RightIndent:
        format.RightIndent = Twips(number);
        break;
    case WordKind::FirstLineIndent:
        format.FirstLineIndent = Twips(number);
        break;
    case WordKind::SpaceBefore:
        format.SpaceBefore = PositiveTwips(number);
        break;
    case WordKind::SpaceAfter:
        format.SpaceAfter = PositiveTwips(number);
        break;
    case WordKind::TabKind:
        state.TabKind = static_cast<TabKind>(word.Value);
        break;
    case WordKind::TabStop:
        AddTabStop(state, Twips(number), rulers);
        break;
    case WordKind::PageBreakBefore:
        format.PageBreakBefore = IsTurnedOn(number);
        break;
    case WordKind::InTable:
        state.IsInTable = IsTurnedOn(number);
        break;
    case WordKind::NestingLevel:
        state.NestingLevel = static_cast<std::uint8_t>(std::clamp(number.value_or(0), 0, DeepestNesting));
        break;
    default:
        break;
    }
}

void ApplyPageWord(PageLayout& page, ControlWord const& word, std::optional<int> number) {
    switch (word.Kind) {
    case WordKind::PaperWidth:
        page.PaperWidth = PositiveTwips(number);
        break;
    case WordKind::PaperHeight:
        page.PaperHeight = PositiveTwips(number);
        break;
    case WordKind::LeftMargin:
        page.LeftMargin = PositiveTwips(number);
        break;
    case WordKind::RightMargin:
        page.RightMargin = PositiveTwips(number);
        break;
    case WordKind::TopMargin:
        page.TopMargin = PositiveTwips(number);
        break;
    case WordKind::BottomMargin:
        page.BottomMargin = PositiveTwips(number);
        break;
    default:
        break;
    }
}

} // namespace quorvex::richtext
