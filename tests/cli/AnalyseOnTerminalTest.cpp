// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "FakeConsole.h"
#include "cli/SubCommands.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace quorvex::cli {
namespace {

std::string OutputOf(bool isTerminal, std::vector<std::string> reversedArguments) {
    CLI::App app("test", "quorvex-cli");
    app.allow_windows_style_options(false);
    auto status = ExitStatus::Usage;
    FakeConsole const console({.IsTerminal = isTerminal, .Width = 60});
    AddAnalyse(app, console, status);
    testing::internal::CaptureStdout();
    app.parse(reversedArguments);
    EXPECT_EQ(status, ExitStatus::Success);
    return testing::internal::GetCapturedStdout();
}

TEST(AnalyseOnTerminal, EndsWithAChartOfItsWidth) {
    auto const output = OutputOf(true, {"2", "--automate", tests::GoldenPath("quotes/q250.txt"), "analyse"});
    auto const axis = output.rfind('+');
    ASSERT_NE(axis, std::string::npos);
    auto const begin = output.rfind('\n', axis) + 1;
    EXPECT_EQ(output.find('\n', axis) - begin, 59U);
    EXPECT_NE(output.find("* close   o composite   @ both   01/11/99 to 01/06/00 and 25 days on\n"),
              std::string::npos);
}

TEST(AnalyseOnTerminal, HasNoChartElsewhereNorInJson) {
    auto const file = tests::GoldenPath("quotes/q250.txt");
    EXPECT_EQ(OutputOf(false, {file, "analyse"}).find("* close"), std::string::npos);
    EXPECT_EQ(OutputOf(true, {"--json", file, "analyse"}).find("* close"), std::string::npos);
}

} // namespace
} // namespace quorvex::cli
