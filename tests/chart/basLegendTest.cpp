// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basLegend.h"

#include "chart/ChartColours.h"
#include "platform/RecordingCanvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace quorvex::chart {
namespace {

using platform::DrawingOperation;

std::set<platform::Colour> ColoursOf(LegendSample sample) {
    platform::RecordingCanvas box(1440, 540);
    DrawLegendSample(box, sample);
    EXPECT_EQ(box.Operations().front().What, DrawingOperation::Kind::Clear);
    std::set<platform::Colour> colours;
    for (DrawingOperation const& operation : box.Operations()) {
        if (operation.What == DrawingOperation::Kind::Line) {
            colours.insert(operation.Drawn);
            EXPECT_GE(operation.Coordinates[1], 0);
            EXPECT_LE(operation.Coordinates[1], box.Height());
        }
    }
    return colours;
}

TEST(Legend, DrawsItsSamplesInTheColoursOfTheCharts) {
    EXPECT_THAT(ColoursOf(LegendSample::Quotes), testing::ElementsAre(QuoteColour));
    EXPECT_THAT(ColoursOf(LegendSample::MovingAverage), testing::ElementsAre(MovingAverageColour));
    EXPECT_THAT(ColoursOf(LegendSample::Cycles),
                testing::UnorderedElementsAre(CycleColour(1), CycleColour(2), CycleColour(3)));
    EXPECT_THAT(ColoursOf(LegendSample::Composite), testing::ElementsAre(CompositeColour));
    EXPECT_THAT(ColoursOf(LegendSample::Residual), testing::ElementsAre(ResidualColour));
}

} // namespace
} // namespace quorvex::chart
