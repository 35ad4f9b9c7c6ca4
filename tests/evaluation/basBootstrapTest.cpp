// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basBootstrap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace quorvex::evaluation {
namespace {

Moves SomeMoves(std::size_t count, std::uint32_t seed) {
    std::mt19937 random(seed);
    Moves moves;
    for (std::size_t index = 0; index < count; ++index) {
        Move const move{static_cast<double>(random() % 21) - 10, static_cast<double>(random() % 21) - 10};
        moves.push_back(random() % 5 == 0 ? std::nullopt : std::optional(move));
    }
    return moves;
}

std::vector<FigureIntervals> IntervalsOf(std::vector<Moves> const& sets, std::size_t blockLength,
                                         int sampleCount) {
    return ResampledIntervals(sets, blockLength, sampleCount, [] { return true; });
}

// The same interval from whole copies of the moves.
std::optional<Interval> PlainInterval(Moves const& moves, std::size_t blockLength, int sampleCount,
                                      std::optional<double> Figures::*figure) {
    BlockResampler resampler(moves.size(), blockLength);
    std::vector<double> values;
    for (int sample = 0; sample < sampleCount; ++sample) {
        Moves drawn;
        for (std::size_t const position : resampler.Next()) {
            drawn.push_back(moves.at(position));
        }
        if (auto const value = FiguresOf(drawn).*figure) {
            values.push_back(*value);
        }
    }
    return 2 * values.size() < static_cast<std::size_t>(sampleCount) ? std::nullopt : MiddleOf(values);
}

TEST(Bootstrap, MiddleCutsTwoAndAHalfPercentOffEachEnd) {
    std::vector<double> values;
    for (int value = 400; value >= 0; --value) {
        values.push_back(value);
    }
    auto const middle = MiddleOf(values);
    ASSERT_TRUE(middle);
    EXPECT_DOUBLE_EQ(middle->Low, 10);
    EXPECT_DOUBLE_EQ(middle->High, 390);
}

TEST(Bootstrap, MiddleInterpolatesBetweenNeighbours) {
    std::vector<double> values = {3, 1};
    auto const middle = MiddleOf(values);
    ASSERT_TRUE(middle);
    EXPECT_DOUBLE_EQ(middle->Low, 1.05);
    EXPECT_DOUBLE_EQ(middle->High, 2.95);
    std::vector<double> none;
    EXPECT_FALSE(MiddleOf(none));
}

TEST(Bootstrap, DrawsBlocksOfNeighboursAndEveryBlock) {
    BlockResampler resampler(12, 5);
    std::set<std::size_t> begins;
    for (int sample = 0; sample < 200; ++sample) {
        auto const positions = resampler.Next();
        ASSERT_EQ(positions.size(), 12U);
        for (std::size_t index = 0; index < positions.size(); ++index) {
            if (index % 5 == 0) {
                begins.insert(positions[index]);
            } else {
                EXPECT_EQ(positions[index], positions[index - 1] + 1);
            }
            EXPECT_LT(positions[index], 12U);
        }
    }
    EXPECT_EQ(begins.size(), 8U); // 0..7
}

TEST(Bootstrap, ABlockOfAllLeavesNoChoice) {
    BlockResampler resampler(4, 4);
    for (int sample = 0; sample < 3; ++sample) {
        auto const positions = resampler.Next();
        EXPECT_EQ(std::vector(positions.begin(), positions.end()), (std::vector<std::size_t>{0, 1, 2, 3}));
    }
}

TEST(Bootstrap, ConstantFiguresHaveIntervalsWithoutWidth) {
    Moves const moves(20, Move{1, 2});
    auto const intervals = IntervalsOf({moves}, 5, 100).front();
    ASSERT_TRUE(intervals.ErrorRatio);
    EXPECT_EQ(intervals.ErrorRatio->Low, 0.5);
    EXPECT_EQ(intervals.ErrorRatio->High, 0.5);
    ASSERT_TRUE(intervals.RightDirections);
    EXPECT_EQ(intervals.RightDirections->Low, 1);
    EXPECT_EQ(intervals.RightDirections->High, 1);
    EXPECT_FALSE(intervals.Correlation);
}

TEST(Bootstrap, GivesWhatWholeCopiesGive) {
    std::vector<Moves> const sets = {SomeMoves(30, 1), SomeMoves(30, 2)};
    auto const intervals = IntervalsOf(sets, 4, 300);
    for (std::size_t set = 0; set < sets.size(); ++set) {
        auto const expectSame = [](std::optional<Interval> const& actual,
                                   std::optional<Interval> const& expected) {
            ASSERT_TRUE(actual && expected);
            EXPECT_NEAR(actual->Low, expected->Low, 1e-12);
            EXPECT_NEAR(actual->High, expected->High, 1e-12);
        };
        expectSame(intervals[set].ErrorRatio, PlainInterval(sets[set], 4, 300, &Figures::ErrorRatio));
        expectSame(intervals[set].RightDirections,
                   PlainInterval(sets[set], 4, 300, &Figures::RightDirections));
        expectSame(intervals[set].Correlation, PlainInterval(sets[set], 4, 300, &Figures::Correlation));
    }
}

TEST(Bootstrap, AFigureThatMostSamplesLackHasNoInterval) {
    Moves moves(20, Move{1, 0});
    moves[0] = Move{1, 2};
    auto const intervals = IntervalsOf({moves}, 1, 200).front();
    EXPECT_TRUE(intervals.ErrorRatio); // in 64 of 100 samples
    EXPECT_FALSE(intervals.Correlation);
    EXPECT_FALSE(IntervalsOf({Moves(20, Move{1, 0})}, 1, 200).front().ErrorRatio);
}

TEST(Bootstrap, FewerThanTenForecastsHaveNoIntervals) {
    Moves moves(20);
    for (std::size_t index = 0; index < 9; ++index) {
        moves[2 * index] = Move{static_cast<double>(index), 1 - static_cast<double>(index % 3)};
    }
    auto const ofNine = IntervalsOf({moves}, 1, 200).front();
    EXPECT_FALSE(ofNine.ErrorRatio);
    EXPECT_FALSE(ofNine.RightDirections);
    EXPECT_FALSE(ofNine.Correlation);
    moves[1] = Move{1, 1};
    auto const ofTen = IntervalsOf({moves}, 1, 200).front();
    EXPECT_TRUE(ofTen.ErrorRatio);
    EXPECT_TRUE(ofTen.RightDirections);
    EXPECT_TRUE(ofTen.Correlation);
}

TEST(Bootstrap, EndsWhenTheCallbackSaysSo) {
    std::vector<Moves> const sets = {SomeMoves(30, 1)};
    int asked = 0;
    EXPECT_TRUE(ResampledIntervals(sets, 4, 300, [&asked] { return ++asked < 5; }).empty());
    EXPECT_EQ(asked, 5);
}

} // namespace
} // namespace quorvex::evaluation
