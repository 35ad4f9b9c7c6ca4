// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RecordingWindow.h"
#include "app/Program.h"
#include "platform/RecordingCanvas.h"
#include "platform/fake/FailingFiles.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/MemoryProfile.h"
#include "platform/fake/RecordingLauncher.h"
#include "platform/fake/RecordingPrinter.h"
#include "platform/fake/ScriptedDialogs.h"

#include <memory>
#include <string>
#include <vector>

namespace quorvex::app {

// A started program in a world of the test's own: files in memory, scripted dialogs, a grid of texts.
class RunningProgram {
public:
    // The settings are what its INI file holds.
    explicit RunningProgram(std::vector<platform::fake::MemoryProfile::Entry> settings = {});

    // Puts the file into the data folder and opens it through the chooser.
    void Open(std::string const& name, std::string const& text);

    // Types weight and period of a cycle.
    void TypeCycle(int cycle, std::string const& weight, std::string const& period);

    std::unique_ptr<Program> Data = std::make_unique<Program>();
    cycles::TextGrid Grid;
    platform::fake::MemoryFiles Files;
    platform::fake::FailingFiles Failing{Files}; // what the program has of them
    platform::fake::MemoryProfile Profile;
    platform::fake::ScriptedDialogs Dialogs;
    platform::NoPendingMessages Pending;
    platform::RecordingCanvas Pic1{7000, 2500};
    platform::RecordingCanvas Pic2{7000, 1500};
    platform::RecordingCanvas Pic3{7000, 1500};
    platform::RecordingCanvas Pic4{7000, 1500};
    platform::fake::RecordingLauncher Launcher;
    RecordingWindow Window;
    platform::fake::RecordingPrintQueue Printing;
    platform::NoRegistry Registry;
    Services Outside{.System = {Profile, Failing, Launcher, Registry, Printing, Printing},
                     .Grid = Grid,
                     .Boxes = {Pic1, Pic2, Pic3, Pic4},
                     .Dialogs = Dialogs,
                     .Pending = Pending,
                     .Window = Window};
};

} // namespace quorvex::app
