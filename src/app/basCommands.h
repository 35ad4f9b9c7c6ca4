// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The commands of the main window, without the window: what each does to the program's data and what it tells
// the user. Every command runs under an error trap; a fault that a command does not report otherwise is shown
// as its description. What looks odd in them is meant: docs/behaviour.md tells why.
#pragma once

#include "app/Program.h"

#include <string_view>

namespace quorvex::app {

void FileOpen(Program& program, Services& services);

// Leaves the charts of the cycles as they are: they do not depend on the quotes (docs/behaviour.md).
void FileClose(Program& program, Services& services);

// Opens the quote editor. Saving under another name there changes the name of the open file.
void FileEdit(Program& program, Services& services);

void FileSaveAs(Program& program, Services& services);

// Open the converters.
void FileConvertCSI(Program& program, Services& services);
void FileConvertBarChart(Program& program, Services& services);
void FileConvertCustom(Program& program, Services& services);

// Prints the chart page once, or says that no quotes are open; then prints it once more in either case: see
// docs/behaviour.md. An error ends the command.
void FilePrint(Program& program, Services& services);

// Starts the system's printer settings.
void FilePrintSetup(Program& program, Services& services);

// Shows the summary of the quotes.
void FileProperties(Program& program, Services& services);

void FileExit(Program& program, Services& services);

void ParametersNew(Program& program, Services& services);
void ParametersOpen(Program& program, Services& services);
void ParametersSave(Program& program, Services& services);
void ParametersSaveAs(Program& program, Services& services);

// Nothing: the item is there and has no action (docs/behaviour.md).
void ParametersPrint(Program& program, Services& services);

// Fits 1, 2 or 3 cycles to the moving average and takes them up from the grid.
void ParametersAutomate(int cycleCount, Program& program, Services& services);

// Reports the correlation of composite and moving average.
void Correlation(Program& program, Services& services);

void Refresh(Program& program, Services& services);

// Opens the forecast window when there is something to forecast; when not, tells the user.
void Forecast(Program& program, Services& services);

// Shows the preferences, then draws everything with what they are.
void Preferences(Program& program, Services& services);

void Legend(Program& program, Services& services);

// Shows a document of the program folder.
void ShowHelp(std::string_view helpFileName, Program& program, Services& services);

void HelpAbout(Program& program, Services& services);

// Tells where the manual is.
void HelpUserManual(Program& program, Services& services);

} // namespace quorvex::app
