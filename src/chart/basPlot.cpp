// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPlot.h"

#include "chart/ChartColours.h"
#include "chart/basScale.h"
#include "cycles/basCurves.h"
#include "text/basFormats.h"

#include <algorithm>

namespace quorvex::chart {

namespace {

using platform::Black;
using platform::Fill;

// What makes a rectangle of a line, in twips.
constexpr double BarWidth = 0.5;

// Half the width of a candle's body, and the length of a tick of a bar, in twips.
constexpr double HalfBody = 50;

// Half the height of a tick of a bar, in twips.
constexpr double HalfTick = 5;

void DrawDashes(platform::Canvas& box, double step, double y) {
    constexpr double DashShare = 1.0 / 3;
    if (!(step > 0)) {
        return; // a box without width
    }
    double x = 0;
    while (x <= box.Width()) {
        box.Line(x, y, x + step * DashShare, y, Black);
        x += step;
    }
}

// What the three styles draw with.
struct QuotePlot {
    platform::Canvas& Box;
    quotes::QuoteSeries const& Series;
    double Step = 0;
    VerticalScale Prices;

    [[nodiscard]] quotes::QuoteRecord const& Quote(int day) const { return Series.Working[day]; }
};

void DrawBars(QuotePlot const& plot) {
    for (int day = 1; day <= plot.Series.WorkingCount; ++day) {
        quotes::QuoteRecord const& quote = plot.Quote(day);
        double const x = day * plot.Step;
        double const open = plot.Prices.Y(quote.Open);
        double const close = plot.Prices.Y(quote.Close);
        plot.Box.Rectangle(x, plot.Prices.Y(quote.High), x + BarWidth, plot.Prices.Y(quote.Low), QuoteColour,
                           Fill::Outline);
        plot.Box.Rectangle(x - HalfBody, open + HalfTick, x + BarWidth, open - HalfTick, QuoteColour,
                           Fill::Outline);
        plot.Box.Rectangle(x, close + HalfTick, x + BarWidth + HalfBody, close - HalfTick, QuoteColour,
                           Fill::Outline);
    }
}

void DrawCandles(QuotePlot const& plot) {
    for (int day = 1; day <= plot.Series.WorkingCount; ++day) {
        quotes::QuoteRecord const& quote = plot.Quote(day);
        double const x = day * plot.Step;
        plot.Box.Rectangle(x, plot.Prices.Y(quote.High), x + BarWidth,
                           plot.Prices.Y(std::max(quote.Open, quote.Close)), QuoteColour, Fill::Outline);
        plot.Box.Rectangle(x, plot.Prices.Y(quote.Low), x + BarWidth,
                           plot.Prices.Y(std::min(quote.Open, quote.Close)), QuoteColour, Fill::Outline);
        plot.Box.Rectangle(x - HalfBody, plot.Prices.Y(quote.Open), x + HalfBody, plot.Prices.Y(quote.Close),
                           QuoteColour, quote.Open > quote.Close ? Fill::Filled : Fill::Outline);
    }
}

// The point of the first day stands at its High.
void DrawCloses(QuotePlot const& plot) {
    plot.Box.Point(plot.Step, plot.Prices.Y(plot.Quote(1).High), QuoteColour);
    for (int day = 2; day <= plot.Series.WorkingCount; ++day) {
        plot.Box.Line((day - 1) * plot.Step, plot.Prices.Y(plot.Quote(day - 1).Close), day * plot.Step,
                      plot.Prices.Y(plot.Quote(day).Close), QuoteColour);
    }
}

void DrawQuotes(QuotePlot const& plot, std::string_view chartType) {
    if (chartType == "Daily Bar Chart") {
        DrawBars(plot);
    } else if (chartType == "Candlestick Chart") {
        DrawCandles(plot);
    } else {
        DrawCloses(plot);
    }
}

} // namespace

void PrepareChart(platform::Canvas& box, std::int16_t workingCount) {
    double const step = box.Width() / cycles::CurveDays(workingCount);
    double const height = box.Height();
    box.Clear();
    box.SetForeColour(Black);
    DrawDashes(box, step, height / 4);
    box.Line(0, height / 2, box.Width(), height / 2, Black);
    DrawDashes(box, step, height * 3 / 4);
}

ChartFaults DrawQuoteChart(platform::Canvas& box, quotes::QuoteSeries const& series,
                           prefs::Settings const& settings, quotes::PriceScale& scale,
                           cycles::QuoteCurve& movingAverageCurve) {
    ChartFaults faults;
    if (!series.HasQuotes()) {
        return faults;
    }
    faults.Quotes = text::Trap([&] {
        scale = ComputePriceScale(series);
        QuotePlot const plot{box, series, ColumnStep(box.Width(), series.WorkingCount),
                             ScalePrices(scale, box.Height())};
        PrepareChart(box, series.WorkingCount);
        box.SetForeColour(Black);
        DrawQuotes(plot, settings.ChartType);
        faults.MovingAverage =
            DrawMovingAverage(box, series, settings.MovingAverageIndex, scale, movingAverageCurve);
        DrawPriceLabels(box, scale.PriceScaleHigh, scale.PriceScaleLow, settings.CurrencyFormat);
    });
    return faults;
}

std::optional<text::RunTimeError> DrawMovingAverage(platform::Canvas& box, quotes::QuoteSeries const& series,
                                                    std::string_view movingAverageIndex,
                                                    quotes::PriceScale const& scale,
                                                    cycles::QuoteCurve& movingAverageCurve) {
    return text::Trap([&] {
        std::int16_t const length = cycles::MovingAverageLength(movingAverageIndex);
        cycles::ComputeMovingAverage(series, length, movingAverageCurve);
        DrawMovingAverageCurve(box, movingAverageCurve, length, series.WorkingCount, scale);
    });
}

void DrawMovingAverageCurve(platform::Canvas& box, cycles::QuoteCurve const& movingAverageCurve,
                            std::int16_t length, std::int16_t workingCount, quotes::PriceScale const& scale) {
    if (length == 0) {
        return;
    }
    VerticalScale const prices = ScalePrices(scale, box.Height());
    double const step = ColumnStep(box.Width(), workingCount);
    box.SetForeColour(MovingAverageColour);
    box.Point(step, prices.Y(movingAverageCurve[1]), MovingAverageColour);
    for (int day = 2; day <= workingCount; ++day) {
        box.LineTo(day * step, prices.Y(movingAverageCurve[day]), MovingAverageColour);
    }
}

void DrawPriceLabels(platform::Canvas& box, double top, double bottom, std::string_view currencyFormat) {
    constexpr int FontSize = 8;
    constexpr double MiddleShare = 0.4551;
    constexpr double BottomShare = 0.89;
    text::NumberFormat const price(currencyFormat);
    box.SetForeColour(Black);
    box.SetFont("Arial", FontSize, true);
    box.SetTextPosition(0, 0);
    box.Print(price.Format(top));
    box.SetTextPosition(0, MiddleShare * box.Height());
    box.Print(price.Format((top + bottom) / 2));
    box.SetTextPosition(0, BottomShare * box.Height());
    box.Print(price.Format(bottom));
}

void DrawTimeTicks(platform::Canvas& box, std::int16_t workingCount) {
    constexpr double TickWidth = 5;
    std::int16_t const columns = cycles::CurveDays(workingCount);
    double const step = ColumnStep(box.Width(), columns);
    double const height = box.Height();
    box.SetForeColour(Black);
    for (int column = 1; column <= columns; ++column) {
        double top = 0.93;
        if (column % 10 == 0) {
            top = 0.89;
        } else if (column % 5 == 0) {
            top = 0.91;
        }
        box.Rectangle(column * step, height, column * step + TickWidth, top * height, Black, Fill::Outline);
    }
}

} // namespace quorvex::chart
