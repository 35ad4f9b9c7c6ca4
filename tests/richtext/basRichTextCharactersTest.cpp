// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Notation.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quorvex::richtext {
namespace {

TEST(RichTextCharacters, OfBytesAreThoseOfTheFontsCodePage) {
    EXPECT_EQ(TextOf(R"(Gr\'fc\'dfe \'80)"), "Grüße €");
    EXPECT_EQ(TextOf(R"(\f1 \'b3\f0 \'b3)"), "ł³");
    EXPECT_EQ(TextOf(R"(\f3 \'cf\'f0\'e8{\f0 \'e8}\'e8)"), "Приèи");
    EXPECT_EQ(TextOf(R"(\f3 \'cf\plain\'cf)"), "ПÏ");
}

TEST(RichTextCharacters, OfBytesThatStandForThemselvesAreToo) {
    EXPECT_EQ(TextOf("\xFC\\f3 \xCF!"), "üП!");
}

TEST(RichTextCharacters, OfFontsWithoutACharacterSetAreThoseOfTheDocument) {
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7 Any;}}\ansicpg1250\f7\'b3)"), "ł");
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7\fcharset1 Any;}}\mac\f7\'80)"), "Ä");
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7 Any;}}\pc\f7\'81)"), "ü");
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7 Any;}}\pca\f7\'9b)"), "ø");
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7\cpg852 Any;}}\f7\'88)"), "ł");
}

TEST(RichTextCharacters, OfAnUnknownCodePageAreReplaced) {
    EXPECT_EQ(TextOf(R"({\fonttbl{\f7\fcharset128 Any;}}\f7 a\'82b)"), "a\xEF\xBF\xBD"
                                                                       "b");
}

TEST(RichTextCharacters, OfTheFontSymbolAreSigns) {
    EXPECT_EQ(TextOf(R"(\f2 a\'b7\f0 a)"), "α•a");
    EXPECT_EQ(TextOf(R"(\f2\u-3913 ?\u61537 ?)"), "•α");
}

TEST(RichTextCharacters, OfNumbersHaveTheirFallbackSkipped) {
    EXPECT_EQ(TextOf(R"(\u8364?x)"), "€x");
    EXPECT_EQ(TextOf(R"(\u8364\'80x)"), "€x");
    EXPECT_EQ(TextOf(R"(\u8364 ?x)"), "€x");
    EXPECT_EQ(TextOf(R"(\u8212\emdash x)"), "—x");
    EXPECT_EQ(TextOf(R"(\u8364\{x)"), "€x");
    EXPECT_EQ(TextOf(R"(\u160\~x)"), "\u00A0x");
    EXPECT_EQ(TextOf(R"(\uc0\u8364 x)"), "€x");
    EXPECT_EQ(TextOf(R"(\uc3\u8364 abcx)"), "€x");
    EXPECT_EQ(TextOf(R"(\uc2\u8364 a\'62x)"), "€x");
    EXPECT_EQ(TextOf(R"(\uc2\u8364 \bin1 }ax)"), "€x");
    EXPECT_EQ(TextOf(R"({\uc0\u8364 a}\u8364 ab)"), "€a€b");
}

TEST(RichTextCharacters, KeepWhatFollowsAMissingFallback) {
    EXPECT_EQ(TextOf(R"({\u8364}x)"), "€x");
    EXPECT_EQ(TextOf(R"(\u8364{x})"), "€x");
    EXPECT_EQ(TextOf(R"(\u8364\par x)"), "€\nx");
    EXPECT_EQ(TextOf(R"(\u8364\tab x)"), "€\tx");
    EXPECT_EQ(TextOf(R"(\uc5\u8364\u8364\b x)"), "€€x");
}

TEST(RichTextCharacters, OfTwoNumbersAreJoined) {
    EXPECT_EQ(TextOf(R"(\u-10179 ?\u-8704 ?x)"), "😀x");
    EXPECT_EQ(TextOf(R"(\uc0\u55357\u56832 x)"), "😀x");
    EXPECT_EQ(TextOf(R"({\u55357 ?}{\u56832 ?})"), "😀");
}

TEST(RichTextCharacters, OfHalfAPairAreReplaced) {
    EXPECT_EQ(TextOf(R"(\u55357 ?x)"), "\xEF\xBF\xBDx");
    EXPECT_EQ(TextOf(R"(\u55357 ?\'78)"), "\xEF\xBF\xBDx");
    EXPECT_EQ(TextOf(R"(\u55357 ?\emdash)"), "\xEF\xBF\xBD—");
    EXPECT_EQ(TextOf(R"(\u56832 ?x)"), "\xEF\xBF\xBDx");
    EXPECT_EQ(TextOf(R"(\u55357 ?\u55357 ?\u56832 ?x)"), "\xEF\xBF\xBD😀x");
    EXPECT_EQ(TextOf(R"(\u55357 ?\u65 ?x)"), "\xEF\xBF\xBD"
                                             "Ax");
}

TEST(RichTextCharacters, OfNumbersBeyondTwoBytesAreTakenAsTheyAre) {
    EXPECT_EQ(TextOf(R"(\u128512 ?\u1114112 ?\u-99999 ?)"), "😀\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(RichTextCharacters, HaveWordsOfTheirOwn) {
    EXPECT_EQ(TextOf(R"(\emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote)"), "—–•‘’“”");
    EXPECT_EQ(TextOf(R"(\emspace\enspace\zwj)"), "\u2003\u2002\u200D");
    EXPECT_EQ(TextOf(R"(a\~b\_c\-d)"), "a\u00A0b\u2011c\u00ADd");
    EXPECT_EQ(TextOf(R"(\\\{\})"), "\\{}");
    EXPECT_EQ(TextOf("a\\tab b\\line c\\\td\te"), "a\tb^c\td\te");
}

TEST(RichTextCharacters, AreNeverControlCharactersOrEndsOfParagraphs) {
    EXPECT_EQ(TextOf(std::string_view("a\0b\x01\x7F\x0C", 6)), "ab");
    EXPECT_EQ(TextOf(R"(\u0 ?\u10 ?\u13 ?\u133 ?\'07\'00x)"), "x");
    EXPECT_EQ(TextOf(R"(a\u8233 ?b\u9 ?c)"), "a^b\tc");
}

TEST(RichTextCharacters, AreLeftOutWhenHidden) {
    EXPECT_EQ(TextOf(R"(a\v b\'62\u98 ?\tab\v0 c{\v d}e\v f\plain g{\deleted h})"), "aceg");
}

} // namespace
} // namespace quorvex::richtext
