// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basQuoteFiles.h"

#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::imports {
namespace {

bool IsQuoteText(std::string const& text) {
    text::TextSource source(text);
    return IsQuoteFile(source);
}

TEST(IsQuoteFile, KnowsWhatTheProgramWrites) {
    EXPECT_TRUE(IsQuoteText(tests::QuoteLines(25)));
    EXPECT_TRUE(IsQuoteText(tests::QuoteLines(500)));
}

TEST(IsQuoteFile, RefusesDaysThatFileOpenWouldNotRead) {
    EXPECT_FALSE(IsQuoteText(""));
    EXPECT_FALSE(IsQuoteText(tests::QuoteLines(24)));
    EXPECT_FALSE(IsQuoteText(tests::QuoteLines(501)));
}

TEST(IsQuoteFile, RefusesWhateverElseStandsInIt) {
    std::string const good = tests::QuoteLines(30);
    EXPECT_FALSE(IsQuoteText("Date,Open,High,Low,Close,Volume,OI\r\n" + good));
    EXPECT_FALSE(IsQuoteText(good + "the end\r\n"));
    EXPECT_FALSE(IsQuoteText(good + "12/31/24,10,12,9,11,0\r\n"));
    EXPECT_FALSE(IsQuoteText(good + "12/31/24,10,12,9,11,0,0,0\r\n"));
    EXPECT_TRUE(IsQuoteText(good + "12/31/24,10,12,9,11,0,0\r\n"));
}

TEST(IsQuoteFile, RefusesNumbersThatWouldBeReadInPart) {
    std::string const good = tests::QuoteLines(30);
    for (char const* line :
         {"12/31/24,523'4,530,520,525,0,0", "12/31/24,10,12,9,11,1.5K,0", "12/31/24,10,12,9,,0,0",
          "12/31/24,10,12,9,11,-5,0", "12/31/24,10,12,0,11,5,0"}) {
        EXPECT_FALSE(IsQuoteText(good + line)) << line;
    }
}

TEST(IsQuoteFile, RefusesPricesOutsideOfHighAndLow) {
    std::string const good = tests::QuoteLines(30);
    for (char const* line :
         {"12/31/24,10,12,9,13,0,0", "12/31/24,8,12,9,11,0,0", "12/31/24,10,9,12,11,0,0"}) {
        EXPECT_FALSE(IsQuoteText(good + line)) << line;
    }
}

// Days in another order are columns or dates of another kind.
TEST(IsQuoteFile, RefusesDaysThatDoNotRise) {
    std::string const good = tests::QuoteLines(30);
    EXPECT_FALSE(IsQuoteText(good + "01/02/01,10,12,9,11,0,0"));
    EXPECT_FALSE(IsQuoteText("12/31/24,10,12,9,11,0,0\r\n" + good));
    EXPECT_FALSE(IsQuoteText(good + "31/12/24,10,12,9,11,0,0"));
}

} // namespace
} // namespace quorvex::imports
