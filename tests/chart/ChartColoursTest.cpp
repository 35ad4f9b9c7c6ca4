// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ChartColours.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvex::chart {
namespace {

TEST(ChartColours, AreDifferentForEveryCurve) {
    std::set<platform::Colour> colours = {QuoteColour, MovingAverageColour, CompositeColour, ResidualColour,
                                          0xFFFFFF};
    for (int cycle = 1; cycle <= 10; ++cycle) {
        EXPECT_TRUE(colours.insert(CycleColour(cycle)).second) << cycle;
    }
}

TEST(ChartColours, ExistForTenCycles) {
    EXPECT_THROW(static_cast<void>(CycleColour(0)), text::RunTimeError);
    EXPECT_THROW(static_cast<void>(CycleColour(11)), text::RunTimeError);
}

} // namespace
} // namespace quorvex::chart
