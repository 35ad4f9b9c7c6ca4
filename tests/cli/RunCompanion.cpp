// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace quorvex::tests {

namespace {

// The text as one word of the system's shell, which takes nothing in it for anything else.
std::string Quoted(std::string const& text) {
#ifdef _WIN32
    // The program takes a backslash in front of a mark for the mark itself.
    return '"' + text + (text.ends_with('\\') ? "\\\"" : "\"");
#else
    return '\'' + text + '\'';
#endif
}

} // namespace

CompanionRun RunCompanion(std::vector<std::string> const& arguments, std::string const& input) {
    TemporaryFolder const folder;
    folder.Write("input", input);
    std::string command = Quoted(QUORVEX_COMPANION);
    for (std::string const& argument : arguments) {
        command += ' ' + Quoted(argument);
    }
    command += " <" + Quoted(folder.File("input")) + " >" + Quoted(folder.File("output")) + " 2>" +
               Quoted(folder.File("errors"));
#ifdef _WIN32
    command = '"' + command + '"'; // the outermost pair goes to the shell
#endif
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
