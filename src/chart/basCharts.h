// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws the four charts of the main window. Drawing changes none of the data.
#pragma once

#include "chart/ChartContents.h"
#include "platform/Canvas.h"

#include <array>
#include <cstdint>

namespace quorvex::chart {

// The four chart boxes.
struct ChartBoxes {
    platform::Canvas& Pic1; // quotes and moving average
    platform::Canvas& Pic2; // single cycles
    platform::Canvas& Pic3; // composite
    platform::Canvas& Pic4; // residual

    [[nodiscard]] std::array<platform::Canvas*, 4> All() const { return {&Pic1, &Pic2, &Pic3, &Pic4}; }
};

// Clears the boxes and draws their reference lines.
void PrepareCharts(ChartBoxes const& boxes, std::int16_t workingCount);

// Draws every chart that is ready on its box, which was prepared, and then the time ticks of all four. A
// fault of the quotes or their moving average ends that part alone; one of the cycles, the composite or the
// residual leaves the ticks out too.
void DrawCharts(ChartContents const& contents, ChartBoxes const& boxes);

} // namespace quorvex::chart
