// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPrint.h"

#include "chart/basQuoteStyles.h"
#include "chart/basScale.h"
#include "quotes/PriceScale.h"
#include "text/basFormats.h"

#include <string>

namespace quorvex::chart {

namespace {

using platform::Black;
using platform::Fill;

constexpr auto FontName = "Arial";

// In twips.
constexpr double PageMargin = platform::TwipsPerInch;
constexpr double ChartHeight = 5760;
constexpr double FrameOffset = 25;

// Where the chart stands on the page, in twips.
struct ChartArea {
    double Left = 0; // of the plotting area
    double Right = 0;
    double Top = 0;
    double Bottom = 0;
    double Step = 0; // from one day to the next
};

std::string DocumentName(quotes::QuoteSeries const& series) {
    std::string const& file = series.QuoteFileName;
    return (series.HasQuotes() ? file.substr(0, file.rfind('.')) : "Quorvex") + " chart";
}

// The prices at the chart's edges, such that those of the quotes fill nine tenths of its height.
quotes::PriceScale PrintedPriceScale(quotes::QuoteSeries const& series) {
    constexpr double FilledShare = 0.9;
    quotes::PriceScale const range = quotes::ComputePriceRange(series);
    double const sum = range.PriceScaleHigh + range.PriceScaleLow;
    double const height = (range.PriceScaleHigh - range.PriceScaleLow) / FilledShare;
    return {text::RequireFinite((height + sum) * 0.5), text::RequireFinite((sum - height) * 0.5)};
}

VerticalScale ScaleOnPage(quotes::PriceScale const& prices, ChartArea const& area) {
    double const factor = text::Divide(area.Top - area.Bottom, prices.PriceScaleHigh - prices.PriceScaleLow);
    double const sum = text::RequireFinite((prices.PriceScaleHigh + prices.PriceScaleLow) * factor);
    return {factor, (area.Bottom + area.Top - sum) / 2};
}

void PrintCentredLine(platform::Printer& printer, std::string_view text) {
    printer.SetTextPosition((printer.Width() - printer.TextWidth(text)) / 2, printer.TextY());
    PrintLine(printer, text);
}

// The first and the last day; no days have no dates.
std::string DateLine(quotes::QuoteSeries const& series) {
    int const count = series.WorkingCount;
    return count == 0 ? " to " : series.Working[1].Date + " to " + series.Working[count].Date;
}

void PrintHeader(platform::Printer& printer, quotes::QuoteSeries const& series) {
    constexpr int TitleSize = 12;
    constexpr int DateSize = 10;
    constexpr int LinesAbove = 3;
    printer.SetFont(FontName, TitleSize, true);
    for (int line = 0; line < LinesAbove; ++line) {
        PrintLine(printer);
    }
    PrintCentredLine(printer, series.QuoteFileName);
    printer.SetFont(FontName, DateSize, true);
    PrintCentredLine(printer, DateLine(series));
    PrintLine(printer);
}

// The area below what was printed, right of a column for the labels.
ChartArea PlaceChart(platform::Printer const& printer, int days) {
    ChartArea area;
    area.Left = PageMargin + printer.TextWidth("123456789");
    area.Right = printer.Width() - PageMargin;
    area.Top = printer.TextY();
    area.Bottom = area.Top + ChartHeight;
    area.Step = ColumnStep(area.Right - area.Left, days);
    return area;
}

void PrintFrame(platform::Printer& printer, ChartArea const& area) {
    double const left = area.Left - FrameOffset;
    double const right = area.Right + FrameOffset;
    double const top = area.Top - FrameOffset;
    double const bottom = area.Bottom + FrameOffset;
    printer.Line(left, top, right, top, Black);
    printer.Line(right, top, right, bottom, Black);
    printer.Line(right, bottom, left, bottom, Black);
    printer.Line(left, bottom, left, top, Black);
}

// The blanks keep a label clear of its line.
void PrintDivisionLabel(platform::Printer& printer, double x, double y, std::string const& price) {
    std::string const label = price + "   ";
    printer.SetTextPosition(x - printer.TextWidth(label), y - printer.TextHeight() / 2);
    printer.Print(label);
}

void PrintDivisions(platform::Printer& printer, ChartArea const& area, quotes::PriceScale const& prices,
                    std::string_view currencyFormat) {
    constexpr int LabelSize = 8;
    constexpr int Divisions = 10;
    constexpr double HalfMiddle = 6;
    text::NumberFormat const price(currencyFormat);
    printer.SetFont(FontName, LabelSize, true);
    for (int k = 1; k < Divisions; ++k) {
        double const y = area.Top + (area.Bottom - area.Top) * k / Divisions;
        if (k == Divisions / 2) {
            printer.Rectangle(area.Left, y - HalfMiddle, area.Right, y + HalfMiddle, Black, Fill::Outline);
        } else {
            printer.Line(area.Left, y, area.Right, y, Black);
        }
        double const value =
            prices.PriceScaleHigh - (prices.PriceScaleHigh - prices.PriceScaleLow) * k / Divisions;
        PrintDivisionLabel(printer, area.Left, y, price.Format(value));
    }
}

void PrintTimeTicks(platform::Printer& printer, ChartArea const& area, int days) {
    constexpr TickSizes Lengths{50, 100, 150}; // in twips
    constexpr double HalfWidth = 0.1;          // of the step
    for (int day = 1; day <= days; ++day) {
        double const x = area.Left + day * area.Step;
        printer.Rectangle(x - HalfWidth * area.Step, area.Bottom, x + HalfWidth * area.Step,
                          area.Bottom - TickSizeAt(day, Lengths), Black, Fill::Outline);
    }
}

// In shares of the step, so that the shapes of different days never overlap.
QuoteShapes ShapesOnPage(double step) {
    constexpr double HalfBarShare = 0.1;
    constexpr double HalfBodyShare = 0.38;
    constexpr double HalfTickShare = 0.12;
    return {HalfBarShare * step,  HalfBarShare * step,  HalfBodyShare * step,
            HalfBodyShare * step, HalfTickShare * step, HalfBodyShare * step};
}

} // namespace

void PrintChart(platform::PrintQueue& queue, platform::MousePointer& pointer,
                quotes::QuoteSeries const& series, settings::Settings const& settings) {
    platform::Hourglass const hourglass(pointer);
    quotes::PriceScale const prices = PrintedPriceScale(series);
    auto const printer = queue.Start(DocumentName(series));
    printer->SetScaleMode(platform::ScaleMode::Twips);
    printer->SetForeColour(Black);
    PrintHeader(*printer, series);
    ChartArea const area = PlaceChart(*printer, series.WorkingCount);
    VerticalScale const scale = ScaleOnPage(prices, area);
    PrintFrame(*printer, area);
    PrintDivisions(*printer, area, prices, settings.CurrencyFormat);
    PrintTimeTicks(*printer, area, series.WorkingCount);
    printer->SetForeColour(Black);
    DrawQuotes({*printer, series, area.Left, area.Step, scale, ShapesOnPage(area.Step)}, settings.ChartType);
    printer->EndDocument();
}

} // namespace quorvex::chart
