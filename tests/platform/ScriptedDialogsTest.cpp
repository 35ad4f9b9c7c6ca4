// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/ScriptedDialogs.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quorvex::platform::fake {
namespace {

// Nobody may show it.
class HiddenPrintDialog final : public PrintDialog {
public:
    [[nodiscard]] PrintRange Offered() const override { return PrintRange::Selection; }

    [[nodiscard]] std::optional<PrintRange> Show() override { throw std::logic_error("shown"); }
};

TEST(ScriptedDialogs, AnswerInOrder) {
    ScriptedDialogs dialogs;
    dialogs.Answers = {Answer::No, Answer::Cancel};
    dialogs.Texts = {"first", "second"};
    dialogs.Choices = {"a.txt", std::nullopt};
    Message const question{"Save?", "Title", Icon::None, Buttons::YesNoCancel};
    EXPECT_EQ(dialogs.Show(question), Answer::No);
    EXPECT_EQ(dialogs.Show({"Done", "Title"}), Answer::Ok);
    EXPECT_EQ(dialogs.Show(question), Answer::Cancel);
    EXPECT_EQ(dialogs.Ask({"Name", "Title", ""}), "first");
    EXPECT_EQ(dialogs.Ask({"Name", "Title", ""}), "second");
    std::vector<std::string> const names = {"a.txt", "b.txt"};
    EXPECT_EQ(dialogs.Choose(FileKind::Quotes, names), "a.txt");
    EXPECT_EQ(dialogs.Choose(FileKind::Parameters, names), std::nullopt);
    dialogs.Paths = {"C:\\a.txt", ""};
    EXPECT_EQ(dialogs.AskForFile({"C:\\", "*.txt", "Text (*.txt)|*.txt"}), "C:\\a.txt");
    EXPECT_EQ(dialogs.AskForFile({"C:\\", "*.csv", "All|*.*"}), "");
    ASSERT_EQ(dialogs.FileQuestions.size(), 2U);
    EXPECT_EQ(dialogs.FileQuestions[1].Name, "*.csv");
    dialogs.Paths = {"C:\\mine.dat"};
    EXPECT_EQ(dialogs.AskWhereToSave(
                  {.Title = "Save", .Folder = "C:\\", .Name = "", .Filter = "", .Ending = "dat"}),
              "C:\\mine.dat");
    ASSERT_EQ(dialogs.SaveQuestions.size(), 1U);
    EXPECT_EQ(dialogs.SaveQuestions[0].Ending, "dat");
    HiddenPrintDialog dialog;
    dialogs.Ranges = {PrintRange::All, std::nullopt};
    EXPECT_EQ(dialogs.AskWhatToPrint(dialog), PrintRange::All);
    EXPECT_EQ(dialogs.AskWhatToPrint(dialog), std::nullopt);
    EXPECT_EQ(dialogs.OfferedRanges, (std::vector{PrintRange::Selection, PrintRange::Selection}));
    EXPECT_EQ(dialogs.Messages.size(), 3U);
    EXPECT_EQ(dialogs.OfferedFiles.size(), 2U);
    EXPECT_EQ(dialogs.Choosers, (std::vector{FileKind::Quotes, FileKind::Parameters}));
}

TEST(ScriptedDialogs, RefuseAQuestionThatTheTestDidNotForesee) {
    ScriptedDialogs dialogs;
    EXPECT_THROW(dialogs.Show({"Save?", "Title", Icon::None, Buttons::YesNoCancel}), std::logic_error);
    EXPECT_THROW(static_cast<void>(dialogs.Ask({"Name", "Title", ""})), std::logic_error);
    EXPECT_THROW(static_cast<void>(dialogs.Choose(FileKind::Quotes, {})), std::logic_error);
    EXPECT_THROW(static_cast<void>(dialogs.AskForFile({})), std::logic_error);
    EXPECT_THROW(static_cast<void>(dialogs.AskWhereToSave({})), std::logic_error);
    HiddenPrintDialog dialog;
    EXPECT_THROW(static_cast<void>(dialogs.AskWhatToPrint(dialog)), std::logic_error);
}

} // namespace
} // namespace quorvex::platform::fake
