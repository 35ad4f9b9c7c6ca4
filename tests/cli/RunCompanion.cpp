// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#ifdef _WIN32
#include "platform/windows/StartedProgram.h"
#else
#include <cstdlib>
#include <sys/wait.h>
#endif

namespace quorvex::tests {

namespace {

#ifdef _WIN32

// Not by the system's shell, which would need a console for each run.
int ExitStatusOf(std::vector<std::string> const& arguments, TemporaryFolder const& folder) {
    return RunProgram(
        QUORVEX_COMPANION, arguments,
        {.Input = folder.File("input"), .Output = folder.File("output"), .Errors = folder.File("errors")});
}

#else

// The text as one word of the system's shell, which takes nothing in it for anything else.
std::string Quoted(std::string const& text) {
    return '\'' + text + '\'';
}

int ExitStatusOf(std::vector<std::string> const& arguments, TemporaryFolder const& folder) {
    std::string command = Quoted(QUORVEX_COMPANION);
    for (std::string const& argument : arguments) {
        command += ' ' + Quoted(argument);
    }
    command += " <" + Quoted(folder.File("input")) + " >" + Quoted(folder.File("output")) + " 2>" +
               Quoted(folder.File("errors"));
    int const status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

} // namespace

CompanionRun RunCompanion(std::vector<std::string> const& arguments, std::string const& input) {
    TemporaryFolder const folder;
    folder.Write("input", input);
    CompanionRun run;
    run.ExitStatus = ExitStatusOf(arguments, folder);
    run.Output = folder.Read("output");
    run.Errors = folder.Read("errors");
    return run;
}

void ExpectWrongUsage(std::vector<std::vector<std::string>> const& runs) {
    for (auto const& arguments : runs) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 2);
        EXPECT_EQ(run.Output, "");
        EXPECT_NE(run.Errors, "");
    }
}

} // namespace quorvex::tests
