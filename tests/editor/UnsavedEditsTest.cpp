// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "UnsavedEditsTest.h"

#include "editor/basEdit.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace quorvex::tests {
namespace {

TEST_F(UnsavedEditsTest, OfAnEditorThatWasLeftAreThereAgain) {
    OpenEdited();
    auto const before = GridTexts();
    EXPECT_FALSE(unsaved.HasKept());
    EXPECT_FALSE(IsKept());
    TypeKept(2, 5, "555");
    TypeKept(30, 7, "tab\there\nand \\ end");
    spread.GotoCell(10, 1);
    editor::InsertRow(*edited, settings, dialogs);
    Record();
    TypeKept(10, 1, "end 12");
    auto const texts = GridTexts();
    OpenAgain();
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_FALSE(unsaved.HasFileChanged());
    EXPECT_EQ(GridTexts(), before); // nothing comes back by itself
    EXPECT_EQ(Restore(), "Unsaved edits restored");
    EXPECT_EQ(GridTexts(), texts);
    EXPECT_EQ(edited->EditCount, 31);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(UnsavedEditsTest, TheCopyOfTheRowsComesBackToo) {
    OpenEdited();
    editor::AppendRow(*edited, settings, dialogs);
    Record();
    OpenAgain();
    static_cast<void>(Restore());
    editor::RebuildGrid(*edited, settings);
    EXPECT_EQ(RowTexts(31), Texts({"", "0.00", "0.00", "0.00", "0.00", "0", "0"}));
}

TEST_F(UnsavedEditsTest, RestoringIsOneStepThatCanBeUndone) {
    OpenEdited();
    auto const before = GridTexts();
    TypeKept(2, 5, "555");
    TypeKept(3, 5, "556");
    OpenAgain();
    static_cast<void>(Restore());
    Undo();
    EXPECT_EQ(GridTexts(), before);
    OpenAgain();
    EXPECT_TRUE(unsaved.HasKept()); // which undoing has not lost
    EXPECT_EQ(Restore(), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(3, 5), "556");
}

// One cell restored makes the same file as one cell typed.
TEST_F(UnsavedEditsTest, OfOneCellStayWhenTheirRestorationIsUndone) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const kept = files.Contents.at(KeptPath);
    OpenAgain();
    static_cast<void>(Restore());
    Undo();
    ASSERT_TRUE(IsKept());
    EXPECT_EQ(files.Contents.at(KeptPath), kept);
    TypeKept(3, 5, "556");
    EXPECT_EQ(files.Contents.at(KeptPath), kept);
    EXPECT_TRUE(files.Contents.contains(SecondPath));
}

TEST_F(UnsavedEditsTest, WhatFollowsARestorationIsKeptWithIt) {
    OpenEdited();
    TypeKept(2, 5, "555");
    OpenAgain();
    static_cast<void>(Restore());
    TypeKept(3, 5, "556");
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.Text(3, 5), "556");
    EXPECT_FALSE(files.Contents.contains(SecondPath)); // all of it went over
}

TEST_F(UnsavedEditsTest, AreNotOfferedOnceTheyAreRestoredUntilThatIsUndone) {
    OpenEdited();
    TypeKept(2, 5, "555");
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_FALSE(unsaved.HasKept());
    TypeKept(3, 5, "556");
    EXPECT_FALSE(unsaved.HasKept());
    Undo();
    Undo();
    EXPECT_TRUE(unsaved.HasKept());
    Redo();
    EXPECT_FALSE(unsaved.HasKept());
}

TEST_F(UnsavedEditsTest, AreAskedForBeforeTheyReplaceWhatWasDoneSince) {
    OpenEdited();
    TypeKept(2, 5, "555");
    OpenAgain();
    TypeKept(3, 5, "556");
    dialogs.Answers = {platform::Answer::No, platform::Answer::Yes};
    EXPECT_EQ(Restore(), "");
    EXPECT_EQ(sheet.Text(3, 5), "556");
    EXPECT_EQ(Restore(), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(3, 5), "103.00");
    EXPECT_EQ(dialogs.Messages.at(0).Text, "What was done in the editor now is not in these edits.\n"
                                           "All rows become what they were in the editor then.\n"
                                           "Restore them?");
}

TEST_F(UnsavedEditsTest, AreForgottenWhenTheUserAgrees) {
    LeaveTwoSets();
    dialogs.Answers = {platform::Answer::No, platform::Answer::Yes, platform::Answer::Yes};
    EXPECT_FALSE(unsaved.Forget(dialogs));
    EXPECT_TRUE(files.Contents.contains(SecondPath));
    EXPECT_TRUE(unsaved.Forget(dialogs));
    EXPECT_FALSE(files.Contents.contains(SecondPath));
    EXPECT_TRUE(IsKept());
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(unsaved.Forget(dialogs));
    EXPECT_FALSE(IsKept());
    EXPECT_FALSE(unsaved.HasKept());
    EXPECT_EQ(dialogs.Messages.at(0).Text,
              "Forget these edits? They were not saved and cannot be brought back then.");
    EXPECT_EQ(dialogs.Messages.at(0).Title, "Forget Unsaved Edits");
    EXPECT_EQ(dialogs.Messages.at(0).Shown, platform::Icon::Question);
    EXPECT_EQ(dialogs.Messages.at(0).Offered, platform::Buttons::YesNo);
}

TEST_F(UnsavedEditsTest, ThatWereAllUndoneAreNone) {
    OpenEdited();
    TypeKept(2, 5, "555");
    Undo();
    EXPECT_FALSE(IsKept());
    Redo();
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedEditsTest, ThatTheLoadedFileHasAreNone) {
    OpenEdited();
    TypeKept(2, 5, "555");
    Open(SeriesOf(QuoteLines(30), settings.CurrencyFormat));
    Type(2, 5, "555"); // as if it were loaded so
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    EXPECT_FALSE(unsaved.HasKept());
    EXPECT_FALSE(IsKept());
}

// What a refill dropped at last is what somebody wants back; what came after it knew of it.
TEST_F(UnsavedEditsTest, ThatARefillDroppedAtTheEndComeBack) {
    OpenEdited();
    TypeKept(2, 5, "555");
    editor::RebuildGrid(*edited, settings);
    Record(editor::ChangeKind::Refill);
    OpenAgain();
    ASSERT_TRUE(unsaved.HasKept());
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
    editor::RebuildGrid(*edited, settings);
    Record(editor::ChangeKind::Refill);
    TypeKept(3, 5, "556");
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "102.00");
    EXPECT_EQ(sheet.Text(3, 5), "556");
}

TEST_F(UnsavedEditsTest, AppendOnlyWhatChanged) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    TypeKept(3, 5, "556");
    std::string const& both = files.Contents.at(KeptPath);
    EXPECT_TRUE(both.starts_with(first)); // not written anew
    EXPECT_GT(both.size(), first.size());
    EXPECT_LT(both.size(), first.size() + 200);
}

TEST_F(UnsavedEditsTest, DoNotGrowWithoutEnd) {
    constexpr std::size_t Mebibyte = 1'048'576;
    OpenEdited();
    std::string const large(20'000, 'x');
    for (int turn = 0; turn < 300; ++turn) {
        TypeKept(1, 2, large + std::to_string(turn));
    }
    EXPECT_LT(files.Contents.at(KeptPath).size(), 2 * Mebibyte);
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(1, 2), large + "299");
}

} // namespace
} // namespace quorvex::tests
