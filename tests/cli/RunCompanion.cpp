// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"

#include "support/TemporaryFolder.h"

#include <cstdlib>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace quorvex::tests {

CompanionRun RunCompanion(std::vector<std::string> const& arguments) {
    TemporaryFolder const folder;
    std::string command = '"' + std::string(QUORVEX_COMPANION) + '"';
    for (std::string const& argument : arguments) {
        command += " \"" + argument + '"';
    }
    command += " >\"" + folder.File("output") + "\" 2>\"" + folder.File("errors") + '"';
    int const status = std::system(command.c_str());
    CompanionRun run;
#ifdef _WIN32
    run.ExitStatus = status;
#else
    run.ExitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
    run.Output = folder.Read("output");
    run.Errors = folder.Read("errors");
    return run;
}

} // namespace quorvex::tests
