// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ProgressLine.h"

#include "FakeConsole.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvex::cli {
namespace {

std::string ErrorsOf(bool shows) {
    testing::internal::CaptureStderr();
    {
        FakeConsole const console({.ShowsErrors = shows});
        ProgressLine line(console);
        for (double const share : {0.0, 0.004, 0.5, 1.0}) {
            line.Show(ProgressText(share));
        }
        line.Show("over");
    }
    return testing::internal::GetCapturedStderr();
}

TEST(ProgressLine, GrowsAndIsGoneInTheEnd) {
    EXPECT_EQ(ErrorsOf(true), "\r[" + std::string(40, '.') + "] 0 %" + "\r[" + std::string(20, '#') +
                                  std::string(20, '.') + "] 50 %" + "\r[" + std::string(40, '#') + "] 100 %" +
                                  "\rover" + std::string(44, ' ') + "\r    \r");
}

TEST(ProgressLine, IsNotThereWhereNobodyLooks) {
    EXPECT_EQ(ErrorsOf(false), "");
}

} // namespace
} // namespace quorvex::cli
