// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/layout/basLayout.h"

#include "support/Approximate.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

namespace quorvex::app::layout {
namespace {

using tests::IsClose;

void ExpectRectangle(Rectangle const& actual, nlohmann::json const& expected) {
    EXPECT_TRUE(IsClose(actual.Left, expected.at(0)));
    EXPECT_TRUE(IsClose(actual.Top, expected.at(1)));
    EXPECT_TRUE(IsClose(actual.Width, expected.at(2)));
    EXPECT_TRUE(IsClose(actual.Height, expected.at(3)));
}

TEST(Layout, PlacesEveryControlOfTheReferenceWindows) {
    for (auto const& expected : tests::GoldenVector("layout")) {
        SCOPED_TRACE(expected.at("window").dump());
        auto const& controls = expected.at("controls");
        auto const layout = LayoutMainWindow(expected.at("window").at(0), expected.at("window").at(1),
                                             expected.at("icon_height"));
        EXPECT_TRUE(IsClose(layout.IconStripWidth, controls.at("picIcon_width")));
        ExpectRectangle(layout.Grid.Frame1, controls.at("Frame1"));
        ExpectRectangle(layout.Grid.Shape1, controls.at("Shape1"));
        for (std::size_t chart = 0; chart < layout.Charts.size(); ++chart) {
            ExpectRectangle(layout.Charts[chart], controls.at("Pic" + std::to_string(chart + 1)));
        }
        for (std::size_t row = 0; row < layout.Grid.Cells.size(); ++row) {
            for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
                auto const name = "Text" + std::to_string(row) + '(' + std::to_string(cycle) + ')';
                SCOPED_TRACE(name);
                ExpectRectangle(layout.Grid.Cells[row][cycle], controls.at(name));
            }
        }
    }
}

TEST(Layout, EndsTheLowestChartAboveTheFrame) {
    auto const layout = LayoutMainWindow(16500, 12000, IconStripHeight);
    auto const& lowest = layout.Charts.back();
    EXPECT_LT(lowest.Top + lowest.Height, 12000 - 690);
}

TEST(Layout, OfASmallWindowHasChartsWithoutHeight) {
    EXPECT_LT(LayoutMainWindow(3000, 1000, IconStripHeight).Charts.front().Height, 0);
}

} // namespace
} // namespace quorvex::app::layout
