// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basSvg.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>

namespace quorvex::platform {
namespace {

// A drawing alone on its sheet.
std::string SvgOfDrawing(RecordingCanvas const& drawing) {
    std::array<PlacedDrawing, 1> const placed = {{{0, 0, &drawing}}};
    return SvgOf({drawing.Width(), drawing.Height(), placed});
}

// What stands between the drawing's background and its border.
std::string InkOf(RecordingCanvas const& drawing) {
    std::string const svg = SvgOfDrawing(drawing);
    auto const begin = svg.find('\n', svg.find("stroke-linejoin")) + 1;
    return svg.substr(begin, svg.find("</g>", begin) - begin);
}

TEST(SvgOf, IsADocumentOfTheSheetWithItsDrawingsInBorders) {
    RecordingCanvas first(1500, 750);
    first.Clear();
    first.Line(0, 0, 1500, 750, 0xFF00FF);
    RecordingCanvas second(300, 150);
    std::array<PlacedDrawing, 2> const placed = {{{150, 150, &first}, {150, 1000, &second}}};
    EXPECT_EQ(SvgOf({1800, 1300, placed}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"120\" height=\"86.667\" viewBox=\"0 0 120 "
              "86.667\">\n"
              "<title>Quorvex</title>\n"
              "<rect x=\"0\" y=\"0\" width=\"120\" height=\"86.667\" fill=\"#ffffff\"/>\n"
              "<g transform=\"translate(10,10)\">\n"
              "<clipPath id=\"box1\"><rect x=\"0\" y=\"0\" width=\"100\" height=\"50\"/></clipPath>\n"
              "<g clip-path=\"url(#box1)\" fill=\"none\" stroke-width=\"0.75\" stroke-linecap=\"square\" "
              "stroke-linejoin=\"bevel\">\n"
              "<path fill=\"#ffffff\" stroke=\"none\" d=\"M0,0H100V50H0Z\"/>\n"
              "<path stroke=\"#ff00ff\" d=\"M0,0L100,50\"/>\n"
              "</g>\n"
              "<rect x=\"0\" y=\"0\" width=\"100\" height=\"50\" fill=\"none\" stroke=\"#808080\"/>\n"
              "</g>\n"
              "<g transform=\"translate(10,66.667)\">\n"
              "<clipPath id=\"box2\"><rect x=\"0\" y=\"0\" width=\"20\" height=\"10\"/></clipPath>\n"
              "<g clip-path=\"url(#box2)\" fill=\"none\" stroke-width=\"0.75\" stroke-linecap=\"square\" "
              "stroke-linejoin=\"bevel\">\n"
              "<path fill=\"#ffffff\" stroke=\"none\" d=\"M0,0H20V10H0Z\"/>\n"
              "</g>\n"
              "<rect x=\"0\" y=\"0\" width=\"20\" height=\"10\" fill=\"none\" stroke=\"#808080\"/>\n"
              "</g>\n"
              "</svg>\n");
}

TEST(SvgOf, LetsNeighboursOfOneColourShareAPath) {
    RecordingCanvas drawing(1500, 1500);
    drawing.Clear();
    drawing.Line(0, 15, 30, 15, 0x123456);
    drawing.Line(60, 15, 90, 15, 0x123456);
    drawing.LineTo(105, 30, 0x123456);
    drawing.Line(0, 45, 30, 45, 0xABCDEF);
    drawing.Rectangle(90, 90, 60, 60, 0xABCDEF, Fill::Filled);
    drawing.Rectangle(120, 60, 150, 90, 0xABCDEF, Fill::Filled);
    EXPECT_EQ(InkOf(drawing), "<path fill=\"#ffffff\" stroke=\"none\" d=\"M0,0H100V100H0Z\"/>\n"
                              "<path stroke=\"#123456\" d=\"M0,1L2,1M4,1L6,1 7,2\"/>\n"
                              "<path stroke=\"#abcdef\" d=\"M0,3L2,3\"/>\n"
                              "<path fill=\"#abcdef\" stroke=\"none\" d=\"M4,4H6V6H4ZM8,4H10V6H8Z\"/>\n");
}

TEST(SvgOf, DrawsAnOutlineThinnerThanItsBorderAsALine) {
    RecordingCanvas drawing(1500, 1500);
    drawing.Clear();
    drawing.Rectangle(30, 60, 90, 150, Black, Fill::Outline);
    drawing.Rectangle(30, 60, 36, 150, Black, Fill::Outline);
    drawing.Rectangle(30, 66, 90, 60, Black, Fill::Outline);
    EXPECT_EQ(InkOf(drawing), "<path fill=\"#ffffff\" stroke=\"none\" d=\"M0,0H100V100H0Z\"/>\n"
                              "<path stroke=\"#000000\" d=\"M2,4H6V10H2ZM2.2,4V10M2,4.2H6\"/>\n");
}

TEST(SvgOf, DrawsAPointAsWideAsALine) {
    RecordingCanvas drawing(1500, 1500);
    drawing.Clear();
    drawing.Point(150, 150, 0xFF);
    EXPECT_NE(InkOf(drawing).find(
                  "<path fill=\"#0000ff\" stroke=\"none\" d=\"M9.625,9.625H10.375V10.375H9.625Z\"/>\n"),
              std::string::npos);
}

TEST(SvgOf, WritesTextsInTheFontOrItsStandIns) {
    RecordingCanvas drawing(1500, 1500);
    drawing.Clear();
    drawing.SetFont("Arial", 9, true);
    drawing.SetForeColour(0x00FF00);
    drawing.SetTextPosition(150, 300);
    drawing.Print("  571.13");
    drawing.SetFont("Times New Roman", 12, false);
    drawing.Print("x");
    std::string const ink = InkOf(drawing);
    EXPECT_NE(
        ink.find("<text x=\"10\" y=\"30.86\" font-family=\"Arial,'Liberation Sans',Helvetica,sans-serif\" "
                 "font-size=\"12\" font-weight=\"bold\" fill=\"#00ff00\" stroke=\"none\" "
                 "xml:space=\"preserve\">  571.13</text>\n"),
        std::string::npos)
        << ink;
    EXPECT_NE(
        ink.find(
            "<text x=\"10\" y=\"34.256\" font-family=\"'Times New Roman','Liberation Serif',Times,serif\" "
            "font-size=\"16\" fill=\"#00ff00\""),
        std::string::npos)
        << ink;
}

TEST(SvgOf, KeepsTextsClearOfTheBorder) {
    RecordingCanvas drawing(1500, 1500);
    drawing.SetTextPosition(0, 0);
    drawing.Print("edge");
    EXPECT_NE(InkOf(drawing).find("<text x=\"3\" y=\"11.153\""), std::string::npos) << InkOf(drawing);
}

TEST(SvgOf, WritesAnyBytesAsXml) {
    RecordingCanvas drawing(1500, 1500);
    drawing.Print("a<b>&\"c\" \xC3\xA9 \xE9 \x01 \xEF\xBF\xBF\t.");
    EXPECT_NE(InkOf(drawing).find(
                  ">a&lt;b&gt;&amp;\"c\" \xC3\xA9 \xEF\xBF\xBD \xEF\xBF\xBD \xEF\xBF\xBD\t.</text>\n"),
              std::string::npos)
        << InkOf(drawing);
}

TEST(SvgOf, KeepsWhatLiesFarAwayCountable) {
    RecordingCanvas drawing(1500, 1500);
    constexpr double Endless = std::numeric_limits<double>::infinity();
    drawing.Line(-Endless, 0, Endless, std::numeric_limits<double>::quiet_NaN(), 0xFF);
    drawing.Line(1e300, -1e-9, -1e300, 0, 0xFF);
    std::string const ink = InkOf(drawing);
    EXPECT_NE(ink.find("d=\"M-1000000,0L1000000,-1000000M1000000,0L-1000000,0\""), std::string::npos) << ink;
}

TEST(SvgOf, RefusesASheetWithoutAnExtent) {
    for (auto const& [width, height] : {std::pair{0.0, 1500.0}, {1500.0, 0.0}, {-1.0, 1500.0}}) {
        EXPECT_THROW(static_cast<void>(SvgOf({width, height, {}})), text::RunTimeError);
    }
}

TEST(SvgEncoder, MakesSvgAndNothingElse) {
    SvgEncoder encoder;
    EXPECT_TRUE(encoder.Makes(PictureKind::Svg));
    EXPECT_EQ(encoder.Encode({1500, 1500, {}}, PictureKind::Svg), SvgOf({1500, 1500, {}}));
    for (auto const kind : {PictureKind::Png, PictureKind::Pdf}) {
        EXPECT_FALSE(encoder.Makes(kind));
        EXPECT_THROW(static_cast<void>(encoder.Encode({1500, 1500, {}}, kind)), text::RunTimeError);
    }
}

} // namespace
} // namespace quorvex::platform
