// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basFigures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::evaluation {
namespace {

TEST(Figures, AreThoseOfASmallExampleByHand) {
    // Errors 1, 1, 4; those of the last close 2, 3, 3. Directions right, right, wrong.
    Moves const moves = {Move{1, 2}, Move{-2, -3}, std::nullopt, Move{1, -3}};
    Figures const figures = FiguresOf(moves);
    EXPECT_DOUBLE_EQ(figures.ErrorRatio.value(), 6.0 / 8);
    EXPECT_DOUBLE_EQ(figures.RightDirections.value(), 2.0 / 3);
    // Sums: x 0, y -4, xx 6, yy 22, xy 5.
    EXPECT_DOUBLE_EQ(figures.Correlation.value(), 5 / std::sqrt(6 * (22 - 16.0 / 3)));
}

TEST(Figures, PerfectForecastsHaveNoErrorAndCorrelateFully) {
    Figures const figures = FiguresOf({Move{1, 1}, Move{-2, -2}, Move{3, 3}});
    EXPECT_EQ(figures.ErrorRatio, 0.0);
    EXPECT_EQ(figures.RightDirections, 1.0);
    EXPECT_DOUBLE_EQ(figures.Correlation.value(), 1);
}

TEST(Figures, TheLastCloseIsHalfRightAndCorrelatesWithNothing) {
    Figures const figures = FiguresOf({Move{0, 1}, Move{0, -2}});
    EXPECT_EQ(figures.ErrorRatio, 1.0);
    EXPECT_EQ(figures.RightDirections, 0.5);
    EXPECT_EQ(figures.Correlation, std::nullopt);
}

TEST(Figures, ACloseThatDidNotMoveHasNoDirection) {
    EXPECT_EQ(FiguresOf({Move{1, 0}, Move{1, 2}}).RightDirections, 1.0);
    Figures const figures = FiguresOf({Move{1, 0}, Move{2, 0}});
    EXPECT_EQ(figures.ErrorRatio, std::nullopt);
    EXPECT_EQ(figures.RightDirections, std::nullopt);
    EXPECT_EQ(figures.Correlation, std::nullopt);
}

TEST(Figures, WithoutForecastsThereAreNone) {
    for (Moves const& moves : {Moves(), Moves{std::nullopt}}) {
        Figures const figures = FiguresOf(moves);
        EXPECT_EQ(figures.ErrorRatio, std::nullopt);
        EXPECT_EQ(figures.RightDirections, std::nullopt);
        EXPECT_EQ(figures.Correlation, std::nullopt);
    }
}

TEST(Figures, EqualForecastsCorrelateWithNothingHoweverTheyAreRounded) {
    EXPECT_EQ(FiguresOf({Move{0.1, 1}, Move{0.1, 2}, Move{0.1, -1}}).Correlation, std::nullopt);
    double const next = std::nextafter(0.1, 1);
    EXPECT_EQ(FiguresOf({Move{0.1, 1}, Move{next, 2}, Move{0.1, -1}}).Correlation, std::nullopt);
}

TEST(Figures, CorrelateLargeMovesAsWellAsTheirDifferences) {
    Moves small;
    Moves large;
    for (int index = 0; index < 20; ++index) {
        double const foreseen = index % 7;
        double const actual = index % 7 + index % 3;
        small.push_back(Move{foreseen, actual});
        large.push_back(Move{foreseen + 1e7, actual - 1e7});
    }
    EXPECT_NEAR(FiguresOf(large).Correlation.value(), FiguresOf(small).Correlation.value(), 1e-9);
}

TEST(Figures, TwoForecastsAlwaysLieOnALineAndCorrelateWithNothing) {
    Moves moves = {Move{1, 2}, std::nullopt, Move{3, 5}};
    EXPECT_EQ(FiguresOf(moves).Correlation, std::nullopt);
    EXPECT_EQ(ForecastCount(moves), 2U);
    moves.push_back(Move{2, 4});
    EXPECT_TRUE(FiguresOf(moves).Correlation);
}

} // namespace
} // namespace quorvex::evaluation
