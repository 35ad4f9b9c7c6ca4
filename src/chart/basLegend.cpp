// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basLegend.h"

#include "chart/ChartColours.h"

#include <array>
#include <cmath>

namespace quorvex::chart {

namespace {

// Prices as shares of the height, from the top.
struct SampleBar {
    double Open;
    double High;
    double Low;
    double Close;
};

constexpr std::array<SampleBar, 5> Bars = {{{0.75, 0.55, 0.85, 0.6},
                                            {0.6, 0.4, 0.7, 0.45},
                                            {0.4, 0.2, 0.6, 0.55},
                                            {0.5, 0.3, 0.65, 0.35},
                                            {0.35, 0.12, 0.45, 0.2}}};

// The length of a bar's tick in twips.
constexpr double TickLength = 50;

void DrawBars(platform::Canvas& box) {
    double const step = box.Width() / (Bars.size() + 1);
    double x = 0;
    for (SampleBar const& bar : Bars) {
        x += step;
        box.Line(x, bar.High * box.Height(), x, bar.Low * box.Height(), QuoteColour);
        box.Line(x - TickLength, bar.Open * box.Height(), x, bar.Open * box.Height(), QuoteColour);
        box.Line(x, bar.Close * box.Height(), x + TickLength, bar.Close * box.Height(), QuoteColour);
    }
}

// A sine of so many periods over the width; the amplitude is a share of half the height.
void DrawWave(platform::Canvas& box, double periods, double amplitude, double phase,
              platform::Colour colour) {
    constexpr int Points = 60;
    constexpr double TwoPi = 6.283185307179586;
    auto const y = [&](int point) {
        double const angle = phase + TwoPi * periods * point / Points;
        return box.Height() / 2 * (1 - amplitude * std::sin(angle));
    };
    box.SetForeColour(colour);
    box.Point(0, y(0), colour);
    for (int point = 1; point <= Points; ++point) {
        box.LineTo(box.Width() * point / Points, y(point), colour);
    }
}

} // namespace

void DrawLegendSample(platform::Canvas& box, LegendSample sample) {
    constexpr double Amplitude = 0.7;
    box.Clear();
    switch (sample) {
    case LegendSample::Quotes:
        DrawBars(box);
        break;
    case LegendSample::MovingAverage:
        DrawWave(box, 0.75, Amplitude, -1, MovingAverageColour);
        break;
    case LegendSample::Cycles:
        DrawWave(box, 1, Amplitude, 0, CycleColour(1));
        DrawWave(box, 1.5, 0.55, 2, CycleColour(2));
        DrawWave(box, 2.5, 0.35, 4, CycleColour(3));
        break;
    case LegendSample::Composite:
        DrawWave(box, 1.25, Amplitude, 0.5, CompositeColour);
        break;
    case LegendSample::Residual:
        DrawWave(box, 2, 0.5, 1, ResidualColour);
        break;
    }
}

} // namespace quorvex::chart
