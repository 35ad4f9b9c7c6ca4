// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basCharts.h"

#include "chart/basCyclePlot.h"
#include "chart/basPlot.h"

namespace quorvex::chart {

namespace {

void DrawReadyCycles(ChartContents const& contents, ChartBoxes const& boxes) {
    std::int16_t const count = contents.Series.WorkingCount;
    cycles::ChartStates const& states = contents.Curves.States;
    if (states.Cycles.IsReady()) {
        DrawCycles(boxes.Pic2, contents.Cycles, count);
    }
    if (states.Composite.IsReady()) {
        DrawComposite(boxes.Pic3, contents.Curves.CompositeCurve, count);
    }
    if (states.Residual.IsReady()) {
        DrawResidual(boxes.Pic4, contents.Curves.ResidualCurve, count);
    }
}

} // namespace

void PrepareCharts(ChartBoxes const& boxes, std::int16_t workingCount) {
    for (platform::Canvas* box : boxes.All()) {
        PrepareChart(*box, workingCount);
    }
}

void DrawCharts(ChartContents const& contents, ChartBoxes const& boxes) {
    PlotQuotes(boxes.Pic1, contents.Series, contents.Settings, contents.Curves);
    DrawReadyCycles(contents, boxes);
    cycles::ChartStates const& states = contents.Curves.States;
    if (states.Cycles.Fault || states.Composite.Fault || states.Residual.Fault) {
        return;
    }
    for (platform::Canvas* box : boxes.All()) {
        DrawTimeTicks(*box, contents.Series.WorkingCount);
    }
}

} // namespace quorvex::chart
