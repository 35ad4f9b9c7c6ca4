// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunningProgram.h"

#include "app/basCommands.h"

#include <utility>

namespace quorvex::app {

RunningProgram::RunningProgram(std::vector<platform::fake::MemoryProfile::Entry> settings) {
    Profile.Entries = std::move(settings);
    StartUp(*Data, Grid, Profile, "C:\\Quorvex");
}

void RunningProgram::Open(std::string const& name, std::string const& text) {
    Files.Contents["C:\\Quorvex\\" + name] = text;
    Dialogs.Choices = {name};
    FileOpen(*Data, Outside);
}

void RunningProgram::TypeCycle(int cycle, std::string const& weight, std::string const& period) {
    Grid.SetText(cycles::Parameter::Weight, cycle, weight);
    Grid.SetText(cycles::Parameter::Period, cycle, period);
}

} // namespace quorvex::app
