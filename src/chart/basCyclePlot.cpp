// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basCyclePlot.h"

#include "chart/ChartColours.h"
#include "chart/basScale.h"
#include "cycles/basCurves.h"

namespace quorvex::chart {

namespace {

// Zero stands in the middle of the box.
VerticalScale ScaleCycleUnits(double height, double unitsOfHeight) {
    return {-height / unitsOfHeight, height / 2};
}

template <class Curve>
void DrawCurve(platform::Canvas& box, Curve const& curve, std::int16_t workingCount,
               VerticalScale const& scale, platform::Colour colour) {
    std::int16_t const days = cycles::CurveDays(workingCount);
    double const step = ColumnStep(box.Width(), days);
    box.SetForeColour(colour);
    box.Point(step, scale.Y(curve[1]), colour);
    for (int day = 1; day <= days; ++day) {
        box.LineTo(day * step, scale.Y(curve[day]), colour);
    }
}

} // namespace

void DrawCycles(platform::Canvas& box, cycles::CycleParameterSet const& set, std::int16_t workingCount) {
    constexpr double UnitsOfHeight = 210;
    VerticalScale const scale = ScaleCycleUnits(box.Height(), UnitsOfHeight);
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        if (set.Cycles[cycle].IsActive()) {
            DrawCurve(box, set.Cycles[cycle].Values, workingCount, scale, CycleColour(cycle));
        }
    }
}

void DrawComposite(platform::Canvas& box, cycles::CycleCurve const& compositeCurve,
                   std::int16_t workingCount) {
    constexpr double UnitsOfHeight = 220;
    DrawCurve(box, compositeCurve, workingCount, ScaleCycleUnits(box.Height(), UnitsOfHeight),
              CompositeColour);
}

void DrawResidual(platform::Canvas& box, cycles::QuoteCurve const& residualCurve, std::int16_t workingCount) {
    auto const bounds = cycles::ScaleResidual(residualCurve, workingCount);
    DrawCurve(box, residualCurve, workingCount, ScalePrices({bounds.High, bounds.Low}, box.Height()),
              ResidualColour);
}

} // namespace quorvex::chart
