// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basSaving.h"

#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace quorvex::platform {
namespace {

SaveQuestion const Question{
    .Title = "Write It", .Folder = "C:\\Data", .Name = "a.txt", .Filter = "Texts|*.txt", .Ending = "txt"};

void ExpectReplacing(fake::ScriptedDialogs const& dialogs, std::string const& text) {
    ASSERT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Messages[0].Text, text);
    EXPECT_EQ(dialogs.Messages[0].Title, "Write It");
    EXPECT_EQ(dialogs.Messages[0].Shown, Icon::Exclamation);
    EXPECT_EQ(dialogs.Messages[0].Offered, Buttons::YesNo);
}

TEST(AskForFileToWrite, ANewFileIsNotAskedAbout) {
    fake::MemoryFiles const files;
    fake::ScriptedDialogs dialogs;
    dialogs.Paths = {"C:\\Data\\new.svg"};
    EXPECT_EQ(AskForFileToWrite(dialogs, files, Question), "C:\\Data\\new.svg");
    EXPECT_EQ(dialogs.SaveQuestions.at(0).Name, "a.txt");
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST(AskForFileToWrite, CancellingGivesNoPath) {
    fake::MemoryFiles const files;
    fake::ScriptedDialogs dialogs;
    dialogs.Paths = {""};
    EXPECT_EQ(AskForFileToWrite(dialogs, files, Question, ".txt"), "");
}

TEST(AskForFileToWrite, AFileThatIsThereMayBeReplaced) {
    fake::MemoryFiles files;
    files.Contents["C:\\Data\\old.txt"] = "x";
    fake::ScriptedDialogs dialogs;
    dialogs.Paths = {"C:\\Data\\old.txt"};
    dialogs.Answers = {Answer::Yes};
    EXPECT_EQ(AskForFileToWrite(dialogs, files, Question), "C:\\Data\\old.txt");
    ExpectReplacing(dialogs, "old.txt already exists.\nDo you want to replace it?");
}

TEST(AskForFileToWrite, OtherwiseItAsksAgainFromThere) {
    fake::MemoryFiles files;
    files.Contents["C:\\Other\\old.txt"] = "x";
    fake::ScriptedDialogs dialogs;
    dialogs.Paths = {"C:\\Other\\old.txt", ""};
    dialogs.Answers = {Answer::No};
    EXPECT_EQ(AskForFileToWrite(dialogs, files, Question), "");
    ASSERT_EQ(dialogs.SaveQuestions.size(), 2U);
    EXPECT_EQ(dialogs.SaveQuestions[1].Folder, "C:\\Other\\");
    EXPECT_EQ(dialogs.SaveQuestions[1].Name, "old.txt");
}

TEST(AskForFileToWrite, AnEndingIsPutBehindEveryNameWithoutIt) {
    fake::MemoryFiles files;
    files.Contents["C:\\Data\\a.doc.txt"] = "x";
    fake::ScriptedDialogs dialogs;
    dialogs.Paths = {"C:\\Data\\a.doc", "C:\\Data\\b.TXT"};
    dialogs.Answers = {Answer::No};
    EXPECT_EQ(AskForFileToWrite(dialogs, files, Question, ".txt"), "C:\\Data\\b.TXT");
    ExpectReplacing(dialogs, "a.doc.txt already exists.\nDo you want to replace it?");
}

} // namespace
} // namespace quorvex::platform
