// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace quorvex::platform::qt {

// Where the running program keeps its files, ending with a separator, and what its executable is called
// without folder and extension.
struct ProgramPlace {
    std::string Folder;
    std::string ExecutableName;
    bool IsNew = false; // the folder was made just now and is empty
};

// The folder of the executable when it can be written; otherwise a folder of the user's own, which is made
// when it is missing. Raises "Path not found" when it cannot be made.
[[nodiscard]] ProgramPlace FindProgramPlace();

// The same for an executable of this path and this folder of the user's own.
[[nodiscard]] ProgramPlace PlaceOf(std::string const& executablePath, std::string const& ownFolder);

// Makes the folder the current one.
void EnterFolder(std::string const& folder);

} // namespace quorvex::platform::qt
