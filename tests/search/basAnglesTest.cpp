// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basAngles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace quorvex::search {
namespace {

TEST(DirectionAt, IsTheSineAndCosineOfEveryPartOfATurn) {
    for (int denominator = 1; denominator <= 300; ++denominator) {
        for (int numerator = -2 * denominator; numerator <= 2 * denominator; ++numerator) {
            double const angle = std::numbers::pi * numerator / denominator;
            Direction const direction = DirectionAt(numerator, denominator);
            ASSERT_NEAR(direction.Cosine, std::cos(angle), 2e-15) << numerator << '/' << denominator;
            ASSERT_NEAR(direction.Sine, std::sin(angle), 2e-15) << numerator << '/' << denominator;
        }
    }
}

TEST(DirectionAt, IsExactAtQuartersOfATurn) {
    for (int turns = -3; turns <= 3; ++turns) {
        EXPECT_EQ(DirectionAt(4 * turns, 2).Cosine, 1);
        EXPECT_EQ(DirectionAt(4 * turns, 2).Sine, 0);
        EXPECT_EQ(DirectionAt(4 * turns + 1, 2).Cosine, 0);
        EXPECT_EQ(DirectionAt(4 * turns + 1, 2).Sine, 1);
        EXPECT_EQ(DirectionAt(4 * turns + 2, 2).Cosine, -1);
        EXPECT_EQ(DirectionAt(4 * turns + 3, 2).Sine, -1);
    }
}

TEST(DirectionAt, KeepsItsPrecisionBehindManyTurns) {
    // 499 * 500 * 1000 half turns of 1 / 249,500 each are 1,000 half turns.
    std::int64_t const denominator = 499 * 500;
    EXPECT_EQ(DirectionAt(denominator * 1000 + 1, denominator).Sine, DirectionAt(1, denominator).Sine);
    EXPECT_NEAR(DirectionAt(1, denominator).Sine / (std::numbers::pi / 249500), 1, 1e-10);
}

} // namespace
} // namespace quorvex::search
