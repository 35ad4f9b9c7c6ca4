// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basComputation.h"

#include "support/Approximate.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::cycles {
namespace {

class Computation : public testing::Test {
protected:
    void Compute() { ComputeCurves(*series, settings, *set, *curves); }

    void SetRange(double high, double low) {
        for (int day = 1; day <= series->WorkingCount; ++day) {
            series->Working[day].High = high;
            series->Working[day].Low = low;
        }
    }

    std::unique_ptr<quotes::QuoteSeries> series = tests::SeriesOf(tests::QuoteLines(30));
    settings::Settings settings = settings::DefaultSettings("./");
    std::unique_ptr<CycleParameterSet> set = std::make_unique<CycleParameterSet>();
    std::unique_ptr<CycleCurves> curves = std::make_unique<CycleCurves>();
    ChartStates const& states = curves->States;
};

TEST_F(Computation, BeforeItNothingIsReady) {
    for (auto const* state :
         {&states.Quotes, &states.MovingAverage, &states.Cycles, &states.Composite, &states.Residual}) {
        EXPECT_FALSE(state->IsReady());
    }
}

TEST_F(Computation, OfQuotesAndACycleMakesEveryChartReady) {
    set->Cycles[1].Weight = 50;
    set->Cycles[1].Period = 20;
    Compute();
    for (auto const* state :
         {&states.Quotes, &states.MovingAverage, &states.Cycles, &states.Composite, &states.Residual}) {
        EXPECT_TRUE(state->IsReady());
    }
    EXPECT_EQ(curves->MovingAverageLength, 3);
    EXPECT_GT(curves->PriceScale.PriceScaleHigh, 130);
    EXPECT_TRUE(tests::IsClose(curves->CompositeCurve[5], 50));
}

TEST_F(Computation, OfPricesWithoutARangeLeavesTheMovingAverageAsItWas) {
    Compute();
    SetRange(5, 5);
    settings.MovingAverageIndex = "0";
    curves->MovingAverageCurve[7] = -1;
    Compute();
    ASSERT_TRUE(states.Quotes.Fault);
    EXPECT_EQ(states.Quotes.Fault->Description(), "Division by zero");
    EXPECT_EQ(curves->MovingAverageCurve[7], -1);
    EXPECT_EQ(curves->MovingAverageLength, 3);
    EXPECT_TRUE(states.MovingAverage.IsReady());
}

TEST_F(Computation, OfTheMovingAverageAloneMindsNoPrices) {
    SetRange(5, 5);
    Compute();
    EXPECT_FALSE(states.MovingAverage.IsReady());
    RefreshMovingAverage(*series, settings, *curves);
    EXPECT_TRUE(states.MovingAverage.IsReady());
    EXPECT_EQ(curves->MovingAverageCurve[30], series->Working[30].Close);
}

TEST_F(Computation, OfAnOpenBeyondEveryBoxIsAFaultUnlessALineIsShown) {
    series->Working[3].Open = 1e308;
    Compute();
    ASSERT_TRUE(states.Quotes.Fault);
    EXPECT_EQ(states.Quotes.Fault->Description(), "Overflow");
    settings.ChartType = "Line Chart";
    Compute();
    EXPECT_TRUE(states.Quotes.IsReady());
}

TEST_F(Computation, SaysWhatEachEmptyChartWouldNeed) {
    Compute();
    EXPECT_EQ(states.Cycles.Missing, Need::ActiveCycle);
    EXPECT_EQ(states.Residual.Missing, Need::ActiveCycle);
    series->WorkingCount = 0;
    Compute();
    EXPECT_EQ(states.Quotes.Missing, Need::Quotes);
    EXPECT_EQ(states.Residual.Missing, Need::Quotes);
    series->QuoteFileName.clear();
    Compute();
    EXPECT_EQ(states.Quotes.Missing, Need::QuoteFile);
    EXPECT_EQ(states.Residual.Missing, Need::QuoteFile);
}

TEST_F(Computation, OfACycleThatOverflowsLeavesNeitherCompositeNorResidual) {
    set->Cycles[1].Weight = 1;
    set->Cycles[1].Period = 1e-320;
    Compute();
    for (auto const* state : {&states.Cycles, &states.Composite, &states.Residual}) {
        ASSERT_TRUE(state->Fault);
        EXPECT_EQ(state->Fault->Description(), "Overflow");
    }
    EXPECT_TRUE(states.Quotes.IsReady());
}

} // namespace
} // namespace quorvex::cycles
