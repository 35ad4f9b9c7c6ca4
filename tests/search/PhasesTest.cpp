// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Phases.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>

namespace quorvex::search {
namespace {

double AngleOf(Direction const& direction) {
    return std::atan2(direction.Sine, direction.Cosine);
}

TEST(Phases, HoldThePhaseOfEveryShiftOnce) {
    Phases const phases;
    std::set<int> shifts;
    for (Phase const& phase : phases.All()) {
        EXPECT_TRUE(shifts.insert(phase.Shift).second);
    }
    for (int shift = -99; shift <= 99; ++shift) {
        double const angle = shift == 0 ? 0 : 2 * std::numbers::pi / shift;
        int same = 0;
        for (Phase const& phase : phases.All()) {
            bool const isSame =
                std::hypot(phase.At.Cosine - std::cos(angle), phase.At.Sine - std::sin(angle)) < 1e-14;
            same += isSame ? 1 : 0;
        }
        EXPECT_EQ(same, 1) << shift;
    }
    EXPECT_EQ(phases.All().size(), 196U);
}

TEST(Phases, OfShiftsWithOnePhaseTheSmallestStandsForAll) {
    Phases const phases;
    std::set<int> shifts;
    for (Phase const& phase : phases.All()) {
        shifts.insert(phase.Shift);
    }
    EXPECT_EQ(shifts.count(0), 1U);
    EXPECT_EQ(shifts.count(1) + shifts.count(-1), 0U);
    EXPECT_EQ(shifts.count(2), 1U);
    EXPECT_EQ(shifts.count(-2), 0U);
}

TEST(Phases, RiseByAngle) {
    Phases const phases;
    for (std::size_t i = 1; i < phases.All().size(); ++i) {
        EXPECT_LT(AngleOf(phases.All()[i - 1].At), AngleOf(phases.All()[i].At));
    }
}

TEST(Phases, NeighboursEncloseADirection) {
    Phases const phases;
    std::size_t const count = phases.All().size();
    for (int step = -1000; step < 1000; ++step) {
        double const angle = (step + 0.5) * std::numbers::pi / 1000;
        auto const [below, above] = phases.Around({3 * std::cos(angle), 3 * std::sin(angle)});
        EXPECT_EQ((below + 1) % count, above);
        double const toAngle = std::remainder(angle - AngleOf(phases.All()[below].At), 2 * std::numbers::pi);
        double const fromAngle =
            std::remainder(AngleOf(phases.All()[above].At) - angle, 2 * std::numbers::pi);
        EXPECT_GE(toAngle, 0) << angle;
        EXPECT_GE(fromAngle, 0) << angle;
    }
}

} // namespace
} // namespace quorvex::search
