// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basRecompute.h"

#include "RunningProgram.h"
#include "cycles/basCurves.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::app {
namespace {

using tests::IsClose;
using tests::QuoteLines;

TEST(Recompute, StartsWithZerosInTheGridAndDefaultSettings) {
    RunningProgram running;
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Decay, 10), "0");
    EXPECT_EQ(running.Data->Settings.DataPath, "C:\\Quorvex\\");
    EXPECT_EQ(running.Data->ProgramFolder, "C:\\Quorvex");
    EXPECT_FALSE(running.Data->Quotes.HasQuotes());
}

TEST(Recompute, TakesUpWhatWasTyped) {
    RunningProgram running;
    running.Open("q.txt", tests::GoldenFile("quotes/q060.txt"));
    running.TypeCycle(1, "1", "20.4");
    auto const faults = Recompute(*running.Data, running.Outside);
    EXPECT_FALSE(faults.Quotes || faults.Cycles || faults.Residual);
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Weight, 1), "100");
    EXPECT_EQ(running.Data->Cycles.Cycles[1].Period, 20);
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[5], 100));
}

TEST(Recompute, WithoutQuotesComputesTheCyclesForAHundredDays) {
    RunningProgram running;
    running.TypeCycle(1, "50", "20");
    auto const faults = Recompute(*running.Data, running.Outside);
    EXPECT_FALSE(faults.Quotes || faults.Cycles || faults.Residual);
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[125], 100 * std::sin(125 * cycles::TwoPi / 20)));
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[1], 0);
    EXPECT_EQ(running.Data->Curves.ResidualCurve[1], 0);
}

TEST(Recompute, WithoutCyclesComputesTheQuotesAlone) {
    RunningProgram running;
    running.Open("q.txt", QuoteLines(30));
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[30], 130);
    EXPECT_EQ(running.Data->Curves.ResidualCurve[30], 0);
    EXPECT_GT(running.Data->PriceScale.PriceScaleHigh, 130);
}

TEST(Recompute, PricesWithoutARangeLeaveTheMovingAverageAsItWas) {
    std::string flat;
    for (int day = 1; day <= 28; ++day) {
        flat += "01/" + std::to_string(day) + "/02, 5, 5, 5, 5, 1, 1\r\n";
    }
    RunningProgram running;
    running.Open("flat.txt", flat);
    running.TypeCycle(1, "50", "20");
    auto const faults = Recompute(*running.Data, running.Outside);
    ASSERT_TRUE(faults.Quotes);
    EXPECT_EQ(faults.Quotes->Description(), "Division by zero");
    ASSERT_TRUE(faults.Residual);
    EXPECT_EQ(faults.Residual->Description(), "Division by zero");
    EXPECT_FALSE(faults.Cycles);
    EXPECT_EQ(running.Data->Curves.MovingAverageCurve[1], 0);
    EXPECT_TRUE(IsClose(running.Data->Curves.CompositeCurve[5], 100));
}

TEST(Recompute, ACycleThatOverflowsIsAFaultOfTheCycles) {
    RunningProgram running;
    running.Data->Cycles.Cycles[1].Weight = 1;
    running.Data->Cycles.Cycles[1].Period = 1e-320;
    auto const faults = Recompute(*running.Data, running.Outside);
    ASSERT_TRUE(faults.Cycles);
    EXPECT_EQ(faults.Cycles->Description(), "Overflow");
    EXPECT_FALSE(faults.Residual) << "a composite that was not computed has no residual";
}

} // namespace
} // namespace quorvex::app
