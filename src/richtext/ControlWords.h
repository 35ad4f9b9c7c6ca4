// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The control words that a document is understood by.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvex::richtext {

enum class WordKind : std::uint8_t {
    // characters; Value is the character
    Character,
    Separator, // a tab or an end of line, never what stands for another character
    Unicode,
    FallbackLength,
    // the document
    DefaultFont,
    CodePage, // Value is the code page, 0: the word's number
    PaperWidth,
    PaperHeight,
    LeftMargin,
    RightMargin,
    TopMargin,
    BottomMargin,
    // what a group holds
    SkippedGroup,
    ShownGroup, // shown although an ignorable one
    NestedRowGroup,
    FontTable,
    ColourTable,
    Picture,
    Marker,
    // entries of the font and colour tables
    CharacterSet,
    FontCodePage,
    Red,
    Green,
    Blue,
    // pictures
    PictureIsPng,
    PictureIsOther,
    PictureWidth,
    PictureHeight,
    PictureScaleX,
    PictureScaleY,
    // characters' style
    Plain,
    Font,
    FontSize,
    Bold,
    Italic,
    Underline,
    NoUnderline,
    StrikeOut,
    Script, // Value is the ScriptPosition
    Foreground,
    Background,
    Hidden,
    // paragraphs
    ParagraphDefaults,
    Alignment, // Value is the Alignment
    LeftIndent,
    RightIndent,
    FirstLineIndent,
    SpaceBefore,
    SpaceAfter,
    TabStop,
    TabKind, // Value is the TabKind
    PageBreakBefore,
    InTable,
    NestingLevel,
    // the flow of the text
    EndParagraph,
    Page,
    Section,
    SectionGoesOn,
    EndCell,
    EndRow,
    EndNestedCell,
    EndNestedRow,
    // rows
    RowDefaults,
    RowLeft,
    RowIsHeader,
    CellEdge,
    BorderSide, // Value is the CellSide
    OtherBorder,
    NoBorder,
    BorderLine, // Value is how many times the pen's width
    BorderWidth,
    BorderColour,
    CellShading,
    MergedLeft,
    MergeDown, // Value is the VerticalMerge
};

struct ControlWord {
    std::string_view Name;
    WordKind Kind;
    int Value = 0;
};

// The word of this name, null when it is not understood.
[[nodiscard]] ControlWord const* FindControlWord(std::string_view name);

} // namespace quorvex::richtext
