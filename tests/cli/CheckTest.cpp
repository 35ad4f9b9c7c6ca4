// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

void ExpectRefused(std::string const& path, std::string const& message) {
    auto const run = RunCompanion({"check", path});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "quorvex-cli: " + path + ": " + message + "\n");
}

// So many good days and these lines behind them.
std::string DaysAnd(std::string const& lines) {
    return QuoteLines(30) + lines;
}

TEST(Check, SaysNothingOfGoodQuotes) {
    for (auto const* name : {"quotes/q025.txt", "quotes/q500.txt"}) {
        SCOPED_TRACE(name);
        auto const run = RunCompanion({"check", GoldenPath(name)});
        EXPECT_EQ(run.ExitStatus, 0);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, "");
    }
}

TEST(Check, LooksAtTheFileAsLoaded) {
    TemporaryFolder const folder;
    // The reader drops these lines.
    folder.Write("a.txt", DaysAnd("13/45/02, 1, 1, 1, 1, 0, 0\r\n03/15/02, 0, 1, 1, 1, 0, 0\r\n"));
    EXPECT_EQ(RunCompanion({"check", folder.File("a.txt")}).ExitStatus, 0);
}

TEST(Check, RefusesADateThatComesTwice) {
    TemporaryFolder const folder;
    folder.Write("a.txt", DaysAnd("03/15/02, 1, 1, 1, 1, 0, 0\r\n3/15/2002, 2, 2, 2, 2, 0, 0\r\n"));
    ExpectRefused(folder.File("a.txt"), "Invalid date entry on row 31");
}

TEST(Check, RefusesPricesBelowZero) {
    TemporaryFolder const folder;
    folder.Write("a.txt", DaysAnd("03/15/02, 1, -1, -1, 1, 0, 0\r\n"));
    ExpectRefused(folder.File("a.txt"), "Invalid data entry on row 31");
}

TEST(Check, RoundsThroughTheFormat) {
    TemporaryFolder const folder;
    folder.Write("a.txt", DaysAnd("03/15/02, 0.0091, 0.0092, 0.0041, 0.0091, 0, 0\r\n"));
    ExpectRefused(folder.File("a.txt"), "Invalid data entry on row 31");
    EXPECT_EQ(RunCompanion({"check", folder.File("a.txt"), "--format", "####0.0000"}).ExitStatus, 0);
}

TEST(Check, RefusesWhatTheReaderRefuses) {
    ExpectRefused(GoldenPath("quotes/few24.txt"),
                  "A minimum of 25 daily quotes is required to perform cyclical analysis");
    TemporaryFolder const folder;
    ExpectRefused(folder.File("missing.txt"), "File not found");
    ExpectRefused(folder.File("missing/a.txt"), "Path not found");
}

TEST(Check, ChangesNothing) {
    TemporaryFolder const folder;
    std::string const content = DaysAnd("01/01/99, 1, 1, 1, 1, 0, 0\r\n");
    folder.Write("a.txt", content);
    EXPECT_EQ(RunCompanion({"check", folder.File("a.txt")}).ExitStatus, 0);
    EXPECT_EQ(folder.Read("a.txt"), content);
    EXPECT_EQ(folder.EntryCount(), 1);
}

} // namespace
} // namespace quorvex::tests
