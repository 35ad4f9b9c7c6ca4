// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basQuotes.h"

#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quorvex::quotes {
namespace {

using platform::Icon;
using testing::ElementsAre;
using tests::IsOnlyMessage;
using tests::QuoteLines;

class QuoteCommands : public testing::Test {
protected:
    void Open() { OpenQuoteFile(*series, settings, files, dialogs); }

    void SaveAs(std::string const& answer) {
        dialogs.Texts = {answer};
        SaveQuoteFileAs(*series, settings, files, dialogs);
    }

    std::unique_ptr<QuoteSeries> series = std::make_unique<QuoteSeries>();
    settings::Settings settings = settings::DefaultSettings("C:\\Quotes");
    platform::fake::MemoryFiles files;
    platform::fake::ScriptedDialogs dialogs;
};

TEST_F(QuoteCommands, OpenOffersTheTextFilesOfTheDataFolder) {
    files.Contents = {{"C:\\Quotes\\corn.TXT", QuoteLines(25)},   {"C:\\Quotes\\wheat.txt", QuoteLines(26)},
                      {"C:\\Quotes\\wheat.txt~", QuoteLines(27)}, {"C:\\Quotes\\notes.doc", ""},
                      {"C:\\Quotes\\old\\rye.txt", ""},           {"C:\\Other\\oats.txt", ""}};
    dialogs.Choices = {"wheat.txt"};
    Open();
    ASSERT_EQ(dialogs.OfferedFiles.size(), 1U);
    EXPECT_THAT(dialogs.OfferedFiles.front(), ElementsAre("corn.TXT", "wheat.txt"));
    EXPECT_EQ(series->QuoteFileName, "wheat.txt");
    EXPECT_EQ(series->QuoteCount, 26);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteCommands, OpenWithoutTextFilesSaysSoAndKeepsTheOpenFile) {
    series->QuoteFileName = "open.txt";
    Open();
    EXPECT_TRUE(
        IsOnlyMessage(dialogs.Messages, "Cannot find daily quote text files.", "Quorvex", Icon::Exclamation));
    EXPECT_TRUE(dialogs.OfferedFiles.empty());
    EXPECT_EQ(series->QuoteFileName, "open.txt");
}

TEST_F(QuoteCommands, CancellingTheChooserClosesTheFile) {
    files.Contents = {{"C:\\Quotes\\corn.txt", QuoteLines(25)}};
    dialogs.Choices = {"corn.txt", std::nullopt};
    Open();
    ASSERT_TRUE(series->HasQuotes());
    Open();
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_EQ(series->QuoteCount, 0);
    EXPECT_EQ(series->WorkingCount, 0);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteCommands, ChoosingARefusedFileLeavesNoFileOpen) {
    files.Contents = {{"C:\\Quotes\\corn.txt", QuoteLines(24)}};
    dialogs.Choices = {"corn.txt"};
    Open();
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages,
                              "A minimum of 25 daily quotes is required to perform cyclical analysis",
                              "Quorvex Requirements", Icon::Information));
}

TEST_F(QuoteCommands, AFileThatCannotBeReadLeavesTheOpenOneAsItWas) {
    files.Contents = {{"C:\\Quotes\\corn.txt", QuoteLines(30)},
                      {"C:\\Quotes\\bad.txt", "06/03/02, 7, 7, 7, 7, 7, 7\r\n" + QuoteLines(25)}};
    dialogs.Choices = {"corn.txt", "bad.txt"};
    Open();
    ASSERT_TRUE(series->HasQuotes());
    series->WorkingCount = 28;
    files.BreakReading = {500, text::Fault::PermissionDenied};
    Open();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_EQ(series->QuoteFileName, "corn.txt");
    EXPECT_EQ(series->QuoteCount, 30);
    EXPECT_EQ(series->WorkingCount, 28);
    EXPECT_EQ(series->FirstQuoteDate, "01/01/01");
    for (std::int16_t day = 1; day <= 30; ++day) {
        EXPECT_EQ(series->Master[day].Close, 100 + day);
        EXPECT_EQ(series->Working[day].Close, 100 + day);
    }
}

TEST_F(QuoteCommands, AFileThatCannotBeReadOpensNone) {
    files.Contents = {{"C:\\Quotes\\bad.txt", QuoteLines(25)}};
    dialogs.Choices = {"bad.txt"};
    files.BreakReading = {500, text::Fault::PermissionDenied};
    Open();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_EQ(series->WorkingCount, 0);
}

TEST_F(QuoteCommands, CloseForgetsNameAndCounts) {
    series = tests::SeriesOf(QuoteLines(30));
    CloseQuoteFile(*series);
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_EQ(series->QuoteCount, 0);
    EXPECT_EQ(series->WorkingCount, 0);
}

TEST_F(QuoteCommands, SaveAsAsksWithTheOpenFilesName) {
    series = tests::SeriesOf(QuoteLines(30), "####0.00", "corn.txt");
    SaveAs("copy.txt");
    ASSERT_EQ(dialogs.Questions.size(), 1U);
    EXPECT_EQ(dialogs.Questions[0].Prompt, "Save corn.txt As...");
    EXPECT_EQ(dialogs.Questions[0].Title, "Save As...");
    EXPECT_EQ(dialogs.Questions[0].Default, "corn.txt");
    EXPECT_EQ(series->QuoteFileName, "copy.txt");
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\copy.txt"), QuoteLines(30));
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteCommands, SaveAsWritesOverAnExistingFileWithoutAsking) {
    series = tests::SeriesOf(QuoteLines(30));
    files.Contents["C:\\Quotes\\copy.txt"] = "old";
    SaveAs("copy.txt");
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\copy.txt"), QuoteLines(30));
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\copy.txt~"), "old");
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteCommands, SaveAsThatCannotKeepTheOldFileShowsWhyAndLeavesIt) {
    series = tests::SeriesOf(QuoteLines(30), "####0.00", "corn.txt");
    files.Contents["C:\\Quotes\\copy.txt"] = "old";
    files.BreakKeeping = text::Fault::DiskFull;
    SaveAs("copy.txt");
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Disk full", "Quorvex", Icon::None));
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\copy.txt"), "old");
    EXPECT_EQ(series->QuoteFileName, "corn.txt");
}

TEST_F(QuoteCommands, SaveAsAcceptsAndRefusesTheReferenceNames) {
    auto const names = tests::GoldenVector("save_names");
    for (auto const& entry : names.at("quote")) {
        std::string const name = entry.at(0);
        SCOPED_TRACE(name);
        series = tests::SeriesOf(QuoteLines(30), "####0.00", "corn.txt");
        files.Contents.clear();
        dialogs.Messages.clear();
        SaveAs(name);
        if (entry.at(1)) {
            EXPECT_EQ(files.Contents.size(), 1U);
            EXPECT_NE(series->QuoteFileName, "corn.txt");
            EXPECT_TRUE(dialogs.Messages.empty());
        } else {
            EXPECT_TRUE(files.Contents.empty());
            EXPECT_EQ(series->QuoteFileName, "corn.txt");
            EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data file name", "Quorvex", Icon::Critical));
        }
    }
}

TEST_F(QuoteCommands, SaveAsTrimsTheName) {
    series = tests::SeriesOf(QuoteLines(30));
    SaveAs("  quotes.txt  ");
    EXPECT_EQ(series->QuoteFileName, "quotes.txt");
    EXPECT_TRUE(files.Contents.contains("C:\\Quotes\\quotes.txt"));
}

TEST_F(QuoteCommands, AFailedSaveAsKeepsTheName) {
    series = tests::SeriesOf(QuoteLines(30), "####0.00", "corn.txt");
    files.BreakWriting = text::Fault::DiskFull;
    SaveAs("copy.txt");
    EXPECT_EQ(series->QuoteFileName, "corn.txt");
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Disk full", "Quorvex", Icon::None));
}

TEST_F(QuoteCommands, RequireQuotesAsksForAFile) {
    EXPECT_FALSE(RequireQuotes(*series, dialogs));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Please use File Open option to load a quote data file",
                              "Quorvex", Icon::Information));
    dialogs.Messages.clear();
    series->QuoteFileName = "corn.txt";
    EXPECT_TRUE(RequireQuotes(*series, dialogs));
    EXPECT_TRUE(dialogs.Messages.empty());
}

} // namespace
} // namespace quorvex::quotes
