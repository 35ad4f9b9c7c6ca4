// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basFolders.h"

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

} // namespace

} // namespace quorvex::text
