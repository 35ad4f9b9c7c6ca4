// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basWords.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

TEST(Words, FoldCaseAccentsAndSigns) {
    EXPECT_EQ(imports::FoldWords("<OPENINT>"), "openint");
    EXPECT_EQ(imports::FoldWords("  Prev. Day  Open_Interest "), "prev day open interest");
    EXPECT_EQ(imports::FoldWords("Schlu\xC3\x9Fkurs (EUR)"), "schlusskurs");
    EXPECT_EQ(imports::FoldWords("Er\xC3\xB6"
                                 "ffnung"),
              "eroffnung");
    EXPECT_EQ(imports::FoldWords("CL\xC3\x94TURE [x]"), "cloture");
    EXPECT_EQ(imports::FoldWords("Zamkni\xC4\x99"
                                 "cie"),
              "zamkniecie");
    EXPECT_EQ(imports::FoldWords("\xE6\x97\xA5 x \xF0\x9F\x98\x80"), "x");
    EXPECT_EQ(imports::FoldWords("%Chg"), "chg");
    EXPECT_EQ(imports::FoldWords("\xC3"), "") << "half a character";
}

TEST(Words, TellDigits) {
    EXPECT_TRUE(imports::AreDigits("0123456789"));
    EXPECT_TRUE(imports::AreDigits(""));
    EXPECT_FALSE(imports::AreDigits("12a"));
    EXPECT_FALSE(imports::AreDigits("-1"));
}

TEST(Words, AreShownOnOneLineAndWholeCharacters) {
    EXPECT_EQ(imports::Shown("a\nb\x1B[1m", 40), "a b [1m");
    EXPECT_EQ(imports::Shown("abcdef", 6), "abcdef");
    EXPECT_EQ(imports::Shown("abcdef", 5), "abcde...");
    EXPECT_EQ(imports::Shown("ab\xC3\xA9", 3), "ab...");
}

} // namespace
} // namespace quorvex::tests
