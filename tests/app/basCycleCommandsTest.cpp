// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basCycleCommands.h"

#include "RunningProgram.h"
#include "app/MenuTable.h"
#include "app/basCommands.h"
#include "app/basImportCommands.h"
#include "search/basSearch.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace quorvex::app {
namespace {

using cycles::Parameter;
using platform::Icon;
using testing::ElementsAre;
using tests::GoldenFile;
using tests::IsOnlyMessage;

search::CycleModel BestModel(Program const& program, int cycleCount) {
    search::SearchRequest request;
    request.CycleCount = cycleCount;
    return search::SearchMovingAverage(program.Curves, program.Quotes.WorkingCount, request,
                                       [] { return true; })
        .Models.back();
}

std::string RowTexts(cycles::ParameterGrid const& grid, int cycle) {
    std::string texts;
    for (Parameter const parameter : cycles::Parameters) {
        texts += grid.Text(parameter, cycle) + ' ';
    }
    return texts;
}

// A program whose user leaves the search window with the best model of three cycles.
class FindingProgram : public RunningProgram {
public:
    FindingProgram() {
        Open("q250.txt", GoldenFile("quotes/q250.txt"));
        Window.Calls.clear();
        Window.WhenOpened = [this] {
            Model = BestModel(*Data, 3);
            Data->FoundModel = Model;
        };
    }

    search::CycleModel Model;
};

TEST(FindBestCycles, WithoutQuotesAsksForThem) {
    RunningProgram running;
    FindBestCycles(*running.Data, running.Outside);
    EXPECT_TRUE(running.Window.Opened.empty());
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages,
                              "Please use File Open option to load a quote data file", "Quorvex",
                              Icon::Information));
}

TEST(FindBestCycles, WhatWasFoundIsAllThatTheGridHoldsAfterOneRedraw) {
    FindingProgram running;
    for (int cycle = 1; cycle <= 6; ++cycle) {
        running.TypeCycle(cycle, "15", "33");
        running.Grid.SetText(Parameter::Decay, cycle, "4");
    }
    FindBestCycles(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Opened, ElementsAre(SecondaryWindow::FindCycles));
    EXPECT_THAT(running.Window.Calls, ElementsAre("open", "caption", "layout"));
    EXPECT_TRUE(running.Dialogs.Messages.empty());
    ASSERT_EQ(running.Model.Cycles.size(), 3U);
    for (int cycle = 1; cycle <= 3; ++cycle) {
        auto const& found = running.Model.Cycles.at(static_cast<std::size_t>(cycle - 1));
        EXPECT_EQ(RowTexts(running.Grid, cycle), std::to_string(found.Weight) + ' ' +
                                                     std::to_string(found.Period) + ' ' +
                                                     std::to_string(found.Shift) + " 0 ");
    }
    for (int cycle = 4; cycle <= cycles::CycleCount; ++cycle) {
        EXPECT_EQ(RowTexts(running.Grid, cycle), "0 0 0 0 ");
    }
}

// Cycles that are switched off stay in the composite otherwise.
TEST(FindBestCycles, TheCorrelationIsTheOneOfTheModelWhateverCyclesThereWere) {
    FindingProgram running;
    for (int cycle = 1; cycle <= 10; ++cycle) {
        running.TypeCycle(cycle, "10", std::to_string(10 * cycle));
    }
    Refresh(*running.Data, running.Outside);
    FindBestCycles(*running.Data, running.Outside);
    auto const shown = cycles::CoefficientOfCorrelation(running.Data->Curves, 250);
    ASSERT_TRUE(shown);
    EXPECT_NEAR(*shown, running.Model.Correlation, 1e-9);
    EXPECT_GT(*shown, 0.5);
    auto const inGrid = search::CompositeInGrid(running.Model, running.Data->Curves, 250);
    EXPECT_EQ(inGrid.Correlation, shown);
    auto const& composite = running.Data->Curves.CompositeCurve;
    double lowest = 0;
    double highest = 0;
    for (int day = 1; day <= 250; ++day) {
        lowest = std::min(lowest, composite[day]);
        highest = std::max(highest, composite[day]);
    }
    EXPECT_EQ(inGrid.Swing.Lowest, lowest);
    EXPECT_EQ(inGrid.Swing.Highest, highest);
}

TEST(FindBestCycles, WithoutAModelEverythingStaysAsItWas) {
    FindingProgram running;
    running.TypeCycle(1, "57", "20");
    running.TypeCycle(2, "2", "30");
    running.Data->FoundModel = BestModel(*running.Data, 1); // of an earlier call
    running.Window.WhenOpened = {};
    double const composite = running.Data->Curves.CompositeCurve[1];
    auto const drawn = running.Pic3.Operations().size();
    FindBestCycles(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Calls, ElementsAre("open"));
    EXPECT_EQ(RowTexts(running.Grid, 1), "57 20 0 0 ");
    EXPECT_EQ(RowTexts(running.Grid, 2), "2 30 0 0 ");
    EXPECT_EQ(running.Data->Curves.CompositeCurve[1], composite);
    EXPECT_EQ(running.Pic3.Operations().size(), drawn);
}

TEST(FindBestCycles, TheWindowSearchesTheMovingAverageOfTheSettings) {
    FindingProgram running;
    running.Data->Settings.MovingAverageIndex = "25";
    double shown = 0;
    running.Window.WhenOpened = [&] { shown = running.Data->Curves.MovingAverageCurve[100]; };
    double const before = running.Data->Curves.MovingAverageCurve[100];
    FindBestCycles(*running.Data, running.Outside);
    EXPECT_NE(shown, before);
    EXPECT_EQ(running.Data->Curves.MovingAverageLength, 25);
}

TEST(FindBestCycles, AMovingAverageThatFailsShowsItsDescription) {
    FindingProgram running;
    running.Data->Quotes.Working[5].Close = 1.5e308;
    running.Data->Quotes.Working[6].Close = 1.5e308;
    FindBestCycles(*running.Data, running.Outside);
    EXPECT_TRUE(running.Window.Opened.empty());
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Overflow", "Quorvex", Icon::None));
}

TEST(TestForecast, WithoutQuotesAsksForThem) {
    RunningProgram running;
    TestForecast(*running.Data, running.Outside);
    EXPECT_TRUE(running.Window.Opened.empty());
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages,
                              "Please use File Open option to load a quote data file", "Quorvex",
                              Icon::Information));
}

TEST(TestForecast, OpensTheWindowAndChangesNothing) {
    RunningProgram running;
    running.Open("q250.txt", GoldenFile("quotes/q250.txt"));
    running.TypeCycle(1, "57", "20");
    running.Window.Calls.clear();
    TestForecast(*running.Data, running.Outside);
    EXPECT_THAT(running.Window.Opened, ElementsAre(SecondaryWindow::TestForecast));
    EXPECT_THAT(running.Window.Calls, ElementsAre("open"));
    EXPECT_EQ(RowTexts(running.Grid, 1), "57 20 0 0 ") << "the grid is not read";
    EXPECT_TRUE(running.Dialogs.Messages.empty());
}

TEST(WriteParameterFile, WritesAFileThatParametersOpenReads) {
    FindingProgram running;
    FindBestCycles(*running.Data, running.Outside);
    std::string const first = RowTexts(running.Grid, 1);
    running.Dialogs.Paths = {"C:\\Quorvex\\found"};
    WriteParameterFile(*running.Data, running.Outside);
    EXPECT_EQ(running.Dialogs.SaveQuestions.at(0).Folder, "C:\\Quorvex");
    running.Dialogs.Answers = {platform::Answer::No};
    ParametersNew(*running.Data, running.Outside);
    EXPECT_EQ(RowTexts(running.Grid, 1), "0 0 0 0 ");
    running.Dialogs.Choices = {"found.dat"};
    ParametersOpen(*running.Data, running.Outside);
    EXPECT_EQ(RowTexts(running.Grid, 1), first);
    EXPECT_NEAR(cycles::CoefficientOfCorrelation(running.Data->Curves, 250).value_or(0),
                running.Model.Correlation, 1e-9);
}

TEST(WriteParameterFile, NeedsWeightsAndNoQuotes) {
    RunningProgram running;
    cycles::ClearGrid(running.Grid);
    WriteParameterFile(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Insufficient cycle parameters data to save",
                              "Quorvex", Icon::Exclamation));
    running.TypeCycle(1, "50", "20");
    running.Dialogs.Paths = {"C:\\Quorvex\\mine.dat"};
    WriteParameterFile(*running.Data, running.Outside);
    EXPECT_TRUE(running.Files.Contents.contains("C:\\Quorvex\\mine.dat"));
    EXPECT_EQ(RowTexts(running.Grid, 1), "50 20 0 0 ") << "the grid is not read";
    EXPECT_TRUE(running.Window.Calls.empty());
}

TEST(WriteParameterFile, AFaultShowsItsDescription) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    running.Files.BreakWriting = text::Fault::PermissionDenied;
    running.Dialogs.Paths = {"C:\\Quorvex\\mine.dat"};
    WriteParameterFile(*running.Data, running.Outside);
    EXPECT_TRUE(IsOnlyMessage(running.Dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
}

TEST(ChartMenuTable, TheChartsHaveTheirItems) {
    std::map<std::string_view, Command> const commands = {{"mnuChartImport", ImportChosenTable},
                                                          {"mnuChartFindCycles", FindBestCycles},
                                                          {"mnuChartTestForecast", TestForecast},
                                                          {"mnuChartWriteParameters", WriteParameterFile}};
    std::vector<std::string> items;
    for (MenuRow const& row : ChartMenuTable()) {
        items.push_back(std::string(row.Parent) + ' ' + std::string(row.Name) + ' ' +
                        std::string(row.Caption));
        EXPECT_EQ(row.Run, commands.at(row.Name));
    }
    EXPECT_THAT(items,
                ElementsAre("Pic1 mnuChartImport &Import...", "Pic2 mnuChartFindCycles &Find Best Cycles...",
                            "Pic2 mnuChartWriteParameters &Write Parameter File...",
                            "Pic3 mnuChartFindCycles &Find Best Cycles...",
                            "Pic3 mnuChartTestForecast &Test Forecast...",
                            "Pic3 mnuChartWriteParameters &Write Parameter File..."));
}

TEST(ChartMenuTable, HasRowsByName) {
    MenuRow const& row = ChartMenuRowNamed("mnuChartTestForecast");
    EXPECT_EQ(row.Caption, "&Test Forecast...");
    EXPECT_EQ(row.Run, TestForecast);
}

} // namespace
} // namespace quorvex::app
