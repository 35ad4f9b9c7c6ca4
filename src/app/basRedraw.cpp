// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/basRedraw.h"

#include "chart/basCyclePlot.h"
#include "chart/basPlot.h"
#include "cycles/basCurves.h"
#include "platform/basMessages.h"

#include <array>

namespace quorvex::app {

namespace {

chart::ChartFaults DrawQuotes(Program& program, platform::Canvas& box) {
    return chart::DrawQuoteChart(box, program.Quotes, program.Settings, program.PriceScale,
                                 program.Curves.MovingAverageCurve);
}

void DrawCyclesAndComposite(Program& program, ChartBoxes const& boxes) {
    auto const count = program.Quotes.WorkingCount;
    cycles::ComputeCycleValues(program.Cycles, count);
    chart::DrawCycles(boxes.Pic2, program.Cycles, count);
    cycles::ComputeComposite(program.Cycles, count, program.Curves.CompositeCurve);
    chart::DrawComposite(boxes.Pic3, program.Curves.CompositeCurve, count);
}

void DrawResidual(Program& program, platform::Canvas& box) {
    auto const count = program.Quotes.WorkingCount;
    cycles::ComputeResidual(program.Curves, program.PriceScale, count);
    chart::DrawResidual(box, program.Curves.ResidualCurve, count);
}

std::array<platform::Canvas*, 4> AllOf(ChartBoxes const& boxes) {
    return {&boxes.Pic1, &boxes.Pic2, &boxes.Pic3, &boxes.Pic4};
}

void PrepareCharts(Program const& program, ChartBoxes const& boxes) {
    for (platform::Canvas* box : AllOf(boxes)) {
        chart::PrepareChart(*box, program.Quotes.WorkingCount);
    }
}

chart::ChartFaults DrawPrepared(Program& program, ChartBoxes const& boxes) {
    chart::ChartFaults faults = DrawQuotes(program, boxes.Pic1);
    if (cycles::HasActiveCycle(program.Cycles)) {
        faults.Cycles = text::Trap([&] { DrawCyclesAndComposite(program, boxes); });
        if (!faults.Cycles && program.Quotes.HasQuotes()) {
            faults.Residual = text::Trap([&] { DrawResidual(program, boxes.Pic4); });
        }
        if (faults.Cycles || faults.Residual) {
            return faults;
        }
    }
    for (platform::Canvas* box : AllOf(boxes)) {
        chart::DrawTimeTicks(*box, program.Quotes.WorkingCount);
    }
    return faults;
}

} // namespace

std::string Caption(Program const& program) {
    std::string caption(platform::ApplicationTitle);
    if (program.Quotes.HasQuotes()) {
        caption += " - [" + program.Settings.DataPath + program.Quotes.QuoteFileName + "]";
    }
    return caption;
}

chart::ChartFaults const& Redraw(Program& program, Services& services) {
    static_cast<void>(text::Trap([&] {
        services.Window.SetCaption(Caption(program));
        services.Window.LayOut();
        PrepareCharts(program, services.Boxes);
        cycles::ReadGrid(services.Grid, program.Cycles, services.Pending);
        program.Faults = DrawPrepared(program, services.Boxes);
    }));
    return program.Faults;
}

chart::ChartFaults DrawCharts(Program& program, ChartBoxes const& boxes) {
    PrepareCharts(program, boxes);
    return DrawPrepared(program, boxes);
}

bool RefreshMovingAverage(Program& program, platform::Canvas& box) {
    static_cast<void>(DrawQuotes(program, box));
    cycles::QuoteCurve& curve = program.Curves.MovingAverageCurve;
    std::int16_t length = 0;
    bool const computed = !text::Trap([&] {
        length = cycles::MovingAverageLength(program.Settings.MovingAverageIndex);
        cycles::ComputeMovingAverage(program.Quotes, length, curve);
    });
    if (computed) {
        static_cast<void>(text::Trap([&] {
            chart::DrawMovingAverageCurve(box, curve, length, program.Quotes.WorkingCount,
                                          program.PriceScale);
        }));
    }
    return computed;
}

} // namespace quorvex::app
