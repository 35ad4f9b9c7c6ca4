// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"
#include "richtext/RulerTable.h"
#include "richtext/basRichText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::richtext {
namespace {

using TabStops = std::vector<TabStop>;

ParagraphFormat FormatBehind(std::string_view words) {
    return ParagraphAt(ReadBody(std::string(words) + " x\\par"), 0).Format;
}

TabStops TabStopsBehind(std::string_view words) {
    auto const document = ReadBody(std::string(words) + " x\\par");
    return document.Rulers.at(ParagraphAt(document, 0).Format.Ruler);
}

TEST(RichTextParagraphs, EndWithTheirWord) {
    EXPECT_EQ(TextOf(R"(one\par two\par\par four)"), "one\ntwo\n\nfour");
    EXPECT_EQ(TextOf("one\\\ntwo\\\r\nthree\\par"), "one\ntwo\nthree");
    EXPECT_EQ(TextOf(""), "");
}

TEST(RichTextParagraphs, DoNotEndWithTheLinesOfTheFile) {
    EXPECT_EQ(TextOf("one\r\ntwo\nthree"), "onetwothree");
}

TEST(RichTextParagraphs, HaveAnAlignment) {
    EXPECT_EQ(FormatBehind("").Alignment, Alignment::Left);
    EXPECT_EQ(FormatBehind(R"(\qr)").Alignment, Alignment::Right);
    EXPECT_EQ(FormatBehind(R"(\qc)").Alignment, Alignment::Centre);
    EXPECT_EQ(FormatBehind(R"(\qj)").Alignment, Alignment::Justified);
    EXPECT_EQ(FormatBehind(R"(\qc\ql)").Alignment, Alignment::Left);
}

TEST(RichTextParagraphs, HaveIndentsAndSpaces) {
    auto const format = FormatBehind(R"(\li720\ri-100\fi-360\sb120\sa60)");
    EXPECT_EQ(format.LeftIndent, 720);
    EXPECT_EQ(format.RightIndent, -100);
    EXPECT_EQ(format.FirstLineIndent, -360);
    EXPECT_EQ(format.SpaceBefore, 120);
    EXPECT_EQ(format.SpaceAfter, 60);
}

TEST(RichTextParagraphs, CutLengthsToTheirRange) {
    auto const format = FormatBehind(R"(\li2147483647\fi-2147483648\sb-1)");
    EXPECT_EQ(format.LeftIndent, 31680);
    EXPECT_EQ(format.FirstLineIndent, -31680);
    EXPECT_EQ(format.SpaceBefore, 0);
}

TEST(RichTextParagraphs, KeepTheirFormatUntilItIsSetBack) {
    auto const document = ReadBody(R"(\qc\li100 one\par two\par\pard three)");
    EXPECT_EQ(ParagraphAt(document, 1).Format.Alignment, Alignment::Centre);
    EXPECT_EQ(ParagraphAt(document, 1).Format.LeftIndent, 100);
    EXPECT_EQ(ParagraphAt(document, 2).Format, ParagraphFormat());
}

TEST(RichTextParagraphs, HaveTheFormatThatHoldsAtTheirEnd) {
    EXPECT_EQ(FormatBehind(R"({\qc text})").Alignment, Alignment::Left);
    EXPECT_EQ(ParagraphAt(ReadBody(R"({\qc text\par})"), 0).Format.Alignment, Alignment::Centre);
    EXPECT_EQ(ParagraphAt(ReadBody(R"(\qc text)"), 0).Format.Alignment, Alignment::Centre);
}

TEST(RichTextParagraphs, HaveTabStops) {
    EXPECT_EQ(TabStopsBehind(""), TabStops());
    EXPECT_EQ(TabStopsBehind(R"(\tx720\tqr\tx2880\tqc\tx1440\tqdec\tx4000\tx5000)"),
              (TabStops{{720, TabKind::Left},
                        {1440, TabKind::Centre},
                        {2880, TabKind::Right},
                        {4000, TabKind::Decimal},
                        {5000, TabKind::Left}}));
    EXPECT_EQ(TabStopsBehind(R"(\tx720\tqr\tx720\pard\tx100\tx100)"), (TabStops{{100, TabKind::Left}}));
}

TEST(RichTextParagraphs, ShareTabStopsWithoutChangingEachOther) {
    auto const document = ReadBody(R"(\tx1 a\par\tx2 b\par{\tx3 c\par}{\tx4 d\par}\tx5 e\par)");
    std::vector<std::size_t> counts;
    for (std::size_t index = 0; index < 5; ++index) {
        counts.push_back(document.Rulers.at(ParagraphAt(document, index).Format.Ruler).size());
    }
    EXPECT_EQ(counts, (std::vector<std::size_t>{1, 2, 3, 3, 3}));
    auto const last = document.Rulers.at(ParagraphAt(document, 4).Format.Ruler);
    EXPECT_EQ(last, (TabStops{{1, TabKind::Left}, {2, TabKind::Left}, {5, TabKind::Left}}));
}

TEST(RichTextParagraphs, KeepTheTabStopsOfManyOnce) {
    std::string body = R"(\tx100\tx200\tx300)";
    for (int count = 0; count < 1000; ++count) {
        body += R"({\b a}\par)";
    }
    EXPECT_EQ(ReadBody(body).Rulers.size(), 2U);
}

TEST(RichTextParagraphs, DropTabStopsBeyondTheMost) {
    std::string words;
    for (int position = 1; position <= 50; ++position) {
        words += "\\tx" + std::to_string(position);
    }
    auto const stops = TabStopsBehind(words);
    ASSERT_EQ(stops.size(), RulerTable::MostTabStops);
    EXPECT_EQ(stops.back().Position, 32);
}

TEST(RichTextLists, HaveTheirMarkersApart) {
    EXPECT_EQ(
        TextOf(R"({\pntext\f2\'b7\tab}{\*\pn\pnlvlblt\pnf2{\pntxtb\'b7}}one\par{\pntext 2.\tab}two\par)"),
        "(•)one\n(2.)two");
    EXPECT_EQ(
        TextOf(R"(\ls1{\listtext\pard\plain\f2 \'b7\tab}one\par{\listtext  \u8226\'95\tab}two\par three)"),
        "(•)one\n(•)two\nthree");
    EXPECT_EQ(TextOf(R"(\bullet\tab item)"), "•\titem");
}

TEST(RichTextLists, LeaveStyleAndFormatAlone) {
    auto const document = ReadBody(R"(\b\qr{\listtext\pard\plain\ql 1.\par\cell}x\par)");
    EXPECT_TRUE(StyleOf(document, "x").Bold);
    EXPECT_EQ(ParagraphAt(document, 0).Format.Alignment, Alignment::Right);
    EXPECT_EQ(OutlineOf(document), "(1.)x");
}

std::vector<bool> PageBreaksOf(std::string_view body) {
    auto const document = ReadBody(body);
    std::vector<bool> breaks;
    for (std::size_t index = 0; index < document.Blocks.size(); ++index) {
        breaks.push_back(ParagraphAt(document, index).Format.PageBreakBefore);
    }
    return breaks;
}

using Breaks = std::vector<bool>;

TEST(RichTextPages, BreakInFrontOfWhatFollows) {
    EXPECT_EQ(PageBreaksOf(R"(one\par\page two\par three\par)"), (Breaks{false, true, false}));
    EXPECT_EQ(TextOf(R"(one\page two\par)"), "one\ntwo");
    EXPECT_EQ(PageBreaksOf(R"(one\page two\par)"), (Breaks{false, true}));
    EXPECT_EQ(PageBreaksOf(R"(one\par\pagebb two\par\pard three\par)"), (Breaks{false, true, false}));
    EXPECT_EQ(PageBreaksOf(R"(one\par\pagebb\pagebb0 two\par)"), (Breaks{false, false}));
}

TEST(RichTextPages, BreakWithSectionsThatDoNotGoOn) {
    EXPECT_EQ(PageBreaksOf(R"(one\sect\sectd two\par)"), (Breaks{false, true}));
    EXPECT_EQ(PageBreaksOf(R"(one\par\sect\sectd\sbknone two\par)"), (Breaks{false, false}));
    EXPECT_EQ(PageBreaksOf(R"(one\page\sect\sbknone two\par)"), (Breaks{false, true}));
    EXPECT_EQ(PageBreaksOf(R"(\sectd\sbknone one\par)"), (Breaks{false}));
}

TEST(RichTextPages, HavePaperAndMarginsWhereTheyAreGiven) {
    auto const page = ReadBody(R"(\paperw12240\paperh15840\margl1800\margr1700\margt1440\margb-5)").Page;
    EXPECT_EQ(page.PaperWidth, 12240);
    EXPECT_EQ(page.PaperHeight, 15840);
    EXPECT_EQ(page.LeftMargin, 1800);
    EXPECT_EQ(page.RightMargin, 1700);
    EXPECT_EQ(page.TopMargin, 1440);
    EXPECT_EQ(page.BottomMargin, 0);
    EXPECT_FALSE(ReadBody("x").Page.PaperWidth.has_value());
}

} // namespace
} // namespace quorvex::richtext
