// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/WholeSet.h"

#include "PlainSearch.h"
#include "search/basNormalised.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace quorvex::search {
namespace {

std::size_t PhaseOf(Sinusoids const& waves, int shift) {
    std::size_t phase = 0;
    while (waves.ShiftOf(phase) != shift) {
        ++phase;
    }
    return phase;
}

// Which has no partner to move with.
TEST(RoundWeights, MovesASingleWaveToWhereItFollowsTheSeriesBest) {
    constexpr int SeriesDays = 200;
    constexpr int Shift = 12;
    Sinusoids waves(SeriesDays, {29, 30, 31, 32, 33, 34});
    auto const series = Normalised(tests::CurveOf(31, Shift, SeriesDays));
    Pursuit const pursuit(waves, series);
    std::size_t const phase = PhaseOf(waves, Shift);
    for (std::size_t const period : {1U, 2U, 3U, 5U}) {
        SCOPED_TRACE(waves.Periods()[period]);
        WaveSet const set = pursuit.Fit({{period, waves.PhaseFrom(phase, 4)}});
        ASSERT_EQ(set.Waves.size(), 1U);
        auto const whole = RoundWeights(pursuit, set);
        ASSERT_TRUE(whole);
        ASSERT_EQ(whole->Waves.size(), 1U);
        EXPECT_EQ(waves.Periods()[whole->Waves[0].Period], 31);
        EXPECT_EQ(waves.ShiftOf(whole->Waves[0].Phase), Shift);
        EXPECT_EQ(whole->Percent[0], 100);
        EXPECT_NEAR(whole->Correlation, 1, 1e-12);
    }
}

} // namespace
} // namespace quorvex::search
