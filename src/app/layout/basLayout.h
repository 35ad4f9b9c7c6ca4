// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Where the controls of the main window stand, in twips from the top left corner of its client area.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "text/SlotArray.h"

#include <array>

namespace quorvex::app::layout {

struct Rectangle {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

// The height of the tool strip picIcon: images of 24 pixels with a margin, in a border.
inline constexpr double IconStripHeight = 495;

// The rows of the parameter grid from the headers down: Text0 to Text4.
inline constexpr int GridRows = 5;

struct GridLayout {
    Rectangle Frame1;
    Rectangle Shape1;
    // Text0(1..10) to Text4(1..10).
    std::array<text::SlotArray<Rectangle, cycles::CycleCount>, GridRows> Cells;
};

struct WindowLayout {
    double IconStripWidth = 0; // of picIcon
    GridLayout Grid;
    std::array<Rectangle, 4> Charts; // Pic1 to Pic4
};

// The grid below a tool strip of this height, in a window of this outer width.
[[nodiscard]] GridLayout LayoutGrid(double windowWidth, double iconStripHeight);

// The whole window of this outer size: tool strip, grid, and the four charts stacked below, of which the
// first is the highest. A window that is too small gets charts without height or less.
[[nodiscard]] WindowLayout LayoutMainWindow(double windowWidth, double windowHeight, double iconStripHeight);

} // namespace quorvex::app::layout
