// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The program-wide data.
#pragma once

#include "app/MainWindow.h"
#include "chart/ChartContents.h"
#include "chart/basCharts.h"
#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"
#include "import/ImportSource.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Launcher.h"
#include "platform/MousePointer.h"
#include "platform/PendingMessages.h"
#include "platform/Printer.h"
#include "platform/Profile.h"
#include "platform/Registry.h"
#include "quotes/QuoteSeries.h"
#include "search/CycleModel.h"
#include "settings/Settings.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvex::app {

inline constexpr std::string_view ProgramVersion = "2.0.b";

// Owned by whoever runs the program. It is large: keep it off the stack.
struct Program {
    settings::Settings Settings;
    quotes::QuoteSeries Quotes;
    cycles::CycleParameterSet Cycles;
    cycles::CycleCurves Curves; // of the last redraw
    std::optional<search::CycleModel>
        FoundModel;                   // what the search window was left with, nothing after Cancel
    imports::ImportSource ImportFrom; // the table that the import window shows
    std::optional<imports::ImportedFile> Imported; // what it has written, nothing after Close
    std::string HelpFileName;                      // the document that the help window shows, without folder
    std::string ProgramFolder;                     // where the program keeps its files
};

// What the charts are drawn and read from.
[[nodiscard]] chart::ChartContents ContentsOf(Program const& program);

// What the program needs of the system that it runs on.
struct Host {
    platform::Profile& Profile;
    platform::Files& Files;
    platform::Launcher& Launcher;
    platform::Registry const& Registry;
    platform::PrintQueue& Printing;
    platform::MousePointer& Pointer;
};

// The outside that commands work with: the system, and the controls of the main window.
struct Services {
    Host System;
    cycles::ParameterGrid& Grid;
    chart::ChartBoxes Boxes;
    platform::Dialogs& Dialogs;
    platform::PendingMessages& Pending;
    MainWindow& Window;
};

// Brings the program to its state after start-up: zeros in the grid, the settings of the profile, the
// defaults of the program folder for those that it does not have.
void StartUp(Program& program, cycles::ParameterGrid& grid, platform::Profile const& profile,
             std::string_view programFolder);

} // namespace quorvex::app
