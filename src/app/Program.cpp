// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/Program.h"

#include "settings/basProfiles.h"

namespace quorvex::app {

chart::ChartContents ContentsOf(Program const& program) {
    return {program.Quotes, program.Settings, program.Cycles, program.Curves};
}

void StartUp(Program& program, cycles::ParameterGrid& grid, platform::Profile const& profile,
             std::string_view programFolder) {
    program.ProgramFolder = programFolder;
    cycles::ClearGrid(grid);
    settings::ReadProfile(program.Settings, profile, programFolder);
}

} // namespace quorvex::app
