// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "richtext/RtfTokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::richtext {
namespace {

// Words as \name=number, symbols as \c, bytes as 'number, texts in quotation marks, binaries as bin"...".
std::string NotationOf(Token const& token) {
    std::string text(token.Text);
    switch (token.Kind) {
    case TokenKind::Word:
        return "\\" + text + (token.Parameter ? "=" + std::to_string(*token.Parameter) : "");
    case TokenKind::Symbol:
        return "\\" + text;
    case TokenKind::Byte:
        return "'" + std::to_string(token.Parameter.value_or(-1));
    case TokenKind::Text:
        return "\"" + text + "\"";
    case TokenKind::Binary:
        return "bin\"" + text + "\"";
    default:
        return text;
    }
}

std::vector<std::string> TokensOf(std::string_view bytes) {
    RtfTokenizer tokenizer(bytes);
    std::vector<std::string> tokens;
    for (Token token = tokenizer.Take(); token.Kind != TokenKind::End; token = tokenizer.Take()) {
        tokens.push_back(NotationOf(token));
    }
    return tokens;
}

using Tokens = std::vector<std::string>;

TEST(RtfTokenizer, TakesGroupsWordsAndTextApart) {
    EXPECT_EQ(TokensOf(R"({\b bold\b0 plain})"), (Tokens{"{", "\\b", "\"bold\"", "\\b=0", "\"plain\"", "}"}));
}

TEST(RtfTokenizer, TakesOneBlankBehindAWordAsItsEnd) {
    EXPECT_EQ(TokensOf(R"(\tab  two)"), (Tokens{"\\tab", "\" two\""}));
    EXPECT_EQ(TokensOf(R"(\fs24  two)"), (Tokens{"\\fs=24", "\" two\""}));
    EXPECT_EQ(TokensOf(R"(\tab\fs2)"), (Tokens{"\\tab", "\\fs=2"}));
}

TEST(RtfTokenizer, TakesNegativeNumbersAndCutsLargeOnes) {
    EXPECT_EQ(TokensOf(R"(\li-360\x99999999999999999999\x-99999999999999999999)"),
              (Tokens{"\\li=-360", "\\x=2147483647", "\\x=-2147483647"}));
}

TEST(RtfTokenizer, LeavesAHyphenWithoutDigitsInTheText) {
    EXPECT_EQ(TokensOf(R"(\b-a)"), (Tokens{"\\b", "\"-a\""}));
}

TEST(RtfTokenizer, PassesOverLineEnds) {
    EXPECT_EQ(TokensOf("\r\na\nb\r\n"), (Tokens{"\"a\"", "\"b\""}));
    EXPECT_EQ(TokensOf("\\b\r\nx"), (Tokens{"\\b", "\"x\""}));
}

TEST(RtfTokenizer, TakesEscapedCharactersAsText) {
    EXPECT_EQ(TokensOf(R"(\{\}\\)"), (Tokens{"\"{\"", "\"}\"", "\"\\\""}));
    EXPECT_EQ(TokensOf(R"(\~\*\-)"), (Tokens{"\\~", "\\*", "\\-"}));
}

TEST(RtfTokenizer, TakesBytesInHexadecimal) {
    EXPECT_EQ(TokensOf(R"(\'e4\'E4a)"), (Tokens{"'228", "'228", "\"a\""}));
    EXPECT_EQ(TokensOf(R"(\'g1)"), (Tokens{"\\'", "\"g1\""}));
    EXPECT_EQ(TokensOf(R"(\'1)"), (Tokens{"\\'", "\"1\""}));
}

TEST(RtfTokenizer, TakesBinaryBytesUnread) {
    EXPECT_EQ(TokensOf(R"(\bin4 {}\zabc)"), (Tokens{"bin\"{}\\z\"", "\"abc\""}));
    EXPECT_EQ(TokensOf(R"(\bin0 a)"), (Tokens{"bin\"\"", "\"a\""}));
    EXPECT_EQ(TokensOf(R"(\bin-5 a)"), (Tokens{"bin\"\"", "\"a\""}));
    EXPECT_EQ(TokensOf(R"(\bin99 ab)"), (Tokens{"bin\"ab\""}));
}

TEST(RtfTokenizer, EndsWithABackslashAtTheEnd) {
    EXPECT_EQ(TokensOf("a\\"), (Tokens{"\"a\"", "\\"}));
}

TEST(RtfTokenizer, SkipsToTheEndOfTheGroup) {
    RtfTokenizer tokenizer(R"(a{b\}\bin3 }}}c{d}}}e)");
    tokenizer.SkipGroup();
    EXPECT_EQ(tokenizer.Take().Kind, TokenKind::GroupEnd);
    EXPECT_EQ(tokenizer.Take().Text, "e");
}

TEST(RtfTokenizer, SkipsAGroupThatDoesNotEndToTheEndOfTheFile) {
    RtfTokenizer tokenizer(R"(a{b}{\)");
    tokenizer.SkipGroup();
    EXPECT_EQ(tokenizer.Take().Kind, TokenKind::End);
}

} // namespace
} // namespace quorvex::richtext
