// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Documents that LibreOffice Writer saved.

#include "Notation.h"
#include "richtext/basRichText.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::richtext {
namespace {

RichTextDocument ReadSaved(std::string_view name) {
    return ReadRichText(tests::GoldenFile("rich-text/" + std::string(name) + ".rtf"));
}

TEST(WriterDocuments, HaveTheirText) {
    EXPECT_EQ(OutlineOf(ReadSaved("text")),
              "Cycles of futures\n"
              "Plain, bold, red italic, underlined, x2.\n"
              "Euro €, Grüße, Привет, Δτ, 😀; first line^second line – “quoted”.\n"
              "Key\tleft\tright\n"
              "(•)first item\n"
              "(•)second item\n"
              "(1.)one\n"
              "(2.)two\n"
              "See the link.\n"
              "On the second page");
}

TEST(WriterDocuments, HaveTheirStyles) {
    auto const document = ReadSaved("text");
    auto const& title = StyleOf(document, "Cycles of futures");
    EXPECT_EQ(document.Fonts.at(title.Font), "Liberation Sans");
    EXPECT_EQ(title.HalfPoints, 36);
    EXPECT_TRUE(title.Bold);
    EXPECT_EQ(document.Fonts.at(StyleOf(document, "Plain, ").Font), "Liberation Serif");
    EXPECT_FALSE(StyleOf(document, "Plain, ").Bold);
    EXPECT_TRUE(StyleOf(document, "bold").Bold);
    EXPECT_TRUE(StyleOf(document, "red italic").Italic);
    EXPECT_EQ(StyleOf(document, "red italic").Foreground, Colour(0xC00000));
    EXPECT_TRUE(StyleOf(document, "underlined").Underline);
    EXPECT_EQ(StyleOf(document, "2").Script, ScriptPosition::Superscript);
}

TEST(WriterDocuments, HaveTheirParagraphFormats) {
    auto const document = ReadSaved("text");
    EXPECT_EQ(document.Page.PaperWidth, 11906);
    EXPECT_EQ(document.Page.LeftMargin, 1134);
    EXPECT_EQ(ParagraphAt(document, 0).Format.Alignment, Alignment::Centre);
    EXPECT_EQ(ParagraphAt(document, 0).Format.SpaceAfter, 288);
    auto const& keys = ParagraphAt(document, 3).Format;
    EXPECT_EQ(keys.LeftIndent, 720);
    EXPECT_EQ(keys.FirstLineIndent, -360);
    // Writer counts its tab stops from the indent.
    EXPECT_EQ(document.Rulers.at(keys.Ruler),
              (std::vector<TabStop>{{720 + 2880, TabKind::Left}, {720 + 5760, TabKind::Right}}));
    EXPECT_TRUE(ParagraphAt(document, 9).Format.PageBreakBefore);
    EXPECT_EQ(ParagraphAt(document, 9).Format.Alignment, Alignment::Right);
}

TEST(WriterDocuments, HaveTheirTables) {
    auto const document = ReadSaved("table");
    EXPECT_EQ(OutlineOf(document),
              "Before the table\n"
              "[Symbol|Commodity][C|Corn/Chicago][Both columns][Outer|[inner 1|inner 2]/behind]\n"
              "Behind the table");
    auto const& table = TableAt(document, 1);
    EXPECT_EQ(table.ColumnWidths, (std::vector<int>{2880, 5760}));
    EXPECT_EQ(table.Rows.at(2).Cells.at(0).ColumnSpan, 2);
    auto const& cell = table.Rows.at(0).Cells.at(0);
    EXPECT_EQ(cell.Borders.at(TopSide).Width, 15);
    EXPECT_EQ(cell.Borders.at(RightSide).Drawn, Colour(0x000000));
    EXPECT_EQ(cell.Shading, Colour(0xFFFFCC));
    EXPECT_TRUE(RunAt(std::get<Paragraph>(cell.Blocks.at(0).Content), 0).Style.Bold);
}

TEST(WriterDocuments, HaveTheirPictures) {
    auto const document = ReadSaved("picture");
    EXPECT_EQ(OutlineOf(document), "A picture: <picture> behind it.");
    auto const& picture = std::get<Picture>(ParagraphAt(document, 0).Content.at(1));
    EXPECT_EQ(picture.Width, 1440);
    EXPECT_EQ(picture.Height, 720);
    EXPECT_TRUE(picture.Png.starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_TRUE(picture.Png.ends_with("IEND\xAE\x42\x60\x82"));
}

} // namespace
} // namespace quorvex::richtext
