// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The ways in for quotes that are no quote file of the program yet, without the window.
#pragma once

#include "app/Program.h"

#include <span>
#include <string>

namespace quorvex::app {

// Lets the user choose a file, opens the import window for it, and opens the quote file that it leaves.
void ImportChosenTable(Program& program, Services& services);

// Opens the import window for each of these files in turn; one that is a quote file of the program needs no
// import. Whenever nothing was imported of a table and files are left, asks whether to go on. At the end the
// last quote file is opened, and its folder becomes the data folder.
void TakeFiles(std::span<std::string const> paths, Program& program, Services& services);

// Opens the import window for a table that was pasted, and opens the quote file that it leaves.
void TakeTable(std::string text, Program& program, Services& services);

} // namespace quorvex::app
