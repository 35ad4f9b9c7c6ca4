// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/CycleParameterSet.h"

#include "CycleTexts.h"

#include <gtest/gtest.h>

namespace quorvex::cycles {
namespace {

TEST(CycleParameterSet, IsActiveWithWeightAndPeriod) {
    EXPECT_FALSE(HasActiveCycle(*SetOf({})));
    EXPECT_FALSE(HasActiveCycle(*SetOf({{50, 0, 3, 1}, {0, 20, 3, 1}})));
    EXPECT_TRUE(HasActiveCycle(*SetOf({{0, 20, 0, 0}, {50, 20, 0, 0}})));
    EXPECT_TRUE(HasActiveCycle(*SetOf({{-1, -20, 0, 0}})));
}

TEST(CycleParameterSet, LooksAtTheTenthCycleAndNotAtSlotZero) {
    auto set = SetOf({});
    set->Cycles[0].Weight = 1;
    set->Cycles[0].Period = 1;
    EXPECT_FALSE(HasActiveCycle(*set));
    set->Cycles[10].Weight = 1;
    set->Cycles[10].Period = 1;
    EXPECT_TRUE(HasActiveCycle(*set));
}

TEST(CycleParameterSet, ClearingZeroesParametersCurvesAndComposite) {
    auto set = SetOf({{50, 20, 3, 1}});
    set->Cycles[1].Values.Fill(7);
    set->Cycles[10].Values[525] = 7;
    set->ParameterFileName = "kept.dat";
    CycleCurve composite;
    composite.Fill(9);
    ClearCycles(*set, composite);
    for (int index = 1; index <= CycleCount; ++index) {
        CycleRecord const& cycle = set->Cycles[index];
        EXPECT_EQ(cycle.Weight, 0);
        EXPECT_EQ(cycle.Period, 0);
        EXPECT_EQ(cycle.Shift, 0);
        EXPECT_EQ(cycle.Decay, 0);
        for (int day = 1; day <= LastCurveDay; ++day) {
            ASSERT_EQ(cycle.Values[day], 0);
        }
    }
    EXPECT_EQ(composite[1], 0);
    EXPECT_EQ(composite[525], 0);
    EXPECT_EQ(set->ParameterFileName, "kept.dat");
}

} // namespace
} // namespace quorvex::cycles
