// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basSignificance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::evaluation {
namespace {

// Forecasts whose errors are those of the last close times 0.5 and 0.7 in turn.
Moves AlternatingMoves(std::size_t count) {
    Moves moves;
    for (std::size_t index = 0; index < count; ++index) {
        moves.push_back(Move{index % 2 == 0 ? 5.0 : 3.0, 10});
    }
    return moves;
}

TEST(Significance, UpperTailIsThatOfTheTables) {
    // Quantiles of Student's t as printed in every table.
    EXPECT_NEAR(UpperTail(12.706, 1), 0.025, 1e-5);
    EXPECT_NEAR(UpperTail(4.303, 2), 0.025, 1e-5);
    EXPECT_NEAR(UpperTail(2.571, 5), 0.025, 2e-5);
    EXPECT_NEAR(UpperTail(2.228, 10), 0.025, 1e-5);
    EXPECT_NEAR(UpperTail(3.646, 30), 0.0005, 1e-6);
    EXPECT_NEAR(UpperTail(2.704, 40), 0.005, 1e-5);
    EXPECT_NEAR(UpperTail(1.962, 1000), 0.025, 3e-5);
}

TEST(Significance, UpperTailIsAProbabilityAndMirrored) {
    for (int const degrees : {1, 2, 3, 4, 17, 100}) {
        EXPECT_DOUBLE_EQ(UpperTail(0, degrees), 0.5);
        EXPECT_DOUBLE_EQ(UpperTail(-1.3, degrees), 1 - UpperTail(1.3, degrees));
        EXPECT_GE(UpperTail(1e300, degrees), 0);
        EXPECT_NEAR(UpperTail(1e300, degrees), 0, 1e-15);
    }
    EXPECT_DOUBLE_EQ(UpperTail(1, 1), 0.25); // 1/2 - atan(1) / pi
}

TEST(Significance, ChanceWithoutOverlapIsThatOfAStudentTest) {
    // Ratio 0.6; the deviations are 0.1 each way, their variance 0.01 x n / (n - 1).
    std::size_t const count = 12;
    auto const chance = ChanceOfRatio(AlternatingMoves(count), 1);
    ASSERT_TRUE(chance);
    EXPECT_NEAR(*chance, UpperTail(0.4 / std::sqrt(0.01 / (count - 1)), count - 1), 1e-15);
}

TEST(Significance, PositiveAutocovarianceRaisesTheChance) {
    // Deviations +1 four times, then -1 four times and so on, of a ratio of 0.5 that varies by 0.1.
    Moves moves;
    for (int index = 0; index < 32; ++index) {
        moves.push_back(Move{index / 4 % 2 == 0 ? 6.0 : 4.0, 10});
    }
    double const n = 32;
    double sum = n;
    for (int lag = 1; lag < 3; ++lag) {
        double products = 0;
        for (int index = lag; index < 32; ++index) {
            products += (index / 4 % 2 == (index - lag) / 4 % 2) ? 1 : -1;
        }
        sum += 2 * products;
    }
    double const correction = (n + 1 - 6 + 6 / n) / n;
    double const variance = 0.01 * sum / correction / (n * n);
    auto const chance = ChanceOfRatio(moves, 3);
    ASSERT_TRUE(chance);
    EXPECT_NEAR(*chance, UpperTail(0.5 / std::sqrt(variance), 32 - 1 - 4), 1e-14);
}

TEST(Significance, NegativeAutocovarianceDoesNotLowerTheVariance) {
    // Neighbours deviate the other way: with overlap 2 the sum alone would be nearly nothing.
    auto const chance = ChanceOfRatio(AlternatingMoves(20), 2);
    ASSERT_TRUE(chance);
    EXPECT_NEAR(*chance, UpperTail(0.4 / std::sqrt(0.01 / 19), 20 - 3), 1e-15);
}

TEST(Significance, AWorseForecastHasAChanceAboveOneHalf) {
    Moves moves = AlternatingMoves(12);
    for (auto& move : moves) {
        move->Foreseen = -move->Foreseen;
    }
    EXPECT_GT(ChanceOfRatio(moves, 1).value(), 0.99);
}

TEST(Significance, TheLastCloseItselfIsNoBetter) {
    EXPECT_EQ(ChanceOfRatio(Moves(12, Move{0, 3}), 1), 1.0);
}

TEST(Significance, RoundingIsNoGain) {
    Moves moves(12, Move{0, 3});
    moves[4]->Foreseen = 1e-11;
    EXPECT_EQ(ChanceOfRatio(moves, 1), 1.0);
}

TEST(Significance, ARatioThatIsTheSameButForRoundingIsSure) {
    Moves moves;
    for (int index = 1; index <= 12; ++index) {
        moves.push_back(Move{index * 0.07, index * 0.1});
    }
    EXPECT_EQ(ChanceOfRatio(moves, 1), 0.0);
}

TEST(Significance, FewForecastsAreNotTested) {
    EXPECT_FALSE(ChanceOfRatio(AlternatingMoves(9), 1));
    EXPECT_TRUE(ChanceOfRatio(AlternatingMoves(10), 1));
    EXPECT_FALSE(ChanceOfRatio(AlternatingMoves(11), 5));
    EXPECT_TRUE(ChanceOfRatio(AlternatingMoves(12), 5));
    EXPECT_FALSE(ChanceOfRatio(Moves(12, Move{1, 0}), 1));
    Moves gaps = AlternatingMoves(12);
    gaps[3] = gaps[4] = gaps[5] = std::nullopt;
    EXPECT_FALSE(ChanceOfRatio(gaps, 1));
}

TEST(Significance, HolmCorrectsByRank) {
    std::vector<double> const chances = {0.01, 0.04, 0.03, 0.005};
    EXPECT_EQ(HolmCorrected(chances), (std::vector<double>{0.03, 0.06, 0.06, 0.02}));
    EXPECT_EQ(HolmCorrected(std::vector<double>{0.5, 0.9}), (std::vector<double>{1, 1}));
    EXPECT_TRUE(HolmCorrected({}).empty());
}

} // namespace
} // namespace quorvex::evaluation
