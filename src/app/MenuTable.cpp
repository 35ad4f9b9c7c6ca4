// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/MenuTable.h"

#include "app/basCommands.h"
#include "app/basCycleCommands.h"
#include "app/basImportCommands.h"

#include <algorithm>
#include <array>

namespace quorvex::app {

namespace {

template <int CycleCount>
void Automate(Program& program, Services& services) {
    ParametersAutomate(CycleCount, program, services);
}

void HelpReadMe(Program& program, Services& services) {
    ShowHelp("Quorvex-ReadMe.rtf", program, services);
}

void HelpQuickStart(Program& program, Services& services) {
    ShowHelp("Quorvex-QuickStart.rtf", program, services);
}

void HelpIndex(Program& program, Services& services) {
    ShowHelp("Quorvex-Index.rtf", program, services);
}

void HelpCommoditySymbols(Program& program, Services& services) {
    ShowHelp("CommoditySymbols.rtf", program, services);
}

constexpr auto Menu = std::to_array<MenuRow>({
    {"mnuFile", "&File", ""},
    {"mnuFileOpen", "&Open", "mnuFile", FileOpen},
    {"mnuFileClose", "&Close", "mnuFile", FileClose},
    {"Sep1000", SeparatorCaption, "mnuFile"},
    {"mnuFileEdit", "&Edit", "mnuFile", FileEdit},
    {"mnuFileSaveAs", "Save &As...", "mnuFile", FileSaveAs},
    {"Sep2000", SeparatorCaption, "mnuFile"},
    {"mnuFileConvert", "&Con&vert", "mnuFile"},
    {"mnuFileConvertCSI", "Commodity Systems, Inc.", "mnuFileConvert", FileConvertCSI},
    {"mnuFileConvertBARCHART", "Barchart", "mnuFileConvert", FileConvertBarChart},
    {"mnuSep393", SeparatorCaption, "mnuFileConvert"},
    {"mnuFileConvertCustom", "Custom", "mnuFileConvert", FileConvertCustom},
    {"Sep3000", SeparatorCaption, "mnuFile"},
    {"mnuFilePrint", "&Print", "mnuFile", FilePrint},
    {"mnuFilePrintSetup", "Print Set&up", "mnuFile", FilePrintSetup},
    {"mnuFileSep", SeparatorCaption, "mnuFile"},
    {"mnuFileProperties", "P&roperties", "mnuFile", FileProperties},
    {"mnuFileSep7", SeparatorCaption, "mnuFile"},
    {"mnuFileExit", "E&xit", "mnuFile", FileExit},
    {"mnuParameters", "&Parameters", ""},
    {"mnuParametersNew", "&New", "mnuParameters", ParametersNew},
    {"mnuParametersOpen", "&Open", "mnuParameters", ParametersOpen},
    {"mnuParametersSep11", SeparatorCaption, "mnuParameters"},
    {"mnuParametersSave", "&Save", "mnuParameters", ParametersSave},
    {"mnuParametersSaveAs", "Save &As...", "mnuParameters", ParametersSaveAs},
    {"mnuQuotesSep1", SeparatorCaption, "mnuParameters"},
    {"mnuParametersAutomate", "&Automate", "mnuParameters"},
    {"mnuParametersAutomate1", "&One Cycle", "mnuParametersAutomate", &Automate<1>},
    {"mnuParametersAutomate2", "&Two Cycles", "mnuParametersAutomate", &Automate<2>},
    {"mnuParametersAutomate3", "T&hree Cycles", "mnuParametersAutomate", &Automate<3>},
    {"mnuQuotesSep2", SeparatorCaption, "mnuParameters"},
    {"mnuParametersPrint", "&Print", "mnuParameters", ParametersPrint},
    {"mnuRefresh", "&Refresh", "", Refresh},
    {"mnuForecast", "F&orecast", "", Forecast},
    {"mnuCorrelation", "&Correlation", "", Correlation},
    {"mnuPreferences", "Pr&eferences", "", Preferences},
    {"mnuLegend", "&Legend", "", Legend},
    {"mnuHelp", "&Help", ""},
    {"mnuHelpReadMe", "&Read Me", "mnuHelp", HelpReadMe},
    {"mnuHelpQuickStart", "&Quick Start", "mnuHelp", HelpQuickStart},
    {"mnuHelpUserManual", "&User Manual", "mnuHelp", HelpUserManual},
    {"mnuHelpSep11", SeparatorCaption, "mnuHelp"},
    {"mnuHelpIndex", "&Index", "mnuHelp", HelpIndex},
    {"mnuHelpCommoditySymbols", "&Commodity Symbols", "mnuHelp", HelpCommoditySymbols},
    {"mnuHelpSep", SeparatorCaption, "mnuHelp"},
    {"mnuHelpAbout", "&About Quorvex", "mnuHelp", HelpAbout},
});

constexpr auto ChartMenu = std::to_array<MenuRow>({
    {"mnuChartImport", "&Import...", "Pic1", ImportChosenTable},
    {"mnuChartFindCycles", "&Find Best Cycles...", "Pic2", FindBestCycles},
    {"mnuChartWriteParameters", "&Write Parameter File...", "Pic2", WriteParameterFile},
    {"mnuChartFindCycles", "&Find Best Cycles...", "Pic3", FindBestCycles},
    {"mnuChartTestForecast", "&Test Forecast...", "Pic3", TestForecast},
    {"mnuChartWriteParameters", "&Write Parameter File...", "Pic3", WriteParameterFile},
});

constexpr auto Tools = std::to_array<ToolRow>({
    {"imgOpen", "Open", "mnuFileOpen"},
    {"imgClose", "Close", "mnuFileClose"},
    {"imgEdit", "Edit", "mnuFileEdit"},
    {"imgConvert", "Convert", "mnuFileConvertCustom"},
    {"imgPrint", "Print", "mnuFilePrint"},
    {"imgProperties", "Properties", "mnuFileProperties"},
});

} // namespace

std::span<MenuRow const> MenuTable() {
    return Menu;
}

MenuRow const& MenuRowNamed(std::string_view name) {
    return *std::ranges::find(Menu, name, &MenuRow::Name);
}

std::span<MenuRow const> ChartMenuTable() {
    return ChartMenu;
}

MenuRow const& ChartMenuRowNamed(std::string_view name) {
    return *std::ranges::find(ChartMenu, name, &MenuRow::Name);
}

std::span<ToolRow const> ToolTable() {
    return Tools;
}

} // namespace quorvex::app
