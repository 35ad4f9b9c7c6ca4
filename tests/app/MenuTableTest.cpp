// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/MenuTable.h"

#include "app/basCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace quorvex::app {
namespace {

// The menu as an outline: "name caption", indented by its depth.
std::vector<std::string> Outline(std::string_view parent, std::string const& indent) {
    std::vector<std::string> lines;
    for (MenuRow const& row : MenuTable()) {
        if (row.Parent == parent) {
            lines.push_back(indent + std::string(row.Name) + " \"" + std::string(row.Caption) + "\"");
            auto const below = Outline(row.Name, indent + "  ");
            lines.insert(lines.end(), below.begin(), below.end());
        }
    }
    return lines;
}

TEST(MenuTable, HasEveryItemInOrder) {
    EXPECT_THAT(
        Outline("", ""),
        testing::ElementsAre(
            R"(mnuFile "&File")",       //
            R"(  mnuFileOpen "&Open")", //
            R"(  mnuFileClose "&Close")",
            R"(  Sep1000 "-")", //
            R"(  mnuFileEdit "&Edit")", R"(  mnuFileSaveAs "Save &As...")",
            R"(  Sep2000 "-")", //
            R"(  mnuFileConvert "&Con&vert")", R"(    mnuFileConvertCSI "Commodity Systems, Inc.")",
            R"(    mnuFileConvertBARCHART "Barchart")",
            R"(    mnuSep393 "-")", //
            R"(    mnuFileConvertCustom "Custom")",
            R"(  Sep3000 "-")", //
            R"(  mnuFilePrint "&Print")", R"(  mnuFilePrintSetup "Print Set&up")",
            R"(  mnuFileSep "-")", //
            R"(  mnuFileProperties "P&roperties")",
            R"(  mnuFileSep7 "-")", //
            R"(  mnuFileExit "E&xit")", R"(mnuParameters "&Parameters")", R"(  mnuParametersNew "&New")",
            R"(  mnuParametersOpen "&Open")", R"(  mnuParametersSep11 "-")", R"(  mnuParametersSave "&Save")",
            R"(  mnuParametersSaveAs "Save &As...")", R"(  mnuQuotesSep1 "-")",
            R"(  mnuParametersAutomate "&Automate")", R"(    mnuParametersAutomate1 "&One Cycle")",
            R"(    mnuParametersAutomate2 "&Two Cycles")", R"(    mnuParametersAutomate3 "T&hree Cycles")",
            R"(  mnuQuotesSep2 "-")", R"(  mnuParametersPrint "&Print")",
            R"(mnuRefresh "&Refresh")", //
            R"(mnuForecast "F&orecast")", R"(mnuCorrelation "&Correlation")",
            R"(mnuPreferences "Pr&eferences")",
            R"(mnuLegend "&Legend")", //
            R"(mnuHelp "&Help")", R"(  mnuHelpReadMe "&Read Me")", R"(  mnuHelpQuickStart "&Quick Start")",
            R"(  mnuHelpUserManual "&User Manual")",
            R"(  mnuHelpSep11 "-")", //
            R"(  mnuHelpIndex "&Index")", R"(  mnuHelpCommoditySymbols "&Commodity Symbols")",
            R"(  mnuHelpSep "-")", R"(  mnuHelpAbout "&About Quorvex")"));
}

TEST(MenuTable, NamesAreUniqueAndParentsStandInFront) {
    std::set<std::string_view> names = {""};
    for (MenuRow const& row : MenuTable()) {
        EXPECT_TRUE(names.contains(row.Parent)) << row.Name;
        EXPECT_TRUE(names.insert(row.Name).second) << row.Name;
    }
}

TEST(MenuTable, ItemsRunTheirCommands) {
    EXPECT_EQ(MenuRowNamed("mnuFileOpen").Run, FileOpen);
    EXPECT_EQ(MenuRowNamed("mnuFileClose").Run, FileClose);
    EXPECT_EQ(MenuRowNamed("mnuFileSaveAs").Run, FileSaveAs);
    EXPECT_EQ(MenuRowNamed("mnuFilePrint").Run, FilePrint);
    EXPECT_EQ(MenuRowNamed("mnuFilePrintSetup").Run, FilePrintSetup);
    EXPECT_EQ(MenuRowNamed("mnuFileEdit").Run, FileEdit);
    EXPECT_EQ(MenuRowNamed("mnuFileConvertCSI").Run, FileConvertCSI);
    EXPECT_EQ(MenuRowNamed("mnuFileConvertBARCHART").Run, FileConvertBarChart);
    EXPECT_EQ(MenuRowNamed("mnuFileConvertCustom").Run, FileConvertCustom);
    EXPECT_EQ(MenuRowNamed("mnuFileProperties").Run, FileProperties);
    EXPECT_EQ(MenuRowNamed("mnuFileExit").Run, FileExit);
    EXPECT_EQ(MenuRowNamed("mnuParametersNew").Run, ParametersNew);
    EXPECT_EQ(MenuRowNamed("mnuParametersOpen").Run, ParametersOpen);
    EXPECT_EQ(MenuRowNamed("mnuParametersSave").Run, ParametersSave);
    EXPECT_EQ(MenuRowNamed("mnuParametersSaveAs").Run, ParametersSaveAs);
    EXPECT_EQ(MenuRowNamed("mnuParametersPrint").Run, ParametersPrint);
    EXPECT_EQ(MenuRowNamed("mnuRefresh").Run, Refresh);
    EXPECT_EQ(MenuRowNamed("mnuForecast").Run, Forecast);
    EXPECT_EQ(MenuRowNamed("mnuCorrelation").Run, Correlation);
    EXPECT_EQ(MenuRowNamed("mnuPreferences").Run, Preferences);
    EXPECT_EQ(MenuRowNamed("mnuLegend").Run, Legend);
    EXPECT_EQ(MenuRowNamed("mnuHelpUserManual").Run, HelpUserManual);
    EXPECT_EQ(MenuRowNamed("mnuHelpAbout").Run, HelpAbout);
}

TEST(MenuTable, EveryItemHasACommand) {
    for (MenuRow const& row : MenuTable()) {
        bool const isItem = row.Caption != SeparatorCaption && Outline(row.Name, "").empty();
        EXPECT_EQ(row.Run != nullptr, isItem) << row.Name;
    }
}

TEST(MenuTable, ImagesStandForTheirItems) {
    std::vector<std::string> images;
    for (ToolRow const& tool : ToolTable()) {
        images.push_back(std::string(tool.Name) + " " + std::string(tool.MenuName));
        EXPECT_EQ(MenuRowNamed(tool.MenuName).Name, tool.MenuName);
        EXPECT_FALSE(tool.ToolTip.empty());
    }
    EXPECT_THAT(images, testing::ElementsAre("imgOpen mnuFileOpen", "imgClose mnuFileClose",
                                             "imgEdit mnuFileEdit", "imgConvert mnuFileConvertCustom",
                                             "imgPrint mnuFilePrint", "imgProperties mnuFileProperties"));
}

} // namespace
} // namespace quorvex::app
