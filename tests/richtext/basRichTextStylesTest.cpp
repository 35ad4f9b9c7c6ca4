// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"
#include "richtext/basRichText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::richtext {
namespace {

CharacterStyle StyleBehind(std::string_view words) {
    return StyleOf(ReadBody(std::string(words) + " x"), "x");
}

TEST(RichTextStyles, StartWithTheDefaults) {
    EXPECT_EQ(StyleBehind(R"(\unknown)"), CharacterStyle());
}

TEST(RichTextStyles, AreTurnedOnAndOff) {
    EXPECT_TRUE(StyleBehind(R"(\b)").Bold);
    EXPECT_TRUE(StyleBehind(R"(\b1)").Bold);
    EXPECT_FALSE(StyleBehind(R"(\b\b0)").Bold);
    EXPECT_TRUE(StyleBehind(R"(\i)").Italic);
    EXPECT_FALSE(StyleBehind(R"(\i\i0)").Italic);
    EXPECT_TRUE(StyleBehind(R"(\ul)").Underline);
    EXPECT_TRUE(StyleBehind(R"(\uldb)").Underline);
    EXPECT_FALSE(StyleBehind(R"(\ul\ul0)").Underline);
    EXPECT_FALSE(StyleBehind(R"(\ulw\ulnone)").Underline);
    EXPECT_TRUE(StyleBehind(R"(\strike)").StrikeOut);
    EXPECT_FALSE(StyleBehind(R"(\strike\strike0)").StrikeOut);
}

TEST(RichTextStyles, HaveScriptPositions) {
    EXPECT_EQ(StyleBehind(R"(\super)").Script, ScriptPosition::Superscript);
    EXPECT_EQ(StyleBehind(R"(\sub)").Script, ScriptPosition::Subscript);
    EXPECT_EQ(StyleBehind(R"(\super\nosupersub)").Script, ScriptPosition::Normal);
    EXPECT_EQ(StyleBehind(R"(\super\super0)").Script, ScriptPosition::Normal);
}

TEST(RichTextStyles, HaveSizesInHalfPoints) {
    EXPECT_EQ(StyleBehind(R"(\fs17)").HalfPoints, 17);
    EXPECT_EQ(StyleBehind(R"(\fs17\fs)").HalfPoints, 24);
    EXPECT_EQ(StyleBehind(R"(\fs0)").HalfPoints, 24);
    EXPECT_EQ(StyleBehind(R"(\fs-5)").HalfPoints, 24);
    EXPECT_EQ(StyleBehind(R"(\fs999999)").HalfPoints, 3276);
}

TEST(RichTextStyles, HaveColoursOfTheTable) {
    EXPECT_EQ(StyleBehind(R"(\cf1)").Foreground, Colour(0xFF0000));
    EXPECT_EQ(StyleBehind(R"(\cf2)").Foreground, Colour(0x102030));
    EXPECT_EQ(StyleBehind(R"(\cf1\cf0)").Foreground, Colour());
    EXPECT_EQ(StyleBehind(R"(\cf1\cf3)").Foreground, Colour());
    EXPECT_EQ(StyleBehind(R"(\cf-1)").Foreground, Colour());
    EXPECT_EQ(StyleBehind(R"(\cb1)").Background, Colour(0xFF0000));
    EXPECT_EQ(StyleBehind(R"(\highlight2)").Background, Colour(0x102030));
    EXPECT_EQ(StyleBehind(R"(\chcbpat2)").Background, Colour(0x102030));
}

TEST(RichTextStyles, CutColoursToTheirRange) {
    auto const document = ReadBody(R"({\colortbl\red999\green-1;;}{\cf3 x}{\cf4 y})");
    EXPECT_EQ(StyleOf(document, "x").Foreground, Colour(0xFF0000));
    EXPECT_EQ(StyleOf(document, "y").Foreground, Colour());
}

TEST(RichTextStyles, EndWithTheirGroup) {
    auto const document = ReadBody(R"(a{\b b{\i c}d}e)");
    EXPECT_FALSE(StyleOf(document, "a").Bold);
    EXPECT_TRUE(StyleOf(document, "b").Bold);
    EXPECT_TRUE(StyleOf(document, "c").Bold);
    EXPECT_TRUE(StyleOf(document, "c").Italic);
    EXPECT_FALSE(StyleOf(document, "d").Italic);
    EXPECT_FALSE(StyleOf(document, "e").Bold);
}

TEST(RichTextStyles, EndWithPlain) {
    EXPECT_EQ(StyleBehind(R"(\b\i\ul\strike\super\f1\fs40\cf1\cb1\plain)"), CharacterStyle());
}

TEST(RichTextStyles, PartTheTextOnlyWhereTheyChange) {
    auto const document = ReadBody(R"(one {two} \b0 three\'20\u102 ?our)");
    ASSERT_EQ(ParagraphAt(document, 0).Content.size(), 1U);
    EXPECT_EQ(RunAt(ParagraphAt(document, 0), 0).Text, "one two three four");
}

TEST(RichTextFonts, AreNamed) {
    auto const document = ReadBody(R"(a\f1 b\f9 c)");
    EXPECT_EQ(document.Fonts.at(0), "Arial");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "b").Font), "Warsaw");
    EXPECT_EQ(StyleOf(document, "c").Font, 0);
}

TEST(RichTextFonts, HaveTheDefaultFirst) {
    auto const document = ReadRichText(R"({\rtf1\deff3{\fonttbl{\f0 A;}{\f3 B;}}x{\f0 y}})");
    EXPECT_EQ(document.Fonts, (std::vector<std::string>{"B", "A"}));
    EXPECT_EQ(StyleOf(document, "x").Font, 0);
    EXPECT_EQ(StyleOf(document, "y").Font, 1);
    EXPECT_EQ(ReadRichText(R"({\rtf1 x})").Fonts, std::vector<std::string>{"Times New Roman"});
}

TEST(RichTextFonts, AreReadWithoutGroupsOfTheirOwn) {
    auto const document = ReadBody(R"({\fonttbl\f20\fswiss Helvetica;\f21\froman Palatino})"
                                   R"({\f20 x}{\f21 y})");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "x").Font), "Helvetica");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "y").Font), "Palatino");
}

TEST(RichTextFonts, LeaveOtherNamesAndDataOut) {
    auto const document = ReadBody(R"({\fonttbl{\f20{\*\panose 02020603}Tahoma{\*\falt Verdana};}}\f20 x)");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "x").Font), "Tahoma");
}

TEST(RichTextFonts, HaveNamesInTheirCodePage) {
    auto const document =
        ReadBody(R"({\fonttbl{\f20\fcharset204 \'cf\'f0;}{\f21 \u937 ?x;}}{\f20 x}{\f21 y})");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "x").Font), "Пр");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "y").Font), "Ωx");
}

TEST(RichTextFonts, CutNamesThatNoFontHas) {
    auto const document = ReadBody(R"({\fonttbl{\f20 )" + std::string(100'000, 'n') + R"(;}}\f20 x)");
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "x").Font), std::string(128, 'n'));
}

} // namespace
} // namespace quorvex::richtext
