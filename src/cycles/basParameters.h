// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The parameter file and the Parameters commands, without their windows. docs/formats/parameter-file.md
// describes the format.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "text/basFields.h"

#include <string>
#include <string_view>

namespace quorvex::cycles {

// The parameter files of the program folder.
inline constexpr std::string_view ParameterFilePattern = "*.dat";

// Reads cycles 1.. in order, four numbers each; cycles beyond the last line keep what they held. Raises
// "Subscript out of range" at an eleventh cycle and "Input past end of file" inside a cycle; the cycles
// stored before stay.
void ReadParameters(text::ByteSource& source, CycleParameterSet& set);

// Reads the parameter file into the set as above. A fault is shown and ends the reading; returns whether
// there was none.
bool ReadParameterFile(std::string const& path, CycleParameterSet& set, platform::Files const& files,
                       platform::Dialogs& dialogs);

// What the grid holds as the text of a parameter file: all ten cycles, so that reading it leaves nothing of
// what was there before. Cells are taken by the leading-number rule.
[[nodiscard]] std::string ParameterFileText(ParameterGrid const& grid);

// Lets the user choose among the parameter files of the program folder, reads the one chosen and shows the
// set in the grid. Cancelling forgets the current file's name and leaves set and grid alone.
void OpenParameters(CycleParameterSet& set, ParameterGrid& grid, std::string_view programFolder,
                    platform::Files const& files, platform::Dialogs& dialogs);

// Checks that there is something to save, and writes no file (docs/behaviour.md).
void SaveParameters(ParameterGrid const& grid, platform::Dialogs& dialogs);

// As SaveParameters, asking for a name until one is good or empty, and reporting the current name as saved.
void SaveParametersAs(CycleParameterSet const& set, ParameterGrid const& grid, platform::Dialogs& dialogs);

// Writes what the grid holds into a parameter file that the user names, first of all in the program folder,
// where OpenParameters finds it; ".dat" completes a name that lacks it, and an existing file is replaced only
// when the user agrees. Refuses like SaveParameters. Raises the faults of Files.
void WriteParameterFile(CycleParameterSet const& set, ParameterGrid const& grid,
                        std::string_view programFolder, platform::Files& files, platform::Dialogs& dialogs);

// Whether a name is one that parameters can be saved under: five characters at least, ending with ".DAT" in
// either case.
[[nodiscard]] bool IsParameterFileName(std::string_view name);

// Offers to save what the grid holds, then clears grid, set and composite and forgets the file's name.
// Returns false, with nothing cleared, when the user cancelled.
bool NewParameters(CycleParameterSet& set, CycleCurve& compositeCurve, ParameterGrid& grid,
                   platform::Dialogs& dialogs);

} // namespace quorvex::cycles
