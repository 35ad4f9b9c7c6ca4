// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The program-wide data.
#pragma once

#include "chart/ChartFaults.h"
#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"
#include "platform/Canvas.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Launcher.h"
#include "platform/MainWindow.h"
#include "platform/MousePointer.h"
#include "platform/PendingMessages.h"
#include "platform/Printer.h"
#include "platform/Profile.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

#include <string>
#include <string_view>

namespace quorvex::app {

inline constexpr std::string_view ProgramVersion = "2.0.b";

// Owned by whoever runs the program. It is large: keep it off the stack.
struct Program {
    settings::Settings Settings;
    quotes::QuoteSeries Quotes;
    cycles::CycleParameterSet Cycles;
    cycles::CycleCurves Curves;
    quotes::PriceScale PriceScale;
    chart::ChartFaults Faults; // of the last redraw
    std::string HelpFileName;  // the document that the help window shows, without folder
    std::string ProgramFolder; // where the program keeps its files
};

// The four chart boxes.
struct ChartBoxes {
    platform::Canvas& Pic1; // quotes and moving average
    platform::Canvas& Pic2; // single cycles
    platform::Canvas& Pic3; // composite
    platform::Canvas& Pic4; // residual
};

// The outside that commands work with.
struct Services {
    cycles::ParameterGrid& Grid;
    ChartBoxes Boxes;
    platform::Dialogs& Dialogs;
    platform::Files& Files;
    platform::PendingMessages& Pending;
    platform::Launcher& Launcher;
    platform::MainWindow& Window;
    platform::PrintQueue& Printing;
    platform::MousePointer& Pointer;
};

// Brings the program to its state after start-up: zeros in the grid, the settings of the profile, the
// defaults of the program folder for those that it does not have.
void StartUp(Program& program, cycles::ParameterGrid& grid, platform::Profile const& profile,
             std::string_view programFolder);

} // namespace quorvex::app
