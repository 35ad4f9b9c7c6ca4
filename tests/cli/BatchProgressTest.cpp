// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/BatchProgress.h"

#include "FakeConsole.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <string>

namespace quorvex::cli {
namespace {

using std::chrono::duration;

constexpr std::size_t Wide = 200;

TEST(BatchProgress, TellsShareRateAndWhatIsLeft) {
    std::string const half = '[' + std::string(20, '#') + std::string(20, '.') + "] 50 %, ";
    BatchCounts counts{.Before = 0, .Now = 5000, .Refused = 0, .Whole = 10'000};
    EXPECT_EQ(ProgressText(counts, duration<double>(2), Wide),
              half + "5000 of 10000 files, 2500 a second, 2 s left");
    counts = {.Before = 4000, .Now = 1000, .Refused = 0, .Whole = 10'000};
    EXPECT_EQ(ProgressText(counts, duration<double>(2000), Wide),
              half + "5000 of 10000 files, 0.5 a second, 2 h 46 min left");
    counts.Whole.reset();
    EXPECT_EQ(ProgressText(counts, duration<double>(10), Wide), "5000 files, 100 a second");
    counts = {.Before = 0, .Now = 0, .Refused = 0, .Whole = 1};
    EXPECT_EQ(ProgressText(counts, duration<double>(0), Wide),
              '[' + std::string(40, '.') + "] 0 %, 0 of 1 file, 0.0 a second");
}

TEST(BatchProgress, DoesNotPassAHundredPercentWhenFilesAreAdded) {
    BatchCounts const counts{.Before = 0, .Now = 11, .Refused = 0, .Whole = 10};
    EXPECT_EQ(ProgressText(counts, duration<double>(1), Wide),
              '[' + std::string(40, '#') + "] 100 %, 11 of 11 files, 11 a second, 0 s left");
}

TEST(BatchProgress, FitsIntoTheTerminal) {
    BatchCounts counts{.Before = 0, .Now = 50'000, .Refused = 0, .Whole = 100'000};
    std::string const text = ProgressText(counts, duration<double>(20), 79);
    EXPECT_EQ(text.size(), 79U);
    EXPECT_TRUE(text.starts_with("[##########")) << text;
    EXPECT_TRUE(text.ends_with("] 50 %, 50000 of 100000 files, 2500 a second, 20 s left")) << text;
    EXPECT_EQ(ProgressText(counts, duration<double>(20), 20), "[] 50 %, 50000 of 10");
    counts.Whole.reset();
    EXPECT_EQ(ProgressText(counts, duration<double>(20), 9), "50000 fil");
}

TEST(BatchProgress, KnowsTheWholeOnceItIsTold) {
    FakeConsole const console({.ShowsErrors = true});
    BatchProgress progress(console);
    progress.AddBefore(1, 0);
    progress.Add(false);
    testing::internal::CaptureStderr();
    progress.Show();
    auto const counted = testing::internal::GetCapturedStderr();
    EXPECT_TRUE(counted.starts_with("\r2 files, ")) << counted;
    progress.SetWhole(4);
    testing::internal::CaptureStderr();
    progress.Show();
    auto const shared = testing::internal::GetCapturedStderr();
    EXPECT_NE(shared.find("] 50 %, 2 of 4 files, "), std::string::npos) << shared;
    EXPECT_FALSE(progress.HasRefused());
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
