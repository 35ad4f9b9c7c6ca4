// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/layout/basLayout.h"

#include <cstddef>

namespace quorvex::app::layout {

namespace {

constexpr double GridHeight = 1250;
constexpr double RowHeight = 250;

// Between the tool strip and the grid.
constexpr double GridGap = 50;

constexpr double LeftShare = 0.01;
constexpr double GridWidthShare = 0.98;

// The row captions and ten cycles.
constexpr int GridColumns = cycles::CycleCount + 1;

} // namespace

GridLayout LayoutGrid(double windowWidth, double iconStripHeight) {
    double const top = iconStripHeight + GridGap;
    GridLayout grid;
    grid.Frame1 = {LeftShare * windowWidth, top, GridWidthShare * windowWidth, GridHeight};
    grid.Shape1 = grid.Frame1;
    for (std::size_t row = 0; row < grid.Cells.size(); ++row) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            grid.Cells.at(row)[cycle] = {cycle * grid.Frame1.Width / GridColumns,
                                         top + RowHeight * static_cast<double>(row),
                                         grid.Frame1.Width / GridColumns, RowHeight};
        }
    }
    return grid;
}

WindowLayout LayoutMainWindow(double windowWidth, double windowHeight, double iconStripHeight) {
    constexpr double IconStripMargin = 250;
    constexpr double FrameHeight = 900;     // caption, menu bar and borders
    constexpr double FirstChartGap = 30;    // below the grid
    constexpr double ChartGap = 25;         // between charts
    constexpr double LowerChartShare = 0.6; // of the first chart's height
    constexpr double ChartHeights = 2.8;    // of all charts, in heights of the first
    constexpr double ChartWidthShare = 0.97;

    WindowLayout layout;
    layout.IconStripWidth = windowWidth - IconStripMargin;
    layout.Grid = LayoutGrid(windowWidth, iconStripHeight);
    double const unit = (windowHeight - GridHeight - iconStripHeight - FrameHeight) / ChartHeights;
    double top = iconStripHeight + GridHeight + GridGap + FirstChartGap;
    double height = unit;
    for (Rectangle& chart : layout.Charts) {
        chart = {LeftShare * windowWidth, top, ChartWidthShare * windowWidth, height};
        top += height + ChartGap;
        height = LowerChartShare * unit;
    }
    return layout;
}

} // namespace quorvex::app::layout
