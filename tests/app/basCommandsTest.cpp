// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basCommands.h"

#include "RunningProgram.h"
#include "app/MenuTable.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace quorvex::app {
namespace {

using platform::Icon;
using tests::GoldenFile;
using tests::IsOnlyMessage;
using tests::QuoteLines;

constexpr auto NoQuotes = "Please use File Open option to load a quote data file";

TEST(Commands, OpenLoadsAndComputes) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    EXPECT_THAT(running.Dialogs.Choosers, testing::ElementsAre(platform::FileKind::Quotes));
    EXPECT_EQ(running.Data->Quotes.QuoteFileName, "corn.txt");
    EXPECT_EQ(running.Data->Quotes.WorkingCount, 30);
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[30], 130);
}

TEST(Commands, CloseForgetsTheQuotesAndKeepsTheCycles) {
    RunningProgram running;
    running.Open("q060.txt", GoldenFile("quotes/q060.txt"));
    ParametersAutomate(1, *running.Data, running.Outside);
    double const period = running.Data->Cycles.Cycles[1].Period;
    FileClose(*running.Data, running.Outside);
    EXPECT_FALSE(running.Data->Quotes.HasQuotes());
    EXPECT_EQ(running.Data->Quotes.WorkingCount, 0);
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Period, period);
    EXPECT_NE(period, 0);
}

TEST(Commands, CloseEmptiesTheBoxesOfQuotesAndResidualOnly) {
    RunningProgram running;
    running.Open("q060.txt", GoldenFile("quotes/q060.txt"));
    auto const before = running.Pic2.Operations().size() + running.Pic3.Operations().size();
    auto const quotes = running.Pic1.Operations().size();
    FileClose(*running.Data, running.Outside);
    EXPECT_EQ(running.Pic2.Operations().size() + running.Pic3.Operations().size(), before);
    EXPECT_EQ(running.Pic1.Operations().at(quotes).What, platform::DrawingOperation::Kind::Clear);
    // The boxes are prepared while the sixty days still count.
    auto const& dash = running.Pic1.Operations().at(quotes + 3);
    EXPECT_NEAR(dash.Coordinates[0], running.Pic1.Width() / 60, 0.01);
    EXPECT_EQ(running.Pic4.Operations().back().What, platform::DrawingOperation::Kind::Line);
}

TEST(Commands, NewEmptiesTheBoxesOfTheCycles) {
    RunningProgram running;
    auto const quotes = running.Pic1.Operations().size();
    ParametersNew(*running.Data, running.Outside);
    EXPECT_EQ(running.Pic1.Operations().size(), quotes);
    for (auto const* box : {&running.Pic2, &running.Pic3, &running.Pic4}) {
        EXPECT_EQ(box->Operations().front().What, platform::DrawingOperation::Kind::Clear);
    }
}

TEST(Commands, ACancelledNewLeavesTheBoxes) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    running.Dialogs.Answers = {platform::Answer::Cancel};
    ParametersNew(*running.Data, running.Outside);
    EXPECT_TRUE(running.Pic2.Operations().empty());
}

TEST(Commands, ACancelledSaveAsReportsAnInvalidName) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Dialogs.Texts = {""};
    FileSaveAs(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Invalid data file name", "Quorvex", Icon::Critical));
}

TEST(Commands, SaveAsWritesTheQuotes) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Dialogs.Texts = {"copy.txt"};
    FileSaveAs(*running.Data, running.Outside);
    EXPECT_EQ(running.Files.Contents.at("C:\\Quorvex\\copy.txt"), QuoteLines(30));
    EXPECT_EQ(running.Data->Quotes.QuoteFileName, "copy.txt");
}

TEST(Commands, WithoutQuotesAnalysesOnlyAskForThem) {
    for (int command = 0; command < 5; ++command) {
        SCOPED_TRACE(command);
        RunningProgram running;
        running.TypeCycle(1, "50", "20");
        if (command < 3) {
            ParametersAutomate(command + 1, *running.Data, running.Outside);
        } else if (command == 3) {
            Correlation(*running.Data, running.Outside);
        } else {
            Forecast(*running.Data, running.Outside);
        }
        EXPECT_TRUE(running.Window.Opened.empty());
        EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, NoQuotes, "Quorvex", Icon::Information));
        EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "50");
    }
}

TEST(Commands, AutomateTakesTheFitUpFromTheGrid) {
    RunningProgram running;
    running.Open("q250.txt", GoldenFile("quotes/q250.txt"));
    ParametersAutomate(3, *running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "14");
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Weight, 50);
    EXPECT_EQ(running.Data->Cycles.Cycles[3].Weight, 16);
    EXPECT_NE(running.Data->Curves.CompositeCurve[1], 0);
}

TEST(Commands, OneCycleIsFittedToTheMovingAverageAsItStands) {
    RunningProgram running;
    running.Open("q250.txt", GoldenFile("quotes/q250.txt"));
    running.Data->Settings.MovingAverageIndex = "25";
    ParametersAutomate(1, *running.Data, running.Outside);
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "14"); // of length 3
    ParametersAutomate(2, *running.Data, running.Outside);
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "19"); // of length 25
}

TEST(Commands, AFitThatFailsShowsItsDescription) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Data->Curves.MovingAverageCurve.Fill(0);
    ParametersAutomate(1, *running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Division by zero", "Quorvex", Icon::None));
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "0");
}

TEST(Commands, AFitThatFailsLeavesTheGridAsItWasWritten) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(25));
    // The second cycle of this moving average has a Shift beyond 16 bits.
    int day = 0;
    for (int const value : {2, 2, 2, 2, 1, 0, 2, 0, 0, 1, -1, -1, 0, -1, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0}) {
        running.Data->Quotes.Working[++day].Close = value;
    }
    running.Data->Settings.MovingAverageIndex = "1";
    ParametersAutomate(2, *running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Overflow", "Quorvex", Icon::None));
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "50");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 2), "34");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 2), "4");
    EXPECT_FALSE(cycles::HasActiveCycle(running.Data->Cycles));
}

TEST(Commands, AutomateGoesOnWhenTheMovingAverageCannotBeRefreshed) {
    RunningProgram running;
    running.Open("q060.txt", GoldenFile("quotes/q060.txt"));
    running.Data->Settings.MovingAverageIndex = "40000"; // no whole number of 16 bits
    ParametersAutomate(2, *running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "60");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "23");
}

TEST(Commands, AutomateOfPricesWithoutARangeFitsTheirMovingAverage) {
    RunningProgram running;
    running.Open("q060.txt", GoldenFile("quotes/q060.txt"));
    for (int day = 1; day <= 60; ++day) {
        running.Data->Quotes.Working[day].High = 5;
        running.Data->Quotes.Working[day].Low = 5;
    }
    running.Data->Curves.MovingAverageCurve.Fill(0);
    ParametersAutomate(2, *running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "23");
}

TEST(Commands, CorrelationReportsAPercentage) {
    RunningProgram running;
    running.Open("q250.txt", GoldenFile("quotes/q250.txt"));
    ParametersAutomate(3, *running.Data, running.Outside);
    Correlation(*running.Data, running.Outside);
    ASSERT_EQ(running.Dialogs.Messages.size(), 1U);
    EXPECT_EQ(running.Dialogs.Messages[0].Title, "Quorvex - Coefficient of Correlation");
    EXPECT_EQ(running.Dialogs.Messages[0].Shown, Icon::Information);
    EXPECT_TRUE(running.Dialogs.Messages[0].Text.ends_with('%'));
}

TEST(Commands, CorrelationAfterNewFindsInsufficientData) {
    RunningProgram running;
    running.Open("q250.txt", GoldenFile("quotes/q250.txt"));
    ParametersAutomate(3, *running.Data, running.Outside);
    running.Dialogs.Answers = {platform::Answer::No};
    ParametersNew(*running.Data, running.Outside);
    running.Dialogs.Messages.clear();
    Correlation(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Insufficient data to perform correlation",
                              "Quorvex - Correlation", Icon::Information));
}

TEST(Commands, CorrelationOfFlatPricesShowsTheDivision) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Data->Curves.CompositeCurve.Fill(1);
    Correlation(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Division by zero", "Quorvex", Icon::None));
    EXPECT_EQ(running.Data->Curves.CompositeCurve[1], 1) << "the command ends with the fault";
}

TEST(Commands, ForecastNeedsWeights) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    Forecast(*running.Data, running.Outside);
    EXPECT_TRUE(running.Window.Opened.empty());
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages,
                              "Insufficient cycle parameters data to create forecast values", "Quorvex",
                              Icon::Exclamation));
    running.Dialogs.Messages.clear();
    running.TypeCycle(1, "50", "20");
    Forecast(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Opened, testing::ElementsAre(SecondaryWindow::Forecast));
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST(Commands, ParametersOpenShowsAndTakesUpTheSet) {
    RunningProgram running;
    running.Files.Contents["C:\\Quorvex\\mine.dat"] = "1, 40, 10, 0\r\n3, 20, 5, 0\r\n";
    running.Dialogs.Choices = {"mine.dat"};
    ParametersOpen(*running.Data, running.Outside);
    EXPECT_THAT(running.Dialogs.Choosers, testing::ElementsAre(platform::FileKind::Parameters));
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "25");
    EXPECT_EQ(running.Data->Cycles.Cycles[2].Weight, 75);
    EXPECT_NE(running.Data->Curves.CompositeCurve[1], 0);
}

TEST(Commands, ParametersTooLargeForTheGridShowTheOverflow) {
    RunningProgram running;
    running.Files.Contents["C:\\Quorvex\\mine.dat"] = "1, 40000, 10, 0\r\n";
    running.Dialogs.Choices = {"mine.dat"};
    ParametersOpen(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Overflow", "Quorvex", Icon::None));
}

TEST(Commands, SaveAndSaveAsOfParametersWriteNoFile) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    ParametersSave(*running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    running.Dialogs.Texts = {"mine.dat"};
    ParametersSaveAs(*running.Data, running.Outside);
    EXPECT_EQ(running.Dialogs.Messages.size(), 1U);
    EXPECT_TRUE(running.Files.Contents.empty());
}

TEST(Commands, AWeightThatOverflowsIsReportedByEveryCommandThatSumsTheGrid) {
    for (int command = 0; command < 4; ++command) {
        SCOPED_TRACE(command);
        RunningProgram running;
        running.Open("corn.txt", QuoteLines(30));
        running.TypeCycle(1, "1e999", "20");
        switch (command) {
        case 0:
            ParametersNew(*running.Data, running.Outside);
            break;
        case 1:
            ParametersSave(*running.Data, running.Outside);
            break;
        case 2:
            ParametersSaveAs(*running.Data, running.Outside);
            break;
        default:
            Forecast(*running.Data, running.Outside);
        }
        EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Overflow", "Quorvex", Icon::None));
    }
}

TEST(Commands, PrintPrintsALoadedFileTwice) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    FilePrint(*running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    ASSERT_EQ(running.Printing.Documents.size(), 2U);
    for (auto const& document : running.Printing.Documents) {
        EXPECT_EQ(document.Name, "corn chart");
        EXPECT_TRUE(document.IsEnded);
        ASSERT_EQ(document.Pages.size(), 1U);
        EXPECT_EQ(document.Pages[0].Texts.at(0).Text, "corn.txt");
    }
    EXPECT_EQ(running.Printing.HourglassCount, 0);
}

TEST(Commands, PrintWithoutAFilePrintsAnEmptyChartAfterItsMessage) {
    RunningProgram running;
    FilePrint(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Please load a quote data file",
                              "Quorvex - Print Chart", Icon::Information));
    ASSERT_EQ(running.Printing.Documents.size(), 1U);
    EXPECT_EQ(running.Printing.Documents[0].Name, "Quorvex chart");
    EXPECT_TRUE(running.Printing.Documents[0].IsEnded);
}

TEST(Commands, ACancelledOpenLeavesNothingToPrint) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Dialogs.Choices = {std::nullopt};
    FileOpen(*running.Data, running.Outside);
    EXPECT_EQ(running.Data->Quotes.WorkingCount, 0);
    FilePrint(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Please load a quote data file",
                              "Quorvex - Print Chart", Icon::Information));
    RunningProgram fresh;
    FilePrint(*fresh.Data, fresh.Outside);
    platform::fake::PrintedPage const& page = running.Printing.Documents.at(0).Pages.at(0);
    platform::fake::PrintedPage const& emptyPage = fresh.Printing.Documents.at(0).Pages.at(0);
    EXPECT_EQ(page.Texts.size(), emptyPage.Texts.size());
    EXPECT_EQ(page.Shapes.size(), emptyPage.Shapes.size());
}

TEST(Commands, PrintEndsWithTheErrorOfTheFirstPage) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.Printing.Sheet.FailingText = 5;
    FilePrint(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Printer error", "Quorvex", Icon::None));
    ASSERT_EQ(running.Printing.Documents.size(), 1U);
    EXPECT_FALSE(running.Printing.Documents[0].IsEnded);
    EXPECT_EQ(running.Printing.HourglassCount, 0);
}

TEST(Commands, PrintWithoutAFileShowsItsErrorAfterItsMessage) {
    RunningProgram running;
    running.Printing.Sheet.IsEndFailing = true;
    FilePrint(*running.Data, running.Outside);
    ASSERT_EQ(running.Dialogs.Messages.size(), 2U);
    EXPECT_EQ(running.Dialogs.Messages[0].Title, "Quorvex - Print Chart");
    EXPECT_EQ(running.Dialogs.Messages[1].Text, "Printer error");
}

TEST(Commands, PrintOfPricesWithoutARangeShowsTheDivision) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    for (int day = 1; day <= 30; ++day) {
        running.Data->Quotes.Working[day].High = 5;
        running.Data->Quotes.Working[day].Low = 5;
    }
    FilePrint(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Division by zero", "Quorvex", Icon::None));
}

TEST(Commands, PrintSetupStartsTheControlPanel) {
    RunningProgram running;
    FilePrintSetup(*running.Data, running.Outside);
    EXPECT_THAT(running.Launcher.Started, testing::ElementsAre("CONTROL.EXE"));
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST(Commands, PrintSetupShowsThatThereIsNoneToStart) {
    RunningProgram running;
    running.Launcher.HasPrograms = false;
    FilePrintSetup(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "File not found", "Quorvex", Icon::None));
}

TEST(Commands, ExitEndsWithoutAQuestion) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.TypeCycle(1, "50", "20");
    running.Window.Calls.clear();
    FileExit(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Calls, testing::ElementsAre("end"));
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST(Commands, TheUserManualIsAMessage) {
    RunningProgram running;
    HelpUserManual(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages,
                              "The trader is encouraged to print the User Manual using \n"
                              "Microsoft Word 2000. The document can be found at\n"
                              "the following location:\n\n"
                              "   C:\\Veltrano\\Quorvex\\Quorvex-UserManual.doc\n",
                              "Quorvex - Help", Icon::None));
    EXPECT_TRUE(running.Window.Calls.empty());
}

TEST(Commands, PrintingParametersDoesNothing) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    running.TypeCycle(1, "50", "20");
    auto const drawn = running.Pic1.Operations().size();
    running.Window.Calls.clear();
    ParametersPrint(*running.Data, running.Outside);
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    EXPECT_TRUE(running.Window.Calls.empty());
    EXPECT_TRUE(running.Launcher.Started.empty());
    EXPECT_EQ(running.Pic1.Operations().size(), drawn);
}

TEST(Commands, CloseAndOpenSetTheCaption) {
    RunningProgram running;
    running.Open("corn.txt", QuoteLines(30));
    EXPECT_EQ(running.Window.Caption, "Quorvex - [C:\\Quorvex\\corn.txt]");
    FileClose(*running.Data, running.Outside);
    EXPECT_EQ(running.Window.Caption, "Quorvex");
}

TEST(Commands, RefreshTakesUpWhatWasTyped) {
    RunningProgram running;
    running.TypeCycle(1, "1", "12.6");
    running.TypeCycle(2, "3", "30");
    Refresh(*running.Data, running.Outside);
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "25");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Period, 1), "13");
    EXPECT_EQ(running.Data->Cycles.Cycles[2].Weight, 75);
}

TEST(Commands, PropertiesNeedQuotes) {
    RunningProgram running;
    FileProperties(*running.Data, running.Outside);
    EXPECT_TRUE(running.Window.Opened.empty());
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Please load a quote data file",
                              "Quorvex - Properties", Icon::Information));
    running.Dialogs.Messages.clear();
    running.Open("corn.txt", QuoteLines(30));
    FileProperties(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Opened, testing::ElementsAre(SecondaryWindow::Properties));
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST(Commands, PreferencesAreFollowedByARedraw) {
    RunningProgram running;
    running.Window.Calls.clear();
    Preferences(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Calls, testing::ElementsAre("open", "caption", "layout"));
    EXPECT_THAT(running.Window.Opened, testing::ElementsAre(SecondaryWindow::Preferences));
}

// How often each command lays the window out, which is what a redraw begins with.
TEST(Commands, EndWithOneRedrawWhereTheyOpenAWindowOrChangeData) {
    std::set<std::string_view> const withoutRedraw = {
        "mnuFileClose",        "mnuFilePrint",       "mnuFilePrintSetup",
        "mnuFileExit",         "mnuParametersNew",   "mnuParametersSave",
        "mnuParametersSaveAs", "mnuParametersPrint", "mnuHelpUserManual"};
    for (MenuRow const& row : MenuTable()) {
        if (row.Run == nullptr) {
            continue;
        }
        RunningProgram running;
        running.Open("q060.txt", GoldenFile("quotes/q060.txt"));
        running.Files.Contents["C:\\Quorvex\\mine.dat"] = "57, 20, 3, 0\r\n2, 30, 3, 0\r\n66, 40, 3, 0\r\n";
        running.TypeCycle(1, "100", "20");
        running.Dialogs.Choices = {row.Name == "mnuFileOpen" ? "q060.txt" : "mine.dat"};
        running.Dialogs.Texts = {row.Name == "mnuFileSaveAs" ? "copy.txt" : "copy.dat"};
        running.Dialogs.Answers = {platform::Answer::No};
        running.Window.Calls.clear();
        row.Run(*running.Data, running.Outside);
        EXPECT_EQ(std::ranges::count(running.Window.Calls, "layout"),
                  withoutRedraw.contains(row.Name) ? 0 : 1)
            << row.Name;
        if (row.Name == "mnuParametersOpen") {
            EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 3), "53") << "scaled once";
        }
    }
}

TEST(Commands, LegendAndAboutOpenTheirWindows) {
    RunningProgram running;
    Legend(*running.Data, running.Outside);
    HelpAbout(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Opened, testing::ElementsAre(SecondaryWindow::Legend, SecondaryWindow::About));
}

TEST(Commands, HelpItemsNameTheirDocuments) {
    RunningProgram running;
    for (auto const& [item, document] :
         std::map<std::string_view, std::string>{{"mnuHelpReadMe", "Quorvex-ReadMe.rtf"},
                                                 {"mnuHelpQuickStart", "Quorvex-QuickStart.rtf"},
                                                 {"mnuHelpIndex", "Quorvex-Index.rtf"},
                                                 {"mnuHelpCommoditySymbols", "CommoditySymbols.rtf"}}) {
        running.Window.Opened.clear();
        MenuRowNamed(item).Run(*running.Data, running.Outside);
        EXPECT_EQ(running.Data->HelpFileName, document);
        EXPECT_THAT(running.Window.Opened, testing::ElementsAre(SecondaryWindow::Help));
    }
}

} // namespace
} // namespace quorvex::app
