// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basSourceText.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::convert {
namespace {

TEST(ReadableText, KeepsTheCharactersOfUtf8) {
    // The first and the last of each length, and those beside the halves of UTF-16.
    for (std::string const& text :
         {std::string(), std::string("\0 a\x7F", 4), std::string("\xC2\x80\xDF\xBF"),
          std::string("\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"),
          std::string("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), std::string("Caf\xC3\xA9 \xE2\x82\xAC")}) {
        EXPECT_EQ(ReadableText(text), text);
    }
}

TEST(ReadableText, TakesOtherBytesForWindows1252) {
    EXPECT_EQ(ReadableText("Caf\xE9, \x80 5"), "Caf\xC3\xA9, \xE2\x82\xAC 5");
    EXPECT_EQ(ReadableText("\x93Kakao\x94"), "\xE2\x80\x9CKakao\xE2\x80\x9D");
}

TEST(ReadableText, TakesAPartOfACharacterForWindows1252) {
    EXPECT_EQ(ReadableText("\xE9"), "\xC3\xA9");
    EXPECT_EQ(ReadableText("\xE2\x82"), "\xC3\xA2\xE2\x80\x9A"); // the euro sign cut off
    EXPECT_EQ(ReadableText("\xE9\xC3\xA9"), "\xC3\xA9\xC3\xA9"); // one of each kind
    EXPECT_EQ(ReadableText("\xF1\xBF\xBFz"), "\xC3\xB1\xC2\xBF\xC2\xBFz");
}

TEST(ReadableText, TakesSpellingsThatUtf8ForbidsForWindows1252) {
    EXPECT_EQ(ReadableText("\xC0\xAF"), "\xC3\x80\xC2\xAF");                         // too long
    EXPECT_EQ(ReadableText("\xE0\x9F\xBF"), "\xC3\xA0\xC5\xB8\xC2\xBF");             // too long
    EXPECT_EQ(ReadableText("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xE2\x82\xAC");         // half of a pair
    EXPECT_EQ(ReadableText("\xF4\xA0\xBF\xBF"), "\xC3\xB4\xC2\xA0\xC2\xBF\xC2\xBF"); // behind the last one
    EXPECT_EQ(ReadableText("\xF5\xBF\xBF\xBF"), "\xC3\xB5\xC2\xBF\xC2\xBF\xC2\xBF");
}

} // namespace
} // namespace quorvex::convert
