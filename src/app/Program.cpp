// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/Program.h"

#include "settings/basProfiles.h"

namespace quorvex::app {

void StartUp(Program& program, cycles::ParameterGrid& grid, platform::Profile const& profile,
             std::string_view programFolder) {
    program.ProgramFolder = programFolder;
    cycles::ClearGrid(grid);
    settings::ReadProfile(program.Settings, profile, programFolder);
}

} // namespace quorvex::app
