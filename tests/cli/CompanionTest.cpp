// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

TEST(Companion, TellsItsVersion) {
    auto const run = RunCompanion({"--version"});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Output, "quorvex-cli 2.0.b\n");
    EXPECT_EQ(run.Errors, "");
}

TEST(Companion, HelpsOnItselfAndOnEachSubCommand) {
    auto const run = RunCompanion({"--help"});
    EXPECT_EQ(run.ExitStatus, 0);
    for (auto const* command : {"analyse", "batch", "chart", "check", "convert", "evaluate", "import", "list",
                                "print", "search", "format"}) {
        EXPECT_NE(run.Output.find(command), std::string::npos);
        auto const help = RunCompanion({command, "--help"});
        EXPECT_EQ(help.ExitStatus, 0);
        EXPECT_NE(help.Output.find("Usage: quorvex-cli " + std::string(command)), std::string::npos);
        EXPECT_EQ(help.Errors, "");
    }
}

TEST(Companion, EndsWithTwoOnWrongUsage) {
    ExpectWrongUsage({{},
                      {"nonsense"},
                      {"--nonsense"},
                      {"analyse"},
                      {"analyse", "a.txt", "--automate", "4"},
                      {"analyse", "a.txt", "--automate", "0"},
                      {"analyse", "a.txt", "--automate", "x"},
                      {"analyse", "a.txt", "b.txt"},
                      {"analyse", "a.txt", "--nonsense"},
                      {"analyse", "a.txt", "--start", "13/45/02"},
                      {"analyse", "a.txt", "--end", ""},
                      {"analyse", "a.txt", "--automate", "1", "--parameters", "p.dat"},
                      {"check"},
                      {"check", "a.txt", "b.txt"},
                      {"list", "a.txt"},
                      {"list", "-o", "a.pdf"},
                      {"format"},
                      {"format", "0"}});
}

#ifndef _WIN32

TEST(Companion, NamesTheFileThatCannotBeRead) {
    TemporaryFolder const folder;
    std::string const page = folder.File("charts.json");
    for (std::vector<std::string> const& arguments :
         {std::vector<std::string>{"analyse", "/dev/zero"},
          {"check", "/dev/zero"},
          {"chart", "/dev/zero", "-o", page},
#ifdef QUORVEX_PICTURES
          {"list", "/dev/zero", "-o", folder.File("page.pdf")},
          {"print", "/dev/zero", "-o", folder.File("page.pdf")},
#endif
          {"convert", "csi", GoldenPath("quotes/q060.txt"), "/dev/zero"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 1);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, "quorvex-cli: /dev/zero: Permission denied\n");
    }
    EXPECT_EQ(folder.EntryCount(), 0);
}

#endif

} // namespace
} // namespace quorvex::tests
