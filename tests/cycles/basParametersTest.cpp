// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basParameters.h"

#include "CycleTexts.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quorvex::cycles {
namespace {

using platform::Answer;
using platform::Icon;
using testing::ElementsAre;
using tests::IsOnlyMessage;

constexpr auto NothingToSave = "Insufficient cycle parameters data to save";

class ParameterCommands : public testing::Test {
protected:
    ParameterCommands() { ClearGrid(grid); }

    bool Read(std::string const& text) {
        files.Contents["C:\\Quorvex\\test.dat"] = text;
        return ReadParameterFile("C:\\Quorvex\\test.dat", *set, files, dialogs);
    }

    void Open() { OpenParameters(*set, grid, "C:\\Quorvex", files, dialogs); }

    void SaveAs() { SaveParametersAs(*set, grid, dialogs); }

    bool New() { return NewParameters(*set, composite, grid, dialogs); }

    void TypeWeights() {
        grid.SetText(Parameter::Weight, 1, "50");
        grid.SetText(Parameter::Weight, 2, "25");
    }

    [[nodiscard]] nlohmann::json ZeroTexts() const {
        TextGrid zeros;
        ClearGrid(zeros);
        return TextsOf(zeros);
    }

    TextGrid grid;
    std::unique_ptr<CycleParameterSet> set = std::make_unique<CycleParameterSet>();
    CycleCurve composite;
    platform::fake::MemoryFiles files;
    platform::fake::ScriptedDialogs dialogs;
};

TEST_F(ParameterCommands, ReadsTheReferenceFiles) {
    for (auto const& expected : tests::GoldenVector("parameter_files")) {
        std::string const file = expected.at("file");
        SCOPED_TRACE(file);
        SetRows(*set, expected.at("previous"));
        dialogs.Messages.clear();
        bool const whole = Read(tests::GoldenFile("params/" + file));
        EXPECT_EQ(RowsOf(*set), expected.at("rows"));
        EXPECT_EQ(HasActiveCycle(*set), expected.at("has_active_cycle"));
        EXPECT_EQ(whole, expected.at("error").is_null());
        if (!expected.at("error").is_null()) {
            EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, expected.at("error"), "Quorvex", Icon::None));
        }
        WriteGrid(*set, grid);
        EXPECT_EQ(TextsOf(grid), expected.at("grid"));
    }
}

TEST_F(ParameterCommands, AFileOfThreeLinesLeavesTheCyclesBehindIt) {
    *set = *SetOf({{1, 1, 1, 1}, {2, 2, 2, 2}, {3, 3, 3, 3}, {4, 40, 4, 4}, {5, 50, 5, 5}});
    files.Contents["C:\\Quorvex\\three.dat"] = "25, 40, 10, 0\r\n20, 30, 0, 1\r\n10, 20, 5, 0\r\n";
    dialogs.Choices = {"three.dat"};
    Open();
    EXPECT_EQ(set->Cycles[1].Period, 40);
    EXPECT_EQ(set->Cycles[4].Period, 40);
    EXPECT_EQ(grid.Text(Parameter::Weight, 3), "10");
    EXPECT_EQ(grid.Text(Parameter::Period, 4), "40");
    EXPECT_EQ(grid.Text(Parameter::Period, 5), "50");
    EXPECT_EQ(grid.Text(Parameter::Period, 6), "0");
}

TEST_F(ParameterCommands, AFileOfElevenLinesLoadsTenAndReportsTheSubscript) {
    std::string text;
    for (int line = 1; line <= 11; ++line) {
        text += std::to_string(line) + ", 20, 0, 0\r\n";
    }
    EXPECT_FALSE(Read(text));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Subscript out of range", "Quorvex", Icon::None));
    EXPECT_EQ(set->Cycles[10].Weight, 10);
    EXPECT_EQ(set->Cycles[1].Weight, 1);
}

TEST_F(ParameterCommands, AMissingFileIsReported) {
    EXPECT_FALSE(ReadParameterFile("C:\\Quorvex\\gone.dat", *set, files, dialogs));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "File not found", "Quorvex", Icon::None));
}

TEST_F(ParameterCommands, ADeviceThatFailsKeepsTheRowsReadBefore) {
    // Larger than one block of the reader, so that a first part arrives.
    files.BreakReading = {70'000, text::Fault::PermissionDenied};
    EXPECT_FALSE(Read("1, 2, 3, 4\r\n" + std::string(100'000, ' ') + "5, 6, 7, 8\r\n"));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_EQ(set->Cycles[1].Decay, 4);
    EXPECT_EQ(set->Cycles[2].Weight, 0);
}

TEST_F(ParameterCommands, OpenOffersTheParameterFilesOfTheProgramFolder) {
    files.Contents = {{"C:\\Quorvex\\a.dat", "25, 40, 10, 0\r\n"},
                      {"C:\\Quorvex\\b.DAT", "30, 41, 10, 0\r\n"},
                      {"C:\\Quorvex\\c.txt", ""}};
    dialogs.Choices = {"b.DAT"};
    Open();
    ASSERT_EQ(dialogs.OfferedFiles.size(), 1U);
    EXPECT_THAT(dialogs.OfferedFiles.front(), ElementsAre("a.dat", "b.DAT"));
    EXPECT_EQ(set->ParameterFileName, "C:\\Quorvex\\b.DAT");
    EXPECT_EQ(grid.Text(Parameter::Weight, 1), "30");
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "41");
}

TEST_F(ParameterCommands, OpenInAPosixFolderNamesThePathInItsStyle) {
    files.Contents = {{"/opt/quorvex/a.dat", "25, 40, 10, 0\r\n"}};
    dialogs.Choices = {"a.dat"};
    OpenParameters(*set, grid, "/opt/quorvex", files, dialogs);
    EXPECT_EQ(set->ParameterFileName, "/opt/quorvex/a.dat");
    EXPECT_EQ(set->Cycles[1].Weight, 25);
}

TEST_F(ParameterCommands, OpenWithoutParameterFilesSaysSo) {
    *set = *SetOf({{50, 20, 3, 1}});
    Open();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Cannot find Cycle Parameter text files.", "Quorvex",
                              Icon::Exclamation));
    EXPECT_EQ(set->Cycles[1].Weight, 50);
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
}

TEST_F(ParameterCommands, OpenWithoutParameterFilesShowsTheOpenSetAgain) {
    *set = *SetOf({{50, 20, 3, 1}});
    set->ParameterFileName = "C:\\Quorvex\\mine.dat";
    grid.SetText(Parameter::Period, 1, "99");
    Open();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Cannot find Cycle Parameter text files.", "Quorvex",
                              Icon::Exclamation));
    EXPECT_EQ(set->ParameterFileName, "C:\\Quorvex\\mine.dat");
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "20");
}

TEST_F(ParameterCommands, CancellingOpenForgetsTheNameAndLeavesTheGrid) {
    files.Contents = {{"C:\\Quorvex\\a.dat", "25, 40, 10, 0\r\n"}};
    set->ParameterFileName = "C:\\Quorvex\\old.dat";
    dialogs.Choices = {std::nullopt};
    Open();
    EXPECT_EQ(set->ParameterFileName, "");
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(ParameterCommands, SaveWithoutWeightsWarns) {
    SaveParameters(grid, dialogs);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, NothingToSave, "Quorvex", Icon::Exclamation));
}

TEST_F(ParameterCommands, SaveWithWeightsWritesNothingAndSaysNothing) {
    TypeWeights();
    SaveParameters(grid, dialogs);
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_TRUE(files.Contents.empty());
}

TEST_F(ParameterCommands, SaveAsWithoutWeightsWarnsAndAsksNothing) {
    SaveAs();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, NothingToSave, "Quorvex", Icon::Exclamation));
    EXPECT_TRUE(dialogs.Questions.empty());
}

TEST_F(ParameterCommands, SaveAsReportsTheCurrentNameAndWritesNothing) {
    TypeWeights();
    set->ParameterFileName = "C:\\Quorvex\\current.dat";
    dialogs.Texts = {"Typed.dAt"};
    SaveAs();
    ASSERT_EQ(dialogs.Questions.size(), 1U);
    EXPECT_EQ(dialogs.Questions[0].Prompt, "Save current cycle parameters file:");
    EXPECT_EQ(dialogs.Questions[0].Title, "Save As...");
    EXPECT_EQ(dialogs.Questions[0].Default, "C:\\Quorvex\\current.dat");
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages,
                              "Cycle parameters file C:\\Quorvex\\current.dat successfully saved",
                              "Save As...", Icon::None));
    EXPECT_EQ(set->ParameterFileName, "C:\\Quorvex\\current.dat");
    EXPECT_TRUE(files.Contents.empty());
}

TEST_F(ParameterCommands, SaveAsAsksUntilANameIsGood) {
    TypeWeights();
    dialogs.Texts = {"a.da", "cycles.txt", "CYCLES.DAT"};
    SaveAs();
    ASSERT_EQ(dialogs.Messages.size(), 3U);
    for (int refused = 0; refused < 2; ++refused) {
        EXPECT_TRUE(IsOnlyMessage({&dialogs.Messages[static_cast<std::size_t>(refused)], 1},
                                  "Invalid cycle parameters file (*.dat)", "Quorvex", Icon::Exclamation));
    }
    EXPECT_EQ(dialogs.Messages[2].Title, "Save As...");
    EXPECT_EQ(dialogs.Questions.size(), 3U);
}

TEST_F(ParameterCommands, AnEmptyNameEndsSaveAsSilently) {
    TypeWeights();
    dialogs.Texts = {"a.da", ""};
    SaveAs();
    EXPECT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Questions.size(), 2U);
}

TEST_F(ParameterCommands, AcceptsAndRefusesTheReferenceNames) {
    auto const names = tests::GoldenVector("save_names");
    for (auto const& entry : names.at("parameter")) {
        EXPECT_EQ(IsParameterFileName(entry.at(0).get<std::string>()), entry.at(1)) << entry;
    }
}

TEST_F(ParameterCommands, NewWithoutWeightsClearsWithoutAsking) {
    *set = *SetOf({{50, 20, 3, 1}});
    set->Cycles[2].Values.Fill(3);
    set->ParameterFileName = "C:\\Quorvex\\a.dat";
    composite.Fill(8);
    grid.SetText(Parameter::Period, 1, "20");
    EXPECT_TRUE(New());
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
    EXPECT_FALSE(HasActiveCycle(*set));
    EXPECT_EQ(set->Cycles[2].Values[525], 0);
    EXPECT_EQ(composite[1], 0);
    EXPECT_EQ(set->ParameterFileName, "");
}

TEST_F(ParameterCommands, NewWithWeightsAsksFirst) {
    TypeWeights();
    dialogs.Answers = {Answer::No};
    EXPECT_TRUE(New());
    ASSERT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Messages[0].Text, "Save current cycle parameters data?");
    EXPECT_EQ(dialogs.Messages[0].Title, "Save Parameter File");
    EXPECT_EQ(dialogs.Messages[0].Shown, Icon::None);
    EXPECT_EQ(dialogs.Messages[0].Offered, platform::Buttons::YesNoCancel);
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
}

TEST_F(ParameterCommands, CancellingNewClearsNothing) {
    TypeWeights();
    *set = *SetOf({{50, 20, 3, 1}});
    set->ParameterFileName = "C:\\Quorvex\\a.dat";
    dialogs.Answers = {Answer::Cancel};
    EXPECT_FALSE(New());
    EXPECT_EQ(grid.Text(Parameter::Weight, 1), "50");
    EXPECT_EQ(set->Cycles[1].Weight, 50);
    EXPECT_EQ(set->ParameterFileName, "C:\\Quorvex\\a.dat");
}

TEST_F(ParameterCommands, YesToNewRunsSaveForANamedSet) {
    TypeWeights();
    set->ParameterFileName = "C:\\Quorvex\\a.dat";
    dialogs.Answers = {Answer::Yes};
    EXPECT_TRUE(New());
    EXPECT_TRUE(dialogs.Questions.empty());
    EXPECT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
}

TEST_F(ParameterCommands, YesToNewRunsSaveAsForANamelessSet) {
    TypeWeights();
    dialogs.Answers = {Answer::Yes};
    dialogs.Texts = {"mine.dat"};
    EXPECT_TRUE(New());
    EXPECT_EQ(dialogs.Questions.size(), 1U);
    ASSERT_EQ(dialogs.Messages.size(), 2U);
    EXPECT_EQ(dialogs.Messages[1].Text, "Cycle parameters file  successfully saved");
    EXPECT_EQ(TextsOf(grid), ZeroTexts());
}

TEST_F(ParameterCommands, TheTextOfAParameterFileHoldsAllTenCycles) {
    ClearGrid(grid);
    grid.SetText(Parameter::Weight, 1, "60");
    grid.SetText(Parameter::Period, 1, "40.5 days");
    grid.SetText(Parameter::Shift, 10, "-7");
    EXPECT_EQ(ParameterFileText(grid), "60, 40.5, 0, 0\r\n"
                                       "0, 0, 0, 0\r\n0, 0, 0, 0\r\n0, 0, 0, 0\r\n0, 0, 0, 0\r\n"
                                       "0, 0, 0, 0\r\n0, 0, 0, 0\r\n0, 0, 0, 0\r\n0, 0, 0, 0\r\n"
                                       "0, 0, -7, 0\r\n");
}

TEST_F(ParameterCommands, ReadingTheTextOfAParameterFileLeavesNothingOfAnEarlierModel) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        set->Cycles[cycle].Weight = 10;
        set->Cycles[cycle].Period = 20;
    }
    grid.SetText(Parameter::Weight, 2, "100");
    grid.SetText(Parameter::Period, 2, "33");
    EXPECT_TRUE(Read(ParameterFileText(grid)));
    WriteGrid(*set, grid);
    auto texts = ZeroTexts();
    texts[1] = {"100", "33", "0", "0"};
    EXPECT_EQ(TextsOf(grid), texts);
}

class WritingParameters : public ParameterCommands {
protected:
    void Write() { WriteParameterFile(*set, grid, "C:\\Quorvex", files, dialogs); }
};

TEST_F(WritingParameters, TheFileHoldsTheGridAndIsReadAgain) {
    TypeWeights();
    grid.SetText(Parameter::Period, 1, "40");
    dialogs.Paths = {"C:\\Quorvex\\mine.dat"};
    Write();
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_EQ(files.Contents.at("C:\\Quorvex\\mine.dat"), ParameterFileText(grid));
    dialogs.Choices = {"mine.dat"};
    ClearGrid(grid);
    Open();
    EXPECT_THAT(dialogs.OfferedFiles, ElementsAre(ElementsAre("mine.dat")));
    EXPECT_EQ(grid.Text(Parameter::Weight, 2), "25");
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "40");
}

TEST_F(WritingParameters, TheDialogBeginsInTheProgramFolderWithTheNameOfTheOpenFile) {
    TypeWeights();
    dialogs.Paths = {"", ""};
    Write();
    set->ParameterFileName = "D:\\Models\\Wheat.dat";
    Write();
    ASSERT_EQ(dialogs.SaveQuestions.size(), 2U);
    platform::SaveQuestion const& question = dialogs.SaveQuestions[0];
    EXPECT_EQ(question.Title, "Write Parameter File");
    EXPECT_EQ(question.Folder, "C:\\Quorvex");
    EXPECT_EQ(question.Name, "Cycles.dat");
    EXPECT_EQ(question.Filter, "Cycle Parameters (*.dat)|*.dat");
    EXPECT_EQ(question.Ending, "dat");
    EXPECT_EQ(dialogs.SaveQuestions[1].Name, "Wheat.dat");
    EXPECT_EQ(dialogs.SaveQuestions[1].Folder, "C:\\Quorvex");
    EXPECT_TRUE(files.Contents.empty()) << "both were cancelled";
    EXPECT_EQ(set->ParameterFileName, "D:\\Models\\Wheat.dat");
}

TEST_F(WritingParameters, NeedsWeights) {
    grid.SetText(Parameter::Period, 1, "40");
    Write();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, NothingToSave, "Quorvex", Icon::Exclamation));
    EXPECT_TRUE(dialogs.SaveQuestions.empty());
}

TEST_F(WritingParameters, EveryNameGetsTheEndingThatTheChooserLists) {
    TypeWeights();
    for (auto const& [typed, written] : {std::pair("C:\\Quorvex\\mine", "C:\\Quorvex\\mine.dat"),
                                         {"C:\\a\\mine.txt", "C:\\a\\mine.txt.dat"},
                                         {"C:\\a\\MINE.DAT", "C:\\a\\MINE.DAT"},
                                         {"C:\\a\\.dat", "C:\\a\\.dat"}}) {
        files.Contents.clear();
        dialogs.Paths = {typed};
        Write();
        EXPECT_EQ(files.Contents.size(), 1U);
        EXPECT_TRUE(files.Contents.contains(written)) << typed;
    }
}

TEST_F(WritingParameters, AnExistingFileIsReplacedOnlyOnRequestAndKept) {
    TypeWeights();
    files.Contents["D:\\Models\\mine.dat"] = "precious";
    dialogs.Paths = {"D:\\Models\\mine", ""};
    dialogs.Answers = {Answer::No};
    Write();
    EXPECT_EQ(files.Contents.size(), 1U);
    EXPECT_EQ(files.Contents.at("D:\\Models\\mine.dat"), "precious");
    ASSERT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Messages[0].Text, "mine.dat already exists.\nDo you want to replace it?");
    EXPECT_EQ(dialogs.Messages[0].Title, "Write Parameter File");
    ASSERT_EQ(dialogs.SaveQuestions.size(), 2U) << "after No the dialog comes back";
    EXPECT_EQ(dialogs.SaveQuestions[1].Folder, "D:\\Models\\");
    EXPECT_EQ(dialogs.SaveQuestions[1].Name, "mine.dat");
    dialogs.Paths = {"D:\\Models\\mine.dat"};
    dialogs.Answers = {Answer::Yes};
    Write();
    EXPECT_EQ(files.Contents.at("D:\\Models\\mine.dat"), ParameterFileText(grid));
    EXPECT_EQ(files.Contents.at("D:\\Models\\mine.dat~"), "precious");
}

TEST_F(WritingParameters, AFaultIsRaisedAndLeavesTheOldFile) {
    TypeWeights();
    files.Contents["C:\\Quorvex\\mine.dat"] = "precious";
    files.BreakWriting = text::Fault::DiskFull;
    dialogs.Paths = {"C:\\Quorvex\\mine.dat"};
    dialogs.Answers = {Answer::Yes};
    EXPECT_THROW(Write(), text::RunTimeError);
    EXPECT_EQ(files.Contents.at("C:\\Quorvex\\mine.dat"), "precious");
}

} // namespace
} // namespace quorvex::cycles
