// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPlot.h"

#include "chart/ChartColours.h"
#include "chart/basQuoteStyles.h"
#include "chart/basScale.h"
#include "cycles/basComputation.h"
#include "cycles/basCurves.h"
#include "text/basFormats.h"

namespace quorvex::chart {

namespace {

using platform::Black;
using platform::Fill;

// Half the width of a candle's body, and the length of a tick of a bar, in twips.
constexpr double HalfBody = 50;

// Half the height of a tick of a bar, in twips.
constexpr double HalfTick = 5;

// They do not follow the width of a column: of many days, neighbours overlap.
constexpr QuoteShapes ShapesOnScreen = {0, LineWidth, HalfBody, LineWidth + HalfBody, HalfTick, HalfBody};

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

void DrawQuoteChart(platform::Canvas& box, quotes::QuoteSeries const& series,
                    settings::Settings const& settings, cycles::CycleCurves& curves) {
    cycles::ComputeQuoteCurves(series, settings, curves);
    PlotQuotes(box, series, settings, curves);
}

void DrawMovingAverage(platform::Canvas& box, quotes::QuoteSeries const& series,
                       settings::Settings const& settings, cycles::CycleCurves& curves) {
    cycles::RefreshMovingAverage(series, settings, curves);
    PlotMovingAverage(box, series.WorkingCount, curves);
}

void PlotQuotes(platform::Canvas& box, quotes::QuoteSeries const& series, settings::Settings const& settings,
                cycles::CycleCurves const& curves) {
    cycles::ChartState const& state = curves.States.Quotes;
    if (state.Missing) {
        return;
    }
    quotes::PriceScale const& scale = curves.PriceScale;
    static_cast<void>(text::Trap([&] {
        QuotePlot const plot{box,
                             series,
                             0,
                             ColumnStep(box.Width(), series.WorkingCount),
                             ScalePrices(scale, box.Height()),
                             ShapesOnScreen};
        PrepareChart(box, series.WorkingCount);
        box.SetForeColour(Black);
        DrawQuotes(plot, settings.ChartType);
        if (state.IsReady()) {
            PlotMovingAverage(box, series.WorkingCount, curves);
            DrawPriceLabels(box, scale.PriceScaleHigh, scale.PriceScaleLow, settings.CurrencyFormat);
        }
    }));
}

void PlotMovingAverage(platform::Canvas& box, std::int16_t workingCount, cycles::CycleCurves const& curves) {
    if (!curves.States.MovingAverage.IsReady() || curves.MovingAverageLength == 0) {
        return;
    }
    static_cast<void>(text::Trap([&] {
        VerticalScale const prices = ScalePrices(curves.PriceScale, box.Height());
        double const step = ColumnStep(box.Width(), workingCount);
        box.SetForeColour(MovingAverageColour);
        box.Point(step, prices.Y(curves.MovingAverageCurve[1]), MovingAverageColour);
        for (int day = 2; day <= workingCount; ++day) {
            box.LineTo(day * step, prices.Y(curves.MovingAverageCurve[day]), MovingAverageColour);
        }
    }));
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
    constexpr TickSizes Tops{0.93, 0.91, 0.89}; // in shares of the height
    std::int16_t const columns = cycles::CurveDays(workingCount);
    double const step = ColumnStep(box.Width(), columns);
    double const height = box.Height();
    box.SetForeColour(Black);
    for (int column = 1; column <= columns; ++column) {
        double const top = TickSizeAt(column, Tops) * height;
        box.Rectangle(column * step, height, column * step + TickWidth, top, Black, Fill::Outline);
    }
}

} // namespace quorvex::chart
