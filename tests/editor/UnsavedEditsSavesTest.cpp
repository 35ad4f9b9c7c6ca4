// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Around saves.

#include "UnsavedEditsTest.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::tests {
namespace {

TEST_F(UnsavedEditsTest, ASaveDropsThem) {
    OpenEdited();
    TypeKept(2, 5, "555");
    EXPECT_TRUE(IsKept());
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_FALSE(IsKept());
    OpenAgain();
    EXPECT_FALSE(unsaved.HasKept());
}

TEST_F(UnsavedEditsTest, ASaveKeepsThoseThatWereNotRestored) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    OpenAgain();
    TypeKept(3, 5, "556");
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_TRUE(unsaved.HasKept());
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_FALSE(files.Contents.contains(SecondPath));
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
}

// A bare name leads into the current folder, the quotes were read from the data folder.
TEST_F(UnsavedEditsTest, ASaveIntoAnotherFolderKeepsThem) {
    OpenEdited();
    TypeKept(2, 5, "555");
    files.CurrentFolder = "D:\\Work\\";
    files.Contents["test.txt"] = QuoteLines(30); // as the save would
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_TRUE(IsKept());
    TypeKept(3, 5, "556");
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.Text(3, 5), "556");
}

TEST_F(UnsavedEditsTest, BehindASaveAreKeptOnTopOfIt) {
    OpenEdited();
    TypeKept(2, 5, "555");
    files.Contents[QuotePath] += "\r\n"; // as the save would
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    TypeKept(3, 5, "556");
    OpenAgain();
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(unsaved.HasFileChanged()); // this one opened without what was saved
    dialogs.Answers = {platform::Answer::Yes};
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.Text(3, 5), "556");
}

// A save changes the file and not the series: an editor that is opened again shows the rows from before it.
TEST_F(UnsavedEditsTest, OfRowsOlderThanTheFileAreAskedFor) {
    OpenEdited();
    TypeKept(2, 5, "555");
    auto const saved = GridTexts();
    files.Contents[QuotePath] += "\r\n"; // as the save would
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    OpenAgain();
    TypeKept(3, 5, "556");
    OpenEdited(); // after a restart, with the rows that were saved
    Type(2, 5, "555");
    static_cast<void>(history.Record(*edited));
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    ASSERT_EQ(GridTexts(), saved);
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(unsaved.HasFileChanged());
    dialogs.Answers = {platform::Answer::No};
    EXPECT_EQ(Restore(), "");
    EXPECT_EQ(GridTexts(), saved);
}

TEST_F(UnsavedEditsTest, ThatWereNotRestoredStayWhenAnotherNameIsSaved) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    OpenAgain();
    series->QuoteFileName = "D:\\Other\\new.txt";
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_FALSE(files.Contents.contains(SecondPath));
}

TEST_F(UnsavedEditsTest, FollowTheNameThatASaveGave) {
    OpenEdited();
    TypeKept(2, 5, "555");
    series->QuoteFileName = "D:\\Other\\new.txt";
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_FALSE(IsKept());
    TypeKept(3, 5, "556");
    EXPECT_TRUE(files.Contents.contains("D:\\Other\\new.txt.edits"));
}

} // namespace
} // namespace quorvex::tests
