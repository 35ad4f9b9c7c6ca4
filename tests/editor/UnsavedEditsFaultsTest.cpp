// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Of files that fail.

#include "UnsavedEditsTest.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/ForwardingFiles.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace quorvex::tests {
namespace {

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
