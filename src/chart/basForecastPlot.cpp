// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastPlot.h"

#include "chart/ChartColours.h"
#include "chart/basForecastScale.h"
#include "chart/basScale.h"
#include "text/basFormats.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::chart {

namespace {

using platform::Black;
using platform::Fill;

// All in twips: one pixel, the room around texts, and the ticks of labels and of single days.
constexpr double Pixel = 15;
constexpr double Gap = 45;
constexpr double LabelTick = 75;
constexpr double DayTick = 30;

void SetChartFont(platform::Canvas& box, bool bold) {
    constexpr int FontSize = 8;
    box.SetFont("Arial", FontSize, bold);
}

void PrintAt(platform::Canvas& box, double x, double y, std::string_view text) {
    box.SetTextPosition(x, y);
    box.Print(text);
}

// Values that differ by less than arithmetic leaves behind have no range.
bool HasRange(quotes::PriceScale const& range) {
    constexpr double Negligible = 1e-9;
    double const largest = std::max(std::fabs(range.PriceScaleHigh), std::fabs(range.PriceScaleLow));
    return range.PriceScaleHigh - range.PriceScaleLow > Negligible * largest;
}

VerticalScale ScaleForecast(quotes::PriceScale const& range, double top, double bottom) {
    constexpr double MarginShare = 0.06;
    if (!HasRange(range)) {
        return {0, (top + bottom) / 2};
    }
    double const margin = MarginShare * (bottom - top);
    double const factor = text::Divide(top - bottom + 2 * margin, range.PriceScaleHigh - range.PriceScaleLow);
    return {factor, text::RequireFinite(bottom - margin - range.PriceScaleLow * factor)};
}

// What the parts of the chart are drawn with.
struct ForecastPlot {
    platform::Canvas& Box;
    quotes::QuoteSeries const& Series;
    cycles::ForecastCurve const& Values;
    cycles::ForecastDates const& Dates;
    quotes::PriceScale Range;
    ForecastSpan Span;
    double Top = 0;
    double Bottom = 0;
    VerticalScale Prices;

    // Where the columns of quotes end and those of the forecast begin.
    [[nodiscard]] double Boundary() const { return (Span.Left + Span.Right) / 2; }

    [[nodiscard]] quotes::QuoteRecord const& Quote(int column) const {
        return Series.Working[QuoteDayAt(Series, column)];
    }

    [[nodiscard]] std::string_view Date(int column) const {
        return column <= LastQuoteColumn ? Quote(column).Date : Dates[column - LastQuoteColumn];
    }
};

struct PriceLabel {
    double Value = 0;
    std::string Text;
    bool IsRound = false;
};

// The smallest of 1, 2 and 5 times a power of ten that is not below the width.
double RoundStep(double width) {
    double const magnitude = std::pow(10.0, std::floor(text::RequireFinite(std::log10(width))));
    for (double const multiple : {1.0, 2.0, 5.0}) {
        if (multiple * magnitude >= width) {
            return multiple * magnitude;
        }
    }
    return text::RequireFinite(10 * magnitude);
}

// The lowest and the highest price, and round ones between them where there is room. Prices that the number
// format does not tell apart get one label.
std::vector<PriceLabel> ListPriceLabels(ForecastPlot const& plot) {
    constexpr double LinesOfStep = 2;
    constexpr double LinesFromEnds = 1.25;
    text::NumberFormat const format(" ##.###");
    double const low = plot.Range.PriceScaleLow;
    double const high = plot.Range.PriceScaleHigh;
    std::vector<PriceLabel> labels = {{low, format.Format(low)}};
    PriceLabel const top{high, format.Format(high)};
    if (!HasRange(plot.Range) || top.Text == labels.front().Text) {
        return labels;
    }
    double const line = text::Divide(plot.Box.TextHeight(), std::fabs(plot.Prices.Factor));
    double const step = RoundStep(LinesOfStep * line);
    double value = std::ceil((low + LinesFromEnds * line) / step) * step;
    while (value <= high - LinesFromEnds * line) {
        std::string price = format.Format(value);
        if (price != labels.back().Text && price != top.Text) {
            labels.push_back({value, std::move(price), true});
        }
        value += step;
    }
    labels.push_back(top);
    return labels;
}

// The decimal points stand below each other.
void DrawPriceAxis(ForecastPlot const& plot) {
    platform::Canvas& box = plot.Box;
    auto const labels = ListPriceLabels(plot);
    double decimals = 0;
    for (PriceLabel const& label : labels) {
        decimals = std::max(decimals, box.TextWidth(label.Text.substr(label.Text.find('.') + 1)));
    }
    double const point = plot.Span.Left - LabelTick - Gap - decimals;
    for (PriceLabel const& label : labels) {
        double const y = plot.Prices.Y(label.Value);
        if (label.IsRound) {
            box.Line(plot.Span.Left + Pixel, y, plot.Span.Right - Pixel, y, GridColour);
        }
        box.Line(plot.Span.Left - LabelTick, y, plot.Span.Left, y, Black);
        double const whole = box.TextWidth(label.Text.substr(0, label.Text.find('.') + 1));
        PrintAt(box, std::max(0.0, point - whole), y - box.TextHeight() / 2, label.Text);
    }
}

// Writes dates below the frame, none over another.
class DateAxis {
public:
    explicit DateAxis(ForecastPlot const& plot) : plot_(plot) {}

    // Writes the date below its column when there is room.
    void Label(int column) { LabelBefore(column, plot_.Box.Width()); }

    // As above, moved to the left as far as it must to end before x.
    void LabelBefore(int column, double x) {
        platform::Canvas& box = plot_.Box;
        std::string_view const date = plot_.Date(column);
        double const width = box.TextWidth(date);
        double const left = std::min(plot_.Span.X(column) - width / 2, x - width);
        bool const taken = std::any_of(spans_.begin(), spans_.end(), [&](Span const& span) {
            return left < span.Right + Gap && left + width + Gap > span.Left;
        });
        if (taken || left < 0) {
            return;
        }
        spans_.push_back({left, left + width});
        double const tick = plot_.Span.X(column);
        box.Line(tick, plot_.Bottom, tick, plot_.Bottom + LabelTick, Black);
        PrintAt(box, left, plot_.Bottom + LabelTick + Gap / 2, date);
    }

    // Where the last label begins.
    [[nodiscard]] double Left() const { return spans_.empty() ? plot_.Box.Width() : spans_.back().Left; }

private:
    struct Span {
        double Left = 0;
        double Right = 0;
    };

    ForecastPlot const& plot_;
    std::vector<Span> spans_;
};

void DrawDateAxis(ForecastPlot const& plot) {
    int const first = FirstQuoteColumn(plot.Series);
    for (int column = first; column <= LastForecastColumn; ++column) {
        double const x = plot.Span.X(column);
        plot.Box.Line(x, plot.Bottom, x, plot.Bottom + DayTick, Black);
    }
    DateAxis axis(plot);
    axis.Label(LastForecastColumn);
    if (first <= LastQuoteColumn) {
        axis.Label(LastQuoteColumn);
    }
    if (first < LastQuoteColumn) {
        axis.LabelBefore(first, axis.Left() - 2 * Gap);
        axis.Label((first + LastQuoteColumn) / 2);
    }
    axis.Label((LastQuoteColumn + 1 + LastForecastColumn) / 2);
}

void DrawCaption(ForecastPlot const& plot, double left, double right, std::string_view text,
                 platform::Colour colour) {
    plot.Box.SetForeColour(colour);
    PrintAt(plot.Box, (left + right - plot.Box.TextWidth(text)) / 2, Gap, text);
}

void DrawHalves(ForecastPlot const& plot) {
    plot.Box.Line(plot.Boundary(), plot.Top + Pixel, plot.Boundary(), plot.Bottom - Pixel, BoundaryColour);
    SetChartFont(plot.Box, true);
    DrawCaption(plot, plot.Span.Left, plot.Boundary(), "Quotes", QuoteColour);
    DrawCaption(plot, plot.Boundary(), plot.Span.Right, "Forecast", ForecastColour);
}

// A falling day is filled, as a candle is.
void DrawQuoteBodies(ForecastPlot const& plot) {
    constexpr double HalfBodyShare = 0.3;
    double const half = HalfBodyShare * plot.Span.Step();
    for (int column = FirstQuoteColumn(plot.Series); column <= LastQuoteColumn; ++column) {
        quotes::QuoteRecord const& quote = plot.Quote(column);
        double const x = plot.Span.X(column);
        plot.Box.Rectangle(x - half, plot.Prices.Y(quote.Open), x + half, plot.Prices.Y(quote.Close),
                           QuoteColour, quote.Open > quote.Close ? Fill::Filled : Fill::Outline);
    }
}

void DrawForecastLine(ForecastPlot const& plot) {
    plot.Box.Point(plot.Span.X(LastQuoteColumn + 1), plot.Prices.Y(plot.Values[1]), ForecastColour);
    for (int day = 2; day <= cycles::ForecastDays; ++day) {
        plot.Box.LineTo(plot.Span.X(LastQuoteColumn + day), plot.Prices.Y(plot.Values[day]), ForecastColour);
    }
}

} // namespace

std::optional<text::RunTimeError> DrawForecast(platform::Canvas& box, quotes::QuoteSeries const& series,
                                               cycles::ForecastCurve const& values,
                                               cycles::ForecastDates const& dates) {
    return text::Trap([&] {
        auto const range = ComputeForecastScale(series, values);
        ForecastSpan const span = ComputeForecastSpan(box.Width());
        box.Clear();
        box.SetForeColour(Black);
        SetChartFont(box, false);
        double const top = box.TextHeight() + 2 * Gap;
        double const bottom = box.Height() - box.TextHeight() - LabelTick - Gap;
        if (!(span.Right > span.Left && bottom > top)) {
            return;
        }
        ForecastPlot const plot{
            box, series, values, dates, range, span, top, bottom, ScaleForecast(range, top, bottom)};
        box.Rectangle(plot.Span.Left, plot.Top, plot.Span.Right, plot.Bottom, Black, Fill::Outline);
        DrawPriceAxis(plot);
        DrawDateAxis(plot);
        DrawHalves(plot);
        DrawQuoteBodies(plot);
        DrawForecastLine(plot);
    });
}

} // namespace quorvex::chart
