// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basProfileTexts.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::platform {
namespace {

TEST(ProfileTexts, BareTextsHaveNoBlanksAndOnePairOfMarksLess) {
    EXPECT_EQ(BareProfileText(" \t C:\\My Quotes \t"), "C:\\My Quotes");
    EXPECT_EQ(BareProfileText("\"x\""), "x");
    EXPECT_EQ(BareProfileText("'x'"), "x");
    EXPECT_EQ(BareProfileText("\"\"x\"\""), "\"x\"");
    EXPECT_EQ(BareProfileText(" ' x ' "), " x ");
    EXPECT_EQ(BareProfileText("''"), "");
    for (char const* const text : {"", "'", "\"", "'x\"", "\"x", "x'", "a'b'c", "\"a\" b"}) {
        EXPECT_EQ(BareProfileText(text), text);
    }
}

TEST(ProfileTexts, AreCutBehind127Bytes) {
    for (std::size_t const length : {0U, 126U, 127U, 128U, 129U}) {
        std::string const text(length, 'x');
        EXPECT_EQ(CutProfileText(text), text.substr(0, 127)) << length;
    }
}

TEST(ProfileTexts, AreNotCutInsideACharacter) {
    struct Case {
        std::string Character;
        std::size_t InFront;
        std::size_t Left;
    };

    for (auto const& [character, inFront, left] :
         {Case{"\xC3\xA4", 125, 127}, Case{"\xC3\xA4", 126, 126}, Case{"\xE2\x82\xAC", 124, 127},
          Case{"\xE2\x82\xAC", 125, 125}, Case{"\xF0\x9F\x8C\xBD", 123, 127},
          Case{"\xF0\x9F\x8C\xBD", 124, 124}, Case{"\xF0\x9F\x8C\xBD", 126, 126}}) {
        std::string const text = std::string(inFront, 'x') + character + "tail";
        EXPECT_EQ(CutProfileText(text), text.substr(0, left)) << inFront;
    }
}

TEST(ProfileTexts, OfAnotherEncodingAreCutAtTheLengthItself) {
    EXPECT_EQ(CutProfileText(std::string(200, '\xA4')).size(), 127U);
    EXPECT_EQ(CutProfileText(std::string(126, 'x') + std::string(9, '\xA4')).size(), 127U);
    EXPECT_EQ(CutProfileText(std::string(200, '\xE4')).size(), 127U);
}

TEST(ProfileTexts, AreQuotedOnlyWhereTheyWouldNotComeBack) {
    for (char const* const text : {"", "Daily Bar Chart", "C:\\Quotes\\", "####0.00", "'", "\"", "a=b;c#d"}) {
        EXPECT_EQ(QuoteProfileText(text), text);
    }
    EXPECT_EQ(QuoteProfileText(" x"), "\" x\"");
    EXPECT_EQ(QuoteProfileText("\"US$ \"0.00\" each\""), "\"\"US$ \"0.00\" each\"\"");
    for (char const* const text : {" ", "\t", " x", "x ", "'x'", "\"x\"", "\"\"x\"\"", "''", " ' "}) {
        EXPECT_EQ(BareProfileText(QuoteProfileText(text)), text);
    }
}

TEST(ProfileTexts, OfOneLineAreAccepted) {
    EXPECT_NO_THROW(RequireProfileValue(""));
    EXPECT_NO_THROW(RequireProfileValue("a\tb\x1A\xFF"));
    EXPECT_THROW(RequireProfileValue("a\r"), text::RunTimeError);
    EXPECT_THROW(RequireProfileValue("\nb"), text::RunTimeError);
    EXPECT_THROW(RequireProfileValue(std::string_view("a\0b", 3)), text::RunTimeError);
}

} // namespace
} // namespace quorvex::platform
