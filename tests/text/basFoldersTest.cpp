// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFolders.h"

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quorvex::text {

namespace {

TEST(EndWithSeparator, PutsABackslashBehindAWindowsFolder) {
    EXPECT_EQ(EndWithSeparator("C:\\Quotes"), "C:\\Quotes\\");
    EXPECT_EQ(EndWithSeparator("C:"), "C:\\");
    EXPECT_EQ(EndWithSeparator("Quotes"), "Quotes\\");
    EXPECT_EQ(EndWithSeparator("\\\\server\\share"), "\\\\server\\share\\");
}

TEST(EndWithSeparator, PutsASlashBehindAPathWithSlashesAndNoBackslash) {
    EXPECT_EQ(EndWithSeparator("/home/ann"), "/home/ann/");
    EXPECT_EQ(EndWithSeparator("data/quotes"), "data/quotes/");
    EXPECT_EQ(EndWithSeparator("C:/Quotes"), "C:/Quotes/");
    EXPECT_EQ(EndWithSeparator("/home/a\\b"), "/home/a\\b\\");
}

TEST(EndWithSeparator, LeavesATextThatHasOneAlone) {
    EXPECT_EQ(EndWithSeparator("C:\\Quotes\\"), "C:\\Quotes\\");
    EXPECT_EQ(EndWithSeparator("/home/ann/"), "/home/ann/");
    EXPECT_EQ(EndWithSeparator("/"), "/");
    EXPECT_EQ(EndWithSeparator("C:\\Quotes/"), "C:\\Quotes/");
}

TEST(MatchesPattern, IsTheSameTextInEitherCaseWithoutWildcards) {
    EXPECT_TRUE(MatchesPattern("cycles.dat", "cycles.dat"));
    EXPECT_TRUE(MatchesPattern("Cycles.DAT", "cYCLES.dat"));
    EXPECT_FALSE(MatchesPattern("cycles.da", "cycles.dat"));
    EXPECT_FALSE(MatchesPattern("cycles.data", "cycles.dat"));
    EXPECT_FALSE(MatchesPattern("xcycles.dat", "cycles.dat"));
}

TEST(MatchesPattern, DoesNotTakeOtherCharactersThirtyTwoApartForLetters) {
    EXPECT_FALSE(MatchesPattern("[", "{"));
    EXPECT_FALSE(MatchesPattern("@", "`"));
    EXPECT_FALSE(MatchesPattern("\xC4", "\xE4"));
}

TEST(MatchesPattern, LetsAStarStandForAnyCharacters) {
    EXPECT_TRUE(MatchesPattern("cycles.dat", "*.dat"));
    EXPECT_TRUE(MatchesPattern("CYCLES.DAT", "*.dat"));
    EXPECT_TRUE(MatchesPattern(".dat", "*.dat"));
    EXPECT_TRUE(MatchesPattern("cycles.dat", "c*"));
    EXPECT_TRUE(MatchesPattern("cycles.dat", "cycles*.dat"));
    EXPECT_TRUE(MatchesPattern("anything", "*"));
    EXPECT_TRUE(MatchesPattern("", "*"));
    EXPECT_FALSE(MatchesPattern("cycles.dat.txt", "*.dat"));
    EXPECT_FALSE(MatchesPattern("cyclesdat", "*.dat"));
}

TEST(MatchesPattern, LetsSeveralStarsShareTheName) {
    EXPECT_TRUE(MatchesPattern("a.dat.dat", "*.dat"));
    EXPECT_TRUE(MatchesPattern("abcabcabd", "*abc*abd"));
    EXPECT_TRUE(MatchesPattern("mississippi", "m*iss*ip*i"));
    EXPECT_TRUE(MatchesPattern("ab", "**a**b**"));
    EXPECT_FALSE(MatchesPattern("mississippi", "m*iss*iss*iss*"));
    EXPECT_FALSE(MatchesPattern("abcabc", "*abc*abd"));
}

TEST(MatchesPattern, LetsAQuestionMarkStandForOneCharacter) {
    EXPECT_TRUE(MatchesPattern("q1.txt", "q?.txt"));
    EXPECT_TRUE(MatchesPattern("q1.txt", "??????"));
    EXPECT_TRUE(MatchesPattern("q?.txt", "q?.txt"));
    EXPECT_TRUE(MatchesPattern("corn02.txt", "*0?.txt"));
    EXPECT_FALSE(MatchesPattern("q.txt", "q?.txt"));
    EXPECT_FALSE(MatchesPattern("q12.txt", "q?.txt"));
    EXPECT_FALSE(MatchesPattern("", "?"));
}

TEST(MatchesPattern, FitsTheEmptyPatternToTheEmptyNameOnly) {
    EXPECT_TRUE(MatchesPattern("", ""));
    EXPECT_FALSE(MatchesPattern("a", ""));
    EXPECT_FALSE(MatchesPattern("", "a"));
}

TEST(MatchesPattern, LooksNoFurtherThanItsTexts) {
    std::string_view const pattern = "abc*";
    EXPECT_FALSE(MatchesPattern("abcd", pattern.substr(0, 3)));
    EXPECT_TRUE(MatchesPattern("abc", pattern.substr(0, 3)));
    EXPECT_TRUE(MatchesPattern(std::string_view("abcd").substr(0, 3), "abc"));
}

TEST(MatchesPattern, StaysFastWithManyStars) {
    // A walk that tried every share of the name among the stars would not end.
    std::string const name(2'000, 'a');
    std::string pattern;
    for (int count = 0; count < 200; ++count) {
        pattern += "*a";
    }
    EXPECT_FALSE(MatchesPattern(name, pattern + "*b"));
    EXPECT_TRUE(MatchesPattern(name, pattern + "*"));
}

TEST(UpperCase, RaisesTheLettersOfAsciiOnly) {
    EXPECT_EQ(UpperCase("abcxyz"), "ABCXYZ");
    EXPECT_EQ(UpperCase("Corn-02.txt `{|}~@["), "CORN-02.TXT `{|}~@[");
    EXPECT_EQ(UpperCase("\xC3\xA9\xE4\xFF"), "\xC3\xA9\xE4\xFF");
    EXPECT_EQ(UpperCase(""), "");
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

} // namespace

} // namespace quorvex::text
