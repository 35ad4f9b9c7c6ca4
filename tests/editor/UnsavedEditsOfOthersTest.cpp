// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Of several editors, programs, contracts and states of a file.

#include "UnsavedEditsTest.h"
#include "editor/basEdit.h"
#include "editor/basUnsaved.h"
#include "platform/disk/DiskFiles.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace quorvex::tests {
namespace {

TEST_F(UnsavedEditsTest, OfAnEarlierEditorStayWhenAnotherOneGoesOn) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    OpenAgain();
    TypeKept(3, 5, "556");
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_TRUE(files.Contents.contains(SecondPath));
    EXPECT_TRUE(unsaved.HasKept());
    Undo();
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_FALSE(files.Contents.contains(SecondPath));
}

TEST_F(UnsavedEditsTest, OfSeveralEditorsAreOfferedTheNewestFirst) {
    LeaveTwoSets();
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_FALSE(unsaved.AreKeptOlder());
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "102.00");
    EXPECT_EQ(sheet.Text(3, 5), "556");
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(unsaved.AreKeptOlder());
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.Text(3, 5), "103.00");
    EXPECT_FALSE(unsaved.HasKept());
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(UnsavedEditsTest, ThatOlderOnesReplacedWaitAgain) {
    LeaveTwoSets();
    std::string const second = files.Contents.at(SecondPath);
    static_cast<void>(Restore());
    TypeKept(4, 5, "557");
    dialogs.Answers = {platform::Answer::Yes};
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(4, 5), "104.00");
    EXPECT_EQ(files.Contents.at(SecondPath), second);
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_FALSE(IsKept());
    OpenAgain();
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(3, 5), "556");
    EXPECT_FALSE(unsaved.HasKept());
}

// Restored over what was typed: both are kept, one in the file of the editor and the other one where it was.
TEST_F(UnsavedEditsTest, ThatWereRestoredOverOthersAreBackWhenThatIsUndone) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    OpenAgain();
    TypeKept(3, 5, "556");
    dialogs.Answers = {platform::Answer::Yes};
    static_cast<void>(Restore());
    EXPECT_FALSE(IsKept()); // it is in the file of this editor
    EXPECT_EQ(editor::ReadKeptEdits(files.Contents.at(SecondPath))->After.at(1).Texts.at(4), "555");
    Undo();
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_EQ(editor::ReadKeptEdits(files.Contents.at(SecondPath))->After.at(2).Texts.at(4), "556");
    Redo();
    EXPECT_FALSE(IsKept());
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings), "");
    EXPECT_FALSE(files.Contents.contains(SecondPath));
}

// The older ones then have the place of those that were restored.
TEST_F(UnsavedEditsTest, ThatAreForgottenAfterTheirRestorationWasUndoneAreNotTakenForOthers) {
    LeaveTwoSets();
    static_cast<void>(Restore());
    Undo();
    dialogs.Answers = {platform::Answer::Yes};
    ASSERT_TRUE(unsaved.Forget(dialogs));
    TypeKept(2, 5, "555"); // as in the older ones
    EXPECT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(IsKept());
}

TEST_F(UnsavedEditsTest, ThatAnotherEditorHasGoneOnWithAreNotForgotten) {
    OpenEdited();
    TypeKept(2, 5, "555");
    editor::UnsavedEdits other{files};
    Open(SeriesOf(QuoteLines(30), settings.CurrencyFormat, "test.txt"));
    static_cast<void>(other.Open(*edited, *series, settings));
    files.Contents.at(KeptPath) += "edit\n";
    dialogs.Answers = {platform::Answer::Yes};
    EXPECT_TRUE(other.Forget(dialogs));
    EXPECT_TRUE(IsKept());
}

// As where names that differ in case are one file: here they are one by a link.
TEST_F(UnsavedEditsTest, OfTheFileUnderAnotherSpellingAreOffered) {
    TemporaryFolder const folder;
    folder.Write("test.txt", QuoteLines(30));
    std::filesystem::create_hard_link(folder.File("test.txt"), folder.File("link.txt"));
    settings.DataPath = folder.Text();
    platform::disk::DiskFiles disk;
    OpenDays(30);
    series->QuoteFileName = "link.txt";
    history.Start(*edited);
    editor::UnsavedEdits one{disk};
    static_cast<void>(one.Open(*edited, *series, settings));
    Type(2, 5, "555");
    one.Keep(history.Record(*edited), editor::ChangeKind::Edit, *edited);
    std::filesystem::rename(folder.File("link.txt.edits"), folder.File("test.txt.edits"));
    OpenDays(30);
    editor::UnsavedEdits other{disk};
    static_cast<void>(other.Open(*edited, *series, settings));
    EXPECT_TRUE(other.HasKept());
    EXPECT_FALSE(other.HasFileChanged());
    std::filesystem::remove(folder.File("link.txt"));
    static_cast<void>(other.Open(*edited, *series, settings));
    EXPECT_FALSE(other.HasKept()); // of another contract
}

TEST_F(UnsavedEditsTest, OfAnotherContractAreNotOffered) {
    OpenEdited();
    TypeKept(2, 5, "555");
    std::string const text = files.Contents.at(KeptPath);
    series->QuoteFileName = "corn.txt";
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    EXPECT_FALSE(unsaved.HasKept());
    files.Contents["C:\\Quotes\\corn.txt.edits"] = text; // under a name that somebody gave it
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    EXPECT_FALSE(unsaved.HasKept());
    TypeKept(3, 5, "556");
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\corn.txt.edits"), text);
    EXPECT_TRUE(files.Contents.contains("C:\\Quotes\\corn.txt.edits.2"));
}

TEST_F(UnsavedEditsTest, WithoutAnOpenFileHaveANameOfTheirOwn) {
    Open(std::make_unique<quotes::QuoteSeries>());
    history.Start(*edited);
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    editor::AppendRow(*edited, settings, dialogs);
    Record();
    EXPECT_TRUE(files.Contents.contains("C:\\Quotes\\untitled.edits"));
    Open(std::make_unique<quotes::QuoteSeries>());
    history.Start(*edited);
    static_cast<void>(unsaved.Open(*edited, *series, settings));
    ASSERT_TRUE(unsaved.HasKept());
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.RowCount(), 1);
}

TEST_F(UnsavedEditsTest, OfAFileThatHasChangedSinceAreAskedFor) {
    OpenEdited();
    TypeKept(2, 5, "555");
    files.Contents[QuotePath] += "02/01/01, 1, 1, 1, 1, 0, 0\r\n";
    OpenAgain();
    ASSERT_TRUE(unsaved.HasKept());
    EXPECT_TRUE(unsaved.HasFileChanged());
    dialogs.Answers = {platform::Answer::No, platform::Answer::Yes};
    EXPECT_EQ(Restore(), "");
    EXPECT_EQ(sheet.Text(2, 5), "102.00");
    EXPECT_EQ(Restore(), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(2, 5), "555");
    ASSERT_EQ(dialogs.Messages.size(), 2U);
    EXPECT_EQ(dialogs.Messages[0].Text, "The quote file has changed since these edits were made.\n"
                                        "All rows become what they were in the editor then.\n"
                                        "Restore them?");
    EXPECT_EQ(dialogs.Messages[0].Title, "Restore Unsaved Edits");
    EXPECT_EQ(dialogs.Messages[0].Shown, platform::Icon::Question);
    EXPECT_EQ(dialogs.Messages[0].Offered, platform::Buttons::YesNo);
}

TEST_F(UnsavedEditsTest, OfTwoProgramsAreNotMixed) {
    OpenEdited();
    editor::UnsavedEdits other{files};
    static_cast<void>(other.Open(*edited, *series, settings));
    editor::History otherHistory;
    otherHistory.Start(*edited);
    TypeKept(2, 5, "555");
    std::string const first = files.Contents.at(KeptPath);
    Type(2, 5, "102.00"); // which the other program does not see
    Type(3, 5, "556");    // as long as the first one
    other.Keep(otherHistory.Record(*edited), editor::ChangeKind::Edit, *edited);
    std::string const second = files.Contents.at(SecondPath);
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    Type(2, 5, "557");
    Record();
    EXPECT_EQ(files.Contents.at(SecondPath), second);
    EXPECT_NE(files.Contents.at(KeptPath), first);
    EXPECT_TRUE(editor::ReadKeptEdits(files.Contents.at(KeptPath))->IsWhole);
}

TEST_F(UnsavedEditsTest, OfAnotherProgramStayWhenTheGridIsFilledAgain) {
    OpenEdited();
    editor::UnsavedEdits other{files};
    static_cast<void>(other.Open(*edited, *series, settings));
    editor::History otherHistory;
    otherHistory.Start(*edited);
    TypeKept(2, 5, "555");
    Type(3, 5, "556");
    other.Keep(otherHistory.Record(*edited), editor::ChangeKind::Edit, *edited);
    std::string const second = files.Contents.at(SecondPath);
    editor::RebuildGrid(*edited, settings); // which drops what was typed
    Record(editor::ChangeKind::Refill);
    TypeKept(4, 5, "557");
    EXPECT_EQ(files.Contents.at(SecondPath), second);
    EXPECT_EQ(editor::ReadKeptEdits(files.Contents.at(KeptPath))->After.at(3).Texts.at(4), "557");
}

} // namespace
} // namespace quorvex::tests
