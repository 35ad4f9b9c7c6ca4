// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

namespace quorvex::platform::qt {

// Where the running program keeps its files, ending with a separator, and what its executable is called
// without folder and ".exe".
struct ProgramPlace {
    std::string Folder;
    std::string ExecutableName;
};

// Puts what a new folder of the user's own begins with into it.
using FillFolder = std::function<void(std::string const& folder)>;

// The executable's own folder.
[[nodiscard]] ProgramPlace ExecutablePlace();

// The folder of the executable when it can be written and is not the "bin" of an installation, where an
// administrator can write as well; otherwise a folder of the user's own. When that is missing it is made and
// filled: it is there as a whole or not at all. Raises "Path not found" when it cannot be made, and the
// faults of filling it.
[[nodiscard]] ProgramPlace FindProgramPlace(FillFolder const& fill);

// The same for an executable of this path and this folder of the user's own.
[[nodiscard]] ProgramPlace PlaceOf(std::string const& executablePath, std::string const& ownFolder,
                                   FillFolder const& fill);

} // namespace quorvex::platform::qt
