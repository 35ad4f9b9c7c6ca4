// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basFanPlot.h"

#include "text/basFormats.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

namespace quorvex::evaluation {

namespace {

using platform::Fill;

constexpr double TickSize = 60; // twips

struct PriceRange {
    double Low = 0;
    double High = 0;

    void Include(double price) {
        Low = std::min(Low, price);
        High = std::max(High, price);
    }
};

// The smallest of 1, 2 and 5 times a power of ten that is not below the width, with its decimals.
struct RoundStep {
    double Size = 1;
    int Decimals = 0;

    explicit RoundStep(double width) {
        double const exponent = std::floor(std::log10(width));
        double const magnitude = std::pow(10.0, exponent);
        Size = 10 * magnitude;
        for (double const multiple : {5.0, 2.0, 1.0}) {
            Size = multiple * magnitude >= width ? multiple * magnitude : Size;
        }
        Decimals = std::max(0, static_cast<int>(-std::floor(std::log10(Size * (1 + 1e-9)))));
    }
};

class FanPlot {
public:
    FanPlot(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
            FanChoice const& choice)
        : canvas_(canvas),
          evaluation_(evaluation),
          choice_(choice),
          area_(area) {}

    void Draw() {
        double const line = canvas_.TextHeight() + TextGap;
        DrawCaption();
        area_.Top += line;
        area_.Bottom -= line + TickSize;
        FindRange();
        auto const labels = PriceLabels();
        for (auto const& [price, label] : labels) {
            area_.Left = std::max(area_.Left, captionLeft_ + canvas_.TextWidth(label) + TextGap + TickSize);
        }
        if (!area_.HasRoom()) {
            return;
        }
        for (auto const& [price, label] : labels) {
            double const y = Y(price);
            canvas_.Line(area_.Left, y, area_.Right, y, PlotGridColour);
            canvas_.Line(area_.Left - TickSize, y, area_.Left, y, PlotFrameColour);
            PrintOnPlot(canvas_, area_.Left - TickSize - TextGap - canvas_.TextWidth(label),
                        y - canvas_.TextHeight() / 2, label);
        }
        DrawDates();
        canvas_.Rectangle(area_.Left, area_.Top, area_.Right, area_.Bottom, PlotFrameColour, Fill::Outline);
        DrawForecasts();
        DrawCloses();
    }

private:
    struct PriceLabel {
        double Price = 0;
        std::string Text;
    };

    void DrawCaption() {
        captionLeft_ = area_.Left;
        SetPlotFont(canvas_, true);
        PrintOnPlot(canvas_, area_.Left, area_.Top, "Closes and forecasts: " + FanName(evaluation_, choice_));
        SetPlotFont(canvas_, false);
        DrawLegend();
    }

    // At the right end of the caption's line.
    void DrawLegend() {
        constexpr double SampleWidth = 300;
        double const middle = area_.Top + canvas_.TextHeight() / 2;
        double x = area_.Right;
        for (auto const& [text, colour] : {std::pair{std::string_view("forecasts"), KindColour(choice_.Kind)},
                                           std::pair{std::string_view("closes"), CloseColour}}) {
            x -= canvas_.TextWidth(text);
            PrintOnPlot(canvas_, x, area_.Top, text);
            x -= TextGap;
            canvas_.Line(x - SampleWidth, middle, x, middle, colour);
            x -= SampleWidth + 4 * TextGap;
        }
    }

    [[nodiscard]] std::optional<cycles::ForecastCurve> const& ForecastOf(Origin const& origin) const {
        return origin.Forecasts[choice_.Model].Of(choice_.Kind);
    }

    void FindRange() {
        range_ = {evaluation_.Closes.front(), evaluation_.Closes.front()};
        for (double const close : evaluation_.Closes) {
            range_.Include(close);
        }
        for (Origin const& origin : evaluation_.Origins) {
            if (auto const& forecast = ForecastOf(origin)) {
                for (int day = 1; day <= cycles::ForecastDays; ++day) {
                    range_.Include((*forecast)[day]);
                }
            }
        }
        constexpr double MarginShare = 0.03;
        double const margin = MarginShare * (range_.High - range_.Low);
        range_ = {range_.Low - margin, range_.High + margin};
    }

    [[nodiscard]] std::vector<PriceLabel> PriceLabels() const {
        constexpr double LinesOfStep = 3;
        std::vector<PriceLabel> labels;
        if (area_.Height() <= 0) {
            return labels;
        }
        double const priceOfLine = (range_.High - range_.Low) * canvas_.TextHeight() / area_.Height();
        RoundStep const step(LinesOfStep * priceOfLine);
        std::string const decimals(static_cast<std::size_t>(step.Decimals), '0');
        text::NumberFormat const format("0" + (decimals.empty() ? "" : '.' + decimals));
        constexpr int MostLabels = 100;
        double const first = std::ceil(range_.Low / step.Size);
        for (int number = 0; number < MostLabels; ++number) {
            double const price = (first + number) * step.Size;
            if (price <= range_.High) {
                labels.push_back({price, format.Format(price)});
            }
        }
        return labels;
    }

    [[nodiscard]] double X(int day) const {
        auto const days = static_cast<double>(evaluation_.Closes.size());
        return area_.Left + (day - 0.5) / days * area_.Width();
    }

    [[nodiscard]] double Y(double price) const {
        return area_.Bottom - (price - range_.Low) / (range_.High - range_.Low) * area_.Height();
    }

    // As many dates as have room, at equal distances.
    void DrawDates() {
        constexpr double WidthsOfStep = 1.6;
        auto const days = static_cast<int>(evaluation_.Dates.size());
        double const labelWidth = canvas_.TextWidth(evaluation_.Dates.front());
        double const most = area_.Width() / (WidthsOfStep * labelWidth);
        int const step = std::max(1, static_cast<int>(std::ceil(days / std::max(1.0, most))));
        for (int day = (step + 1) / 2; day <= days; day += step) {
            double const x = X(day);
            if (x - labelWidth / 2 < captionLeft_ || x + labelWidth / 2 > area_.Right + TextGap) {
                continue;
            }
            canvas_.Line(x, area_.Bottom, x, area_.Bottom + TickSize, PlotFrameColour);
            PrintCentred(canvas_, x, area_.Bottom + TickSize + TextGap / 2,
                         evaluation_.Dates[static_cast<std::size_t>(day) - 1]);
        }
    }

    void DrawForecasts() {
        for (Origin const& origin : evaluation_.Origins) {
            auto const& forecast = ForecastOf(origin);
            if (!forecast) {
                continue;
            }
            auto const colour = KindColour(choice_.Kind);
            double const close = evaluation_.Closes[static_cast<std::size_t>(origin.Day) - 1];
            canvas_.Point(X(origin.Day), Y(close), colour);
            for (int day = 1; day <= cycles::ForecastDays; ++day) {
                canvas_.LineTo(X(origin.Day + day), Y((*forecast)[day]), colour);
            }
        }
    }

    void DrawCloses() {
        canvas_.Point(X(1), Y(evaluation_.Closes.front()), CloseColour);
        for (int day = 2; day <= static_cast<int>(evaluation_.Closes.size()); ++day) {
            canvas_.LineTo(X(day), Y(evaluation_.Closes[static_cast<std::size_t>(day) - 1]), CloseColour);
        }
    }

    platform::Canvas& canvas_;
    Evaluation const& evaluation_;
    FanChoice choice_;
    PlotArea area_;
    double captionLeft_ = 0;
    PriceRange range_;
};

} // namespace

std::string FanName(Evaluation const& evaluation, FanChoice const& choice) {
    return ModelName(evaluation.Models[choice.Model].Model) + ", " + std::string(KindName(choice.Kind));
}

void DrawFan(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
             FanChoice const& choice) {
    FanPlot(canvas, area, evaluation, choice).Draw();
}

} // namespace quorvex::evaluation
