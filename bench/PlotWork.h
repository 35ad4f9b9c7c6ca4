// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RedrawWork.h"

#include <memory>
#include <vector>

namespace quorvex::bench {

// The charts of the window as four plots of QCustomPlot, each as large and as dense as its box.
//
// The plots are what somebody would get who makes the same charts with that library: its own pens and
// antialiasing (curves with, the rest without), drawn by the processor into the buffer of the widget, one
// value axis with its labels and dotted lines at the quarters, days ticked by one and ten without labels. As
// a redraw computes everything anew, a replot is given all data anew; they are there already, so that
// computing them is not counted.
class PlotWork {
public:
    // The charts as they are. REQUIRES: a QApplication.
    explicit PlotWork(RedrawWork const& window);
    ~PlotWork();

    // Draws the plots into their buffers. Copying those to the screen is left out.
    void Replot();

private:
    class Plot;

    std::vector<std::unique_ptr<Plot>> plots_;
};

} // namespace quorvex::bench
