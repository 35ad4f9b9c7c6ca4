// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Pursuit.h"

#include "PlainSearch.h"
#include "search/basNormalised.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace quorvex::search {
namespace {

TEST(Pursuit, MovesWavesTogetherAndTellsWhetherThatExplainsMore) {
    constexpr int SeriesDays = 200;
    constexpr int MostMoves = 100;
    std::vector<int> periods(30);
    std::iota(periods.begin(), periods.end(), 20);
    Sinusoids waves(SeriesDays, periods);
    auto const series = Normalised(tests::Randomness(5).Walk(SeriesDays));
    Pursuit const pursuit(waves, series);
    WaveSet set = pursuit.Fit({{3, 10}, {17, 40}, {25, 70}});
    ASSERT_GE(set.Waves.size(), 2U);
    bool isImproved = true;
    int moves = 0;
    for (; isImproved && moves < MostMoves; ++moves) {
        double const before = set.Part;
        isImproved = pursuit.ImproveTogether(set);
        EXPECT_EQ(isImproved, set.Part > before);
    }
    EXPECT_GT(moves, 1);
    EXPECT_LT(moves, MostMoves);
}

} // namespace
} // namespace quorvex::search
