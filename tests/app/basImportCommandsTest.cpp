// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basImportCommands.h"

#include "RunningProgram.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::app {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string const Folder = "C:\\Quorvex\\";
std::string const Elsewhere = "D:\\Mail\\";
std::string const LeftQuestion = "Import|question|Yes No|";

// A program whose user imports each table that comes under the name that is foreseen, or closes the window.
class ImportingProgram : public RunningProgram {
public:
    ImportingProgram() {
        Window.WhenOpened = [this] {
            Sources.push_back(Data->ImportFrom.Text ? *Data->ImportFrom.Text : Data->ImportFrom.Path);
            auto const name = Names.at(Sources.size() - 1);
            if (name) {
                Files.Contents[Folder + *name] = tests::QuoteLines(30);
                Data->Imported = imports::ImportedFile{Folder, *name};
            }
        };
    }

    void Take(std::vector<std::string> const& paths) { TakeFiles(paths, *Data, Outside); }

    [[nodiscard]] std::ptrdiff_t CountOf(std::string const& call) const {
        return std::ranges::count(Window.Calls, call);
    }

    std::vector<std::optional<std::string>> Names; // of the quote files; nothing where the window is closed
    std::vector<std::string> Sources;              // that the windows showed
};

TEST(ImportChosenTable, OpensTheWindowAndThenTheQuoteFile) {
    ImportingProgram program;
    program.Names = {"Wheat.txt"};
    program.Dialogs.Paths = {Elsewhere + "wheat.csv"};
    ImportChosenTable(*program.Data, program.Outside);
    ASSERT_EQ(program.Dialogs.FileQuestions.size(), 1U);
    EXPECT_EQ(program.Dialogs.FileQuestions.front().Folder, Folder);
    EXPECT_THAT(program.Window.Opened, ElementsAre(SecondaryWindow::Import));
    EXPECT_THAT(program.Sources, ElementsAre(Elsewhere + "wheat.csv"));
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Wheat.txt");
    EXPECT_EQ(program.Data->Quotes.WorkingCount, 30);
    EXPECT_EQ(program.Window.Caption, "Quorvex - [" + Folder + "Wheat.txt]");
    EXPECT_EQ(program.CountOf("layout"), 1); // one redraw
    EXPECT_THAT(program.Dialogs.Messages, IsEmpty());
}

TEST(ImportChosenTable, CancelOfTheChooserOpensNothing) {
    ImportingProgram program;
    program.Dialogs.Paths = {""};
    ImportChosenTable(*program.Data, program.Outside);
    EXPECT_THAT(program.Window.Calls, IsEmpty());
}

TEST(ImportChosenTable, ClosingTheWindowLeavesEverythingAsItWas) {
    ImportingProgram program;
    program.Open("Corn.txt", tests::QuoteLines(40));
    program.Window.Calls.clear();
    program.Names = {std::nullopt};
    program.Dialogs.Paths = {Elsewhere + "wheat.csv"};
    ImportChosenTable(*program.Data, program.Outside);
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Corn.txt");
    EXPECT_EQ(program.Data->Quotes.WorkingCount, 40);
    EXPECT_THAT(program.Window.Calls, ElementsAre("open"));
}

// It was asked for, whatever the file is.
TEST(ImportChosenTable, ShowsAQuoteFileInTheWindowToo) {
    ImportingProgram program;
    program.Names = {std::nullopt};
    program.Files.Contents[Elsewhere + "Wheat.txt"] = tests::QuoteLines(30);
    program.Dialogs.Paths = {Elsewhere + "Wheat.txt"};
    ImportChosenTable(*program.Data, program.Outside);
    EXPECT_THAT(program.Sources, ElementsAre(Elsewhere + "Wheat.txt"));
}

TEST(TakeFiles, OpensAQuoteFileWithoutTheWindow) {
    ImportingProgram program;
    program.Files.Contents[Elsewhere + "Wheat.TXT"] = tests::QuoteLines(30);
    program.Take({Elsewhere + "Wheat.TXT"});
    EXPECT_THAT(program.Window.Opened, IsEmpty());
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Wheat.TXT");
    EXPECT_EQ(program.Data->Settings.DataPath, Elsewhere);
    EXPECT_EQ(program.Files.CurrentFolder, Elsewhere); // where the editor saves
    EXPECT_EQ(program.Window.Caption, "Quorvex - [" + Elsewhere + "Wheat.TXT]");
}

TEST(TakeFiles, ShowsTheWindowForEverythingElse) {
    ImportingProgram program;
    program.Names = {std::nullopt, std::nullopt, std::nullopt, std::nullopt};
    program.Files.Contents[Elsewhere + "a.txt"] =
        "Date,Open,High,Low,Close,Volume,OI\r\n" + tests::QuoteLines(30);
    program.Files.Contents[Elsewhere + "b.csv"] = tests::QuoteLines(30); // File > Open does not list it
    program.Files.Contents[Elsewhere + "c.txt"] = tests::QuoteLines(501);
    for (char const* name : {"a.txt", "b.csv", "c.txt", "gone.txt"}) {
        program.Take({Elsewhere + name});
    }
    EXPECT_THAT(program.Sources, ElementsAre(Elsewhere + "a.txt", Elsewhere + "b.csv", Elsewhere + "c.txt",
                                             Elsewhere + "gone.txt"));
    EXPECT_FALSE(program.Data->Quotes.HasQuotes());
    EXPECT_EQ(program.Data->Settings.DataPath, Folder);
    EXPECT_THAT(program.Dialogs.Messages, IsEmpty());
}

TEST(TakeFiles, ShowsSeveralInTurnAndOpensTheLast) {
    ImportingProgram program;
    program.Names = {"Wheat.txt", "Corn.txt"};
    program.Take({Elsewhere + "wheat.csv", Elsewhere + "corn.csv"});
    EXPECT_THAT(program.Sources, ElementsAre(Elsewhere + "wheat.csv", Elsewhere + "corn.csv"));
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Corn.txt");
    EXPECT_EQ(program.CountOf("layout"), 1); // one redraw
    EXPECT_THAT(program.Dialogs.Messages, IsEmpty());
}

TEST(TakeFiles, AsksWhetherToGoOnBehindATableThatWasNotImported) {
    ImportingProgram program;
    program.Names = {"Wheat.txt", std::nullopt, std::nullopt};
    program.Dialogs.Answers = {platform::Answer::Yes, platform::Answer::No};
    program.Take({"a.csv", "b.csv", "c.csv", "d.csv"});
    EXPECT_THAT(program.Sources, ElementsAre("a.csv", "b.csv", "c.csv"));
    ASSERT_EQ(program.Dialogs.Messages.size(), 2U);
    EXPECT_EQ(tests::Describe(program.Dialogs.Messages[0]),
              LeftQuestion + "2 files are left.\nDo you want to go on with them?");
    EXPECT_EQ(tests::Describe(program.Dialogs.Messages[1]),
              LeftQuestion + "One file is left.\nDo you want to go on with it?");
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Wheat.txt");
}

TEST(TakeFiles, LeavesTheCurrentFolderToAFileOfTheDataFolder) {
    ImportingProgram program;
    program.Files.CurrentFolder = Elsewhere;
    program.Files.Contents[Folder + "Wheat.txt"] = tests::QuoteLines(30);
    program.Take({Folder + "Wheat.txt"});
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Wheat.txt");
    EXPECT_EQ(program.Files.CurrentFolder, Elsewhere);
}

// The contract that stays open is where it was.
TEST(TakeFiles, KeepTheDataFolderWhenTheFileCannotBeOpened) {
    ImportingProgram program;
    program.Open("Corn.txt", tests::QuoteLines(40));
    program.Files.CurrentFolder = Folder;
    program.Names = {"Wheat.txt"};
    program.Window.WhenOpened = [&] {
        program.Data->Imported = imports::ImportedFile{Elsewhere, "gone.txt"};
    };
    program.Take({Elsewhere + "wheat.csv"});
    EXPECT_TRUE(
        tests::IsOnlyMessage(program.Dialogs.Messages, "File not found", "Quorvex", platform::Icon::None));
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Corn.txt");
    EXPECT_EQ(program.Data->Settings.DataPath, Folder);
    EXPECT_EQ(program.Files.CurrentFolder, Folder);
}

TEST(TakeTable, HandsTheTextToTheWindow) {
    ImportingProgram program;
    program.Names = {"Pasted.txt"};
    TakeTable("a table", *program.Data, program.Outside);
    EXPECT_THAT(program.Sources, ElementsAre("a table"));
    EXPECT_EQ(program.Data->Quotes.QuoteFileName, "Pasted.txt");
    EXPECT_EQ(program.Data->ImportFrom.Text, nullptr); // it may be large
}

} // namespace
} // namespace quorvex::app
