// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/UnsavedEdits.h"

#include "EditorTest.h"
#include "editor/History.h"
#include "editor/basEdit.h"
#include "editor/basUnsaved.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/ForwardingFiles.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <filesystem>

namespace quorvex::tests {
namespace {

constexpr char const* KeptPath = "C:\\Quotes\\test.txt.edits";
constexpr char const* SecondPath = "C:\\Quotes\\test.txt.edits.2";
constexpr char const* QuotePath = "C:\\Quotes\\test.txt";

// Other files of which one cannot be read.
class UnreadableFile final : public platform::fake::ForwardingFiles {
public:
    UnreadableFile(platform::Files& behind, std::string path)
        : ForwardingFiles(behind),
          path_(std::move(path)) {}

    [[nodiscard]] std::unique_ptr<text::ByteSource> OpenForInput(std::string const& path) const override {
        if (path == path_) {
            throw text::RunTimeError(text::Fault::PermissionDenied);
        }
        return ForwardingFiles::OpenForInput(path);
    }

private:
    std::string path_;
};

class UnsavedEditsTest : public EditorTest {
protected:
    UnsavedEditsTest() { files.Contents[QuotePath] = QuoteLines(30); }

    // As the window does when it comes up.
    void OpenEdited() {
        OpenDays(30);
        history.Start(*edited);
        toldFirst = unsaved.Open(*edited, *series, settings);
    }

    void Record(editor::ChangeKind kind = editor::ChangeKind::Edit) {
        unsaved.Keep(history.Record(*edited), kind, *edited);
    }

    void TypeKept(std::int16_t row, std::int16_t column, std::string const& text) {
        Type(row, column, text);
        Record();
    }

    // Another editor, after this one was closed or killed.
    void OpenAgain() { OpenEdited(); }

    [[nodiscard]] std::string Restore() {
        std::string const told = unsaved.Restore(*edited, dialogs);
        Record();
        return told;
    }

    void Undo() { unsaved.Keep(history.Undo(*edited), editor::ChangeKind::Edit, *edited); }

    void Redo() { unsaved.Keep(history.Redo(*edited), editor::ChangeKind::Edit, *edited); }

    // Two editors, of which the second did not restore what the first had left.
    void LeaveTwoSets() {
        OpenEdited();
        TypeKept(2, 5, "555");
        OpenAgain();
        TypeKept(3, 5, "556");
        OpenAgain();
    }

    [[nodiscard]] bool IsKept() const { return files.Contents.contains(KeptPath); }

    editor::History history;
    editor::UnsavedEdits unsaved{files};
    std::string toldFirst; // when the editor came up
};

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

TEST_F(UnsavedEditsTest, ThatCannotBeKeptAreKeptByTheNextThatCan) {
    OpenEdited();
    files.BreakWriting = text::Fault::DiskFull;
    Type(2, 5, "555");
    EXPECT_THROW(Record(), text::RunTimeError);
    files.BreakWriting.reset();
    TypeKept(3, 5, "556");
    files.BreakWriting = text::Fault::DiskFull;
    Type(4, 5, "557");
    EXPECT_THROW(Record(), text::RunTimeError);
    files.BreakWriting.reset();
    files.Contents.at(KeptPath) += "edit\nrows 4 1"; // as far as the disk took it
    TypeKept(5, 5, "558");
    OpenAgain();
    EXPECT_EQ(Restore(), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_EQ(sheet.Text(4, 5), "557");
    EXPECT_EQ(sheet.Text(5, 5), "558");
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

TEST_F(UnsavedEditsTest, ThatCannotBeReadAreToldAndStay) {
    OpenEdited();
    TypeKept(2, 5, "555");
    files.BreakReading = {0, text::Fault::PermissionDenied};
    OpenAgain();
    EXPECT_EQ(toldFirst, "Edits that were kept before cannot be read or deleted: Permission denied.");
    EXPECT_FALSE(unsaved.HasKept());
    files.BreakReading.reset();
    std::string const first = files.Contents.at(KeptPath);
    TypeKept(3, 5, "556");
    EXPECT_EQ(files.Contents.at(KeptPath), first);
    EXPECT_TRUE(files.Contents.contains(SecondPath));
}

// As when a virus scanner holds the file of the second of three editors.
TEST_F(UnsavedEditsTest, ThatCannotBeReadDoNotHideOthers) {
    LeaveTwoSets();
    TypeKept(4, 5, "557");
    UnreadableFile unreadable(files, SecondPath);
    editor::UnsavedEdits next(unreadable);
    OpenDays(30);
    EXPECT_EQ(next.Open(*edited, *series, settings),
              "Edits of these quotes were not saved. Restore Unsaved Edits in the context menu of the cells "
              "brings them back. Others cannot be read or deleted: Permission denied.");
    EXPECT_EQ(next.Restore(*edited, dialogs), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(4, 5), "557");
    ASSERT_TRUE(next.HasKept());
    EXPECT_EQ(next.Restore(*edited, dialogs), "Unsaved edits restored");
    EXPECT_EQ(sheet.Text(2, 5), "555");
    EXPECT_FALSE(next.HasKept());
}

TEST_F(UnsavedEditsTest, OfTheNameThatASaveGaveAreToldWhenTheyCannotBeRead) {
    OpenEdited();
    TypeKept(2, 5, "555");
    UnreadableFile unreadable(files, "D:\\Other\\new.txt.edits");
    files.Contents["D:\\Other\\new.txt.edits"] = "of another editor";
    editor::UnsavedEdits next(unreadable);
    OpenDays(30);
    static_cast<void>(next.Open(*edited, *series, settings));
    series->QuoteFileName = "D:\\Other\\new.txt";
    EXPECT_EQ(next.Saved(*edited, *series, settings),
              "Edits that were kept before cannot be read or deleted: Permission denied");
}

// Of a file that is not there the system may tell that it must not be looked at.
TEST_F(UnsavedEditsTest, ThatAreNotThereAreNotMissed) {
    platform::fake::FailingFiles failing(files);
    editor::UnsavedEdits next(failing);
    OpenDays(30);
    static_cast<void>(next.Open(*edited, *series, settings));
    failing.FailAt({.Number = 5, .Raised = text::Fault::PermissionDenied});
    EXPECT_EQ(next.Saved(*edited, *series, settings), "");
    EXPECT_EQ(failing.Failed(), platform::fake::FileCall::Length);
}

TEST_F(UnsavedEditsTest, ThatCannotBeDroppedAreToldAndTheNextOnesAreKept) {
    OpenEdited();
    TypeKept(2, 5, "555");
    files.BreakRemoving = text::Fault::PermissionDenied;
    EXPECT_EQ(unsaved.Saved(*edited, *series, settings),
              "Edits that were kept before cannot be read or deleted: Permission denied");
    files.BreakRemoving.reset();
    TypeKept(3, 5, "556");
    OpenAgain();
    dialogs.Answers = {platform::Answer::Yes}; // the rows that were saved are not those of the series
    static_cast<void>(Restore());
    EXPECT_EQ(sheet.Text(3, 5), "556");
}

} // namespace
} // namespace quorvex::tests
