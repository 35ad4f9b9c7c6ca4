// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

namespace quorvex::tests {

inline constexpr double UsualTolerance = 1e-9;

// For EXPECT_TRUE: equal to the relative tolerance, or to the same absolute tolerance below 1.
[[nodiscard]] testing::AssertionResult IsClose(double actual, double expected,
                                               double tolerance = UsualTolerance);

} // namespace quorvex::tests
