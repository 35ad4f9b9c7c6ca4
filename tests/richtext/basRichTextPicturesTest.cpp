// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quorvex::richtext {
namespace {

constexpr std::string_view Png = "\x89PNG\r\n\x1A\n{}\\data";
constexpr std::string_view Hex = "89504e470d0A1a0a7B7D5C64617461";

Picture FirstPicture(std::string_view body) {
    return std::get<Picture>(ParagraphAt(ReadBody(body), 0).Content.at(0));
}

std::string Pict(std::string_view words) {
    return "{\\pict" + std::string(words) + "}";
}

std::string PngPict(std::string_view words) {
    return Pict("\\pngblip" + std::string(words) + " " + std::string(Hex));
}

TEST(RichTextPictures, AreReadFromHexadecimalDigits) {
    EXPECT_EQ(FirstPicture(PngPict("")).Png, Png);
    EXPECT_EQ(FirstPicture(Pict(R"(\pngblip 89504e 47)"
                                "\r\n0d0a\n1a0a7"
                                "b7D5c64617461"))
                  .Png,
              Png);
}

TEST(RichTextPictures, AreReadFromBytes) {
    auto const words = R"(\pngblip\bin)" + std::to_string(Png.size()) + " " + std::string(Png);
    EXPECT_EQ(FirstPicture(Pict(words)).Png, Png);
}

TEST(RichTextPictures, HaveTheSizeThatIsWanted) {
    auto const picture = FirstPicture(PngPict(R"(\picwgoal1440\pichgoal720\picscalex50\picscaley200)"));
    EXPECT_EQ(picture.Width, 720);
    EXPECT_EQ(picture.Height, 1440);
    EXPECT_EQ(FirstPicture(PngPict("")).Width, 0);
}

TEST(RichTextPictures, CutSizesToTheirRange) {
    auto const picture =
        FirstPicture(PngPict(R"(\picwgoal2147483647\picscalex2147483647\pichgoal-5\picscaley-5)"));
    EXPECT_EQ(picture.Width, 31680);
    EXPECT_EQ(picture.Height, 0);
    EXPECT_EQ(FirstPicture(PngPict(R"(\picwgoal100\picscalex0)")).Width, 100);
}

TEST(RichTextPictures, StandAmongTheText) {
    EXPECT_EQ(OutlineOf(ReadBody("a" + PngPict("") + "b" + PngPict("") + "\\par c")),
              "a<picture>b<picture>\nc");
}

TEST(RichTextPictures, AreReadFromTheGroupsOfLaterPrograms) {
    EXPECT_EQ(OutlineOf(ReadBody(R"({\*\shppict)" + PngPict("") + R"(}{\nonshppict)" + PngPict("") + "}")),
              "<picture>");
    EXPECT_EQ(
        FirstPicture(Pict(R"({\*\picprop{\sp{\sn a}{\sv 1}}}\pngblip{\*\blipuid abcdef})" + std::string(Hex)))
            .Png,
        Png);
}

TEST(RichTextPictures, OfOtherKindsAreLeftOut) {
    EXPECT_EQ(OutlineOf(ReadBody(Pict(R"(\wmetafile8 0100090000)") + "x")), "x");
    EXPECT_EQ(OutlineOf(ReadBody(Pict(R"(\jpegblip ffd8ffe0)") + "x")), "x");
    EXPECT_EQ(OutlineOf(ReadBody(Pict(R"(\pngblip ffd8ffe0ffd8ffe0)") + "x")), "x");
    EXPECT_EQ(OutlineOf(ReadBody(Pict(R"(\pngblip\wmetafile8 )" + std::string(Hex)) + "x")), "x");
    EXPECT_EQ(OutlineOf(ReadBody(Pict("") + "x")), "x");
}

TEST(RichTextPictures, DoNotKeepWhatTheLastOneWas) {
    auto const document = ReadBody(PngPict(R"(\picwgoal1440\picscalex50)") + PngPict(R"(\picwgoal1440)") +
                                   Pict(std::string(" ") + std::string(Hex)));
    auto const& parts = ParagraphAt(document, 0).Content;
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(std::get<Picture>(parts.at(1)).Width, 1440);
}

TEST(RichTextPictures, AreLeftOutWhenHiddenOrInMarkers) {
    EXPECT_EQ(OutlineOf(ReadBody("{\\v " + PngPict("") + "}x")), "x");
    EXPECT_EQ(OutlineOf(ReadBody("{\\listtext " + PngPict("") + "}x")), "x");
}

} // namespace
} // namespace quorvex::richtext
