// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basRedraw.h"

#include "chart/basCharts.h"
#include "cycles/basComputation.h"
#include "platform/basMessages.h"
#include "text/RunTimeError.h"

namespace quorvex::app {

namespace {

void ComputeAndDraw(Program& program, chart::ChartBoxes const& boxes) {
    cycles::ComputeCurves(program.Quotes, program.Settings, program.Cycles, program.Curves);
    chart::DrawCharts(ContentsOf(program), boxes);
}

} // namespace

std::string Caption(Program const& program) {
    std::string caption(platform::ApplicationTitle);
    if (program.Quotes.HasQuotes()) {
        caption += " - [" + program.Settings.DataPath + program.Quotes.QuoteFileName + "]";
    }
    return caption;
}

void Redraw(Program& program, Services& services) {
    static_cast<void>(text::Trap([&] {
        services.Window.SetCaption(Caption(program));
        services.Window.LayOut();
        chart::PrepareCharts(services.Boxes, program.Quotes.WorkingCount);
        cycles::ReadGrid(services.Grid, program.Cycles, services.Pending);
        ComputeAndDraw(program, services.Boxes);
    }));
}

void Repaint(Program& program, chart::ChartBoxes const& boxes) {
    static_cast<void>(text::Trap([&] {
        chart::PrepareCharts(boxes, program.Quotes.WorkingCount);
        ComputeAndDraw(program, boxes);
    }));
}

} // namespace quorvex::app
