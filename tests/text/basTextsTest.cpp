// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basTexts.h"

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::text {

namespace {

TEST(UpperCase, RaisesTheLettersOfAsciiOnly) {
    EXPECT_EQ(UpperCase("abcxyz"), "ABCXYZ");
    EXPECT_EQ(UpperCase("Corn-02.txt `{|}~@["), "CORN-02.TXT `{|}~@[");
    EXPECT_EQ(UpperCase("\xC3\xA9\xE4\xFF"), "\xC3\xA9\xE4\xFF");
    EXPECT_EQ(UpperCase(""), "");
}

TEST(UpperCase, RaisesASingleLetter) {
    EXPECT_EQ(UpperCase('a'), 'A');
    EXPECT_EQ(UpperCase('z'), 'Z');
    EXPECT_EQ(UpperCase('{'), '{');
    EXPECT_EQ(UpperCase('`'), '`');
    EXPECT_EQ(UpperCase('\xE4'), '\xE4');
}

TEST(Trim, DropsTheBlanksAtBothEnds) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("a"), "a");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim(""), "");
}

TEST(Trim, LeavesOtherWhiteSpaceAlone) {
    EXPECT_EQ(Trim("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(Trim(" \t a"), "\t a");
}

TEST(IsNameWithExtension, AcceptsTheReferenceNamesOfParameterFiles) {
    auto const names = tests::GoldenVector("save_names")["parameter"];
    ASSERT_EQ(names.size(), 9U);
    for (auto const& entry : names) {
        SCOPED_TRACE(entry.dump());
        EXPECT_EQ(IsNameWithExtension(entry[0].get<std::string>(), ".DAT"), entry[1].get<bool>());
    }
}

TEST(IsNameWithExtension, AcceptsTheReferenceNamesOfQuoteFilesOnceTrimmed) {
    auto const names = tests::GoldenVector("save_names")["quote"];
    ASSERT_EQ(names.size(), 10U);
    for (auto const& entry : names) {
        SCOPED_TRACE(entry.dump());
        auto const name = entry[0].get<std::string>();
        EXPECT_EQ(IsNameWithExtension(Trim(name), ".TXT"), entry[1].get<bool>());
    }
}

TEST(IsNameWithExtension, NeedsOneCharacterInFrontOfTheDot) {
    EXPECT_TRUE(IsNameWithExtension("a.dat", ".DAT"));
    EXPECT_TRUE(IsNameWithExtension("a.DaT", ".DAT"));
    EXPECT_FALSE(IsNameWithExtension(".dat", ".DAT"));
    EXPECT_FALSE(IsNameWithExtension("adat", ".DAT"));
    EXPECT_FALSE(IsNameWithExtension("ab.dat ", ".DAT"));
    EXPECT_FALSE(IsNameWithExtension("cycles.txt", ".DAT"));
}

TEST(TrimBlanksAndTabs, LeavesAPartOfTheText) {
    EXPECT_EQ(TrimBlanksAndTabs(" \t a\tb \t"), "a\tb");
    EXPECT_EQ(TrimBlanksAndTabs("\r\nx\v"), "\r\nx\v");
    std::string_view const blank = " \t ";
    std::string_view const nothing = TrimBlanksAndTabs(blank);
    EXPECT_TRUE(nothing.empty());
    EXPECT_TRUE(nothing.data() >= blank.data() && nothing.data() <= blank.data() + blank.size());
}

} // namespace

} // namespace quorvex::text
