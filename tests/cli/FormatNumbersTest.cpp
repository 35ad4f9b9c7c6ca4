// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

TEST(FormatNumbers, PrintsOneResultALine) {
    auto const run = RunCompanion({"format", "####0.00", "245.255", "1e3", "1,234.5"});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Output, "245.26\n1000.00\n1234.50\n");
    EXPECT_EQ(run.Errors, "");
}

TEST(FormatNumbers, TakesNegativeNumbersAndFormatsThatLookLikeOptions) {
    EXPECT_EQ(RunCompanion({"format", "##0", "-2.5", "-.5"}).Output, "-3\n-1\n");
    EXPECT_EQ(RunCompanion({"format", "-0", "5"}).Output, "-5\n");
    EXPECT_EQ(RunCompanion({"format", "--0", "5"}).Output, "--5\n");
}

TEST(FormatNumbers, TakesTheConventionalEndOfOptionsBehindTheFormat) {
    EXPECT_EQ(RunCompanion({"format", "##0", "--", "-7"}).Output, "-7\n");
}

TEST(FormatNumbers, TakesAnEmptyFormat) {
    EXPECT_EQ(RunCompanion({"format", "", "245.50", "100000"}).Output, "245.5\n100000\n");
}

TEST(FormatNumbers, RefusesWhatIsNoNumberAndPrintsTheOthers) {
    auto const run = RunCompanion({"format", "##0", "12abc", "7", "1e999"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "7\n");
    EXPECT_EQ(run.Errors, "quorvex-cli: 12abc: Type mismatch\nquorvex-cli: 1e999: Overflow\n");
}

} // namespace
} // namespace quorvex::tests
