// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/Program.h"

namespace quorvex::app {

void StartUp(Program& program, cycles::ParameterGrid& grid, std::string_view programFolder) {
    program.ProgramFolder = programFolder;
    program.Settings = prefs::DefaultSettings(programFolder);
    cycles::ClearGrid(grid);
}

} // namespace quorvex::app
