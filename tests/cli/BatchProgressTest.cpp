// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchProgress.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quorvex::cli {
namespace {

using std::chrono::duration;

TEST(BatchProgress, TellsShareRateAndWhatIsLeft) {
    std::string const half = '[' + std::string(20, '#') + std::string(20, '.') + "] 50 %, ";
    BatchCounts counts{.Before = 0, .Now = 5000, .Refused = 0, .Whole = 10'000};
    EXPECT_EQ(ProgressText(counts, duration<double>(2)),
              half + "5000 of 10000 files, 2500 a second, 2 s left");
    counts = {.Before = 4000, .Now = 1000, .Refused = 0, .Whole = 10'000};
    EXPECT_EQ(ProgressText(counts, duration<double>(2000)),
              half + "5000 of 10000 files, 0.5 a second, 2 h 46 min left");
    counts.Whole.reset();
    EXPECT_EQ(ProgressText(counts, duration<double>(10)), "5000 files, 100 a second");
    counts = {.Before = 0, .Now = 0, .Refused = 0, .Whole = 1};
    EXPECT_EQ(ProgressText(counts, duration<double>(0)),
              '[' + std::string(40, '.') + "] 0 %, 0 of 1 file, 0.0 a second");
}

TEST(BatchProgress, DoesNotPassAHundredPercentWhenFilesAreAdded) {
    BatchCounts const counts{.Before = 0, .Now = 11, .Refused = 0, .Whole = 10};
    EXPECT_EQ(ProgressText(counts, duration<double>(1)),
              '[' + std::string(40, '#') + "] 100 %, 11 of 11 files, 11 a second, 0 s left");
}

TEST(BatchProgress, SumsUp) {
    BatchCounts counts{.Before = 0, .Now = 100, .Refused = 2, .Whole = {}};
    EXPECT_EQ(Summary(counts, duration<double>(4), true), "100 files; 2 with a message; 4.0 s, 25 a second");
    counts.Before = 1;
    EXPECT_EQ(Summary(counts, duration<double>(200), false),
              "Interrupted: 101 files, 1 of them before; 2 with a message; 200.0 s, 0.5 a second");
    EXPECT_EQ(Summary({}, duration<double>(0), true), "0 files; 0 with a message; 0.0 s");
}

} // namespace
} // namespace quorvex::cli
