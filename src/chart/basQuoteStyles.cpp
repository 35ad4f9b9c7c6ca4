// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basQuoteStyles.h"

#include "chart/ChartColours.h"
#include "settings/ChartTypes.h"

#include <algorithm>

namespace quorvex::chart {

namespace {

using platform::Fill;

double Column(QuotePlot const& plot, int day) {
    return plot.Left + day * plot.Step;
}

void DrawBar(QuotePlot const& plot, double x, quotes::QuoteRecord const& quote) {
    QuoteShapes const& shapes = plot.Shapes;
    double const left = x - shapes.BarLeft;
    double const right = x + shapes.BarRight;
    double const open = plot.Prices.Y(quote.Open);
    double const close = plot.Prices.Y(quote.Close);
    plot.Box.Rectangle(left, plot.Prices.Y(quote.High), right, plot.Prices.Y(quote.Low), QuoteColour,
                       Fill::Outline);
    plot.Box.Rectangle(x - shapes.OpenTick, open + shapes.HalfTick, right, open - shapes.HalfTick,
                       QuoteColour, Fill::Outline);
    plot.Box.Rectangle(left, close + shapes.HalfTick, x + shapes.CloseTick, close - shapes.HalfTick,
                       QuoteColour, Fill::Outline);
}

void DrawCandle(QuotePlot const& plot, double x, quotes::QuoteRecord const& quote) {
    double const halfBody = plot.Shapes.HalfBody;
    plot.Box.Rectangle(x, plot.Prices.Y(quote.High), x + LineWidth,
                       plot.Prices.Y(std::max(quote.Open, quote.Close)), QuoteColour, Fill::Outline);
    plot.Box.Rectangle(x, plot.Prices.Y(quote.Low), x + LineWidth,
                       plot.Prices.Y(std::min(quote.Open, quote.Close)), QuoteColour, Fill::Outline);
    plot.Box.Rectangle(x - halfBody, plot.Prices.Y(quote.Open), x + halfBody, plot.Prices.Y(quote.Close),
                       QuoteColour, quote.Open > quote.Close ? Fill::Filled : Fill::Outline);
}

// The point of the first day stands at its High.
void DrawCloses(QuotePlot const& plot) {
    auto const& days = plot.Series.Working;
    if (plot.Series.WorkingCount > 0) {
        plot.Box.Point(Column(plot, 1), plot.Prices.Y(days[1].High), QuoteColour);
    }
    for (int day = 2; day <= plot.Series.WorkingCount; ++day) {
        plot.Box.Line(Column(plot, day - 1), plot.Prices.Y(days[day - 1].Close), Column(plot, day),
                      plot.Prices.Y(days[day].Close), QuoteColour);
    }
}

template <class DrawDay>
void DrawDays(QuotePlot const& plot, DrawDay drawDay) {
    for (int day = 1; day <= plot.Series.WorkingCount; ++day) {
        drawDay(plot, Column(plot, day), plot.Series.Working[day]);
    }
}

} // namespace

void DrawQuotes(QuotePlot const& plot, std::string_view chartType) {
    switch (settings::ChartTypeOf(chartType).Style) {
    case settings::QuoteStyle::Bars:
        DrawDays(plot, DrawBar);
        break;
    case settings::QuoteStyle::Candles:
        DrawDays(plot, DrawCandle);
        break;
    case settings::QuoteStyle::Line:
        DrawCloses(plot);
        break;
    }
}

} // namespace quorvex::chart
