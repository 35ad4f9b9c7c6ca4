// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basErrorPlot.h"

#include "evaluation/basVerdicts.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace quorvex::evaluation {

namespace {

using platform::Fill;

// In twips.
constexpr double MarkDistance = 120; // of the kinds of one model
constexpr double RowGap = 105;
constexpr double HalfMark = 30;
constexpr double HalfRing = 60; // around the mark of what is better than the last close
constexpr double ArrowSize = 45;
constexpr double ColumnGap = 180;

double RowHeight() {
    return static_cast<double>(ForecastKinds.size()) * MarkDistance + RowGap;
}

// Ratios of the same size up and down have the same distance from 1.
struct RatioScale {
    static constexpr double Lowest = 0.3;
    static constexpr double Highest = 6;

    double Left = 0;
    double Right = 0;

    [[nodiscard]] double X(double ratio) const {
        double const share =
            std::log(std::clamp(ratio, Lowest, Highest) / Lowest) / std::log(Highest / Lowest);
        return Left + share * (Right - Left);
    }
};

// The head of an arrow at the edge that something lies beyond.
void DrawArrow(platform::Canvas& canvas, double x, double y, double direction, platform::Colour colour) {
    canvas.Line(x - direction * ArrowSize, y - ArrowSize, x, y, colour);
    canvas.Line(x - direction * ArrowSize, y + ArrowSize, x, y, colour);
}

void DrawInterval(platform::Canvas& canvas, RatioScale const& scale, double y, Interval const& interval,
                  platform::Colour colour) {
    canvas.Line(scale.X(interval.Low), y, scale.X(interval.High), y, colour);
    if (interval.High > RatioScale::Highest) {
        DrawArrow(canvas, scale.Right, y, 1, colour);
    }
    if (interval.Low < RatioScale::Lowest) {
        DrawArrow(canvas, scale.Left, y, -1, colour);
    }
}

void DrawMark(platform::Canvas& canvas, double x, double y, double half, platform::Colour colour, Fill fill) {
    canvas.Rectangle(x - half, y - half, x + half, y + half, colour, fill);
}

// A ratio outside the scale has no mark, only its interval's arrow, or an arrow of its own.
void DrawReport(platform::Canvas& canvas, RatioScale const& scale, double y, HorizonReport const& report,
                platform::Colour colour) {
    if (!report.Figures.ErrorRatio) {
        return;
    }
    double const ratio = *report.Figures.ErrorRatio;
    if (report.Intervals.ErrorRatio) {
        DrawInterval(canvas, scale, y, *report.Intervals.ErrorRatio, colour);
    }
    if (ratio > RatioScale::Highest || ratio < RatioScale::Lowest) {
        DrawArrow(canvas, scale.X(ratio), y, ratio > 1 ? 1 : -1, colour);
        return;
    }
    DrawMark(canvas, scale.X(ratio), y, HalfMark, colour, Fill::Filled);
    if (report.IsBetter) {
        DrawMark(canvas, scale.X(ratio), y, HalfRing, colour, Fill::Outline);
    }
}

void DrawColumnFrame(platform::Canvas& canvas, PlotArea const& area, RatioScale const& scale) {
    constexpr std::array<std::pair<double, std::string_view>, 4> Ticks = {
        {{0.5, "0.5"}, {1, "1"}, {2, "2"}, {4, "4"}}};
    for (auto const& [ratio, label] : Ticks) {
        double const x = scale.X(ratio);
        canvas.Line(x, area.Top, x, area.Bottom, ratio == 1 ? PlotFrameColour : PlotGridColour);
        PrintCentred(canvas, x, area.Bottom + TextGap / 2, label);
    }
    canvas.Rectangle(area.Left, area.Top, area.Right, area.Bottom, PlotFrameColour, Fill::Outline);
}

void DrawColumn(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
                std::size_t horizon) {
    RatioScale const scale{area.Left, area.Right};
    DrawColumnFrame(canvas, area, scale);
    double y = area.Top + RowHeight() / 2;
    DrawReport(canvas, scale, y, evaluation.Drift.at(horizon), CloseColour);
    for (ModelReport const& model : evaluation.Models) {
        y += RowHeight();
        for (ForecastKind const kind : ForecastKinds) {
            double const offset = (static_cast<double>(kind) - 1) * MarkDistance;
            DrawReport(canvas, scale, y + offset, model.Of(kind).ByHorizon.at(horizon), KindColour(kind));
        }
    }
}

double NamesWidth(platform::Canvas const& canvas, Evaluation const& evaluation) {
    double width = 0;
    for (ModelReport const& model : evaluation.Models) {
        width = std::max(width, canvas.TextWidth(ModelName(model.Model)));
    }
    return width + TextGap;
}

void DrawNames(platform::Canvas& canvas, double left, double top, Evaluation const& evaluation) {
    double y = top + (RowHeight() - canvas.TextHeight()) / 2;
    PrintOnPlot(canvas, left, y, "Drift");
    for (ModelReport const& model : evaluation.Models) {
        y += RowHeight();
        PrintOnPlot(canvas, left, y, ModelName(model.Model));
    }
}

// The colours of the kinds, and what a ring means.
void DrawKinds(platform::Canvas& canvas, double left, double y, Evaluation const& evaluation) {
    double const middle = y + canvas.TextHeight() / 2;
    double x = left;
    for (ForecastKind const kind : ForecastKinds) {
        DrawMark(canvas, x + HalfMark, middle, HalfMark, KindColour(kind), Fill::Filled);
        x += 2 * HalfMark + TextGap;
        PrintOnPlot(canvas, x, y, KindName(kind));
        x += canvas.TextWidth(KindName(kind)) + 3 * TextGap;
    }
    DrawMark(canvas, x + HalfRing, middle, HalfMark, CloseColour, Fill::Filled);
    DrawMark(canvas, x + HalfRing, middle, HalfRing, CloseColour, Fill::Outline);
    PrintOnPlot(canvas, x + 2 * HalfRing + TextGap, y,
                "better beyond chance" + ConditionOfFixedCycles(evaluation));
}

} // namespace

double ErrorPlotHeight(platform::Canvas const& canvas, Evaluation const& evaluation) {
    auto const rows = static_cast<double>(evaluation.Models.size() + 1);
    // Caption, heads of the columns, their scales and the kinds.
    return 4 * (canvas.TextHeight() + TextGap) + rows * RowHeight();
}

void DrawErrors(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation) {
    double const line = canvas.TextHeight() + TextGap;
    SetPlotFont(canvas, true);
    PrintOnPlot(canvas, area.Left, area.Top,
                "Error as a ratio to that of the last close, with its 95% interval: left of 1 is better");
    SetPlotFont(canvas, false);
    double const top = area.Top + 2 * line;
    double const bottom = area.Bottom - 2 * line;
    DrawNames(canvas, area.Left, top, evaluation);
    double const left = area.Left + NamesWidth(canvas, evaluation);
    double const step = (area.Right - left + ColumnGap) / static_cast<double>(Horizons.size());
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        double const columnLeft = left + static_cast<double>(index) * step;
        PlotArea const column{columnLeft, top, columnLeft + step - ColumnGap, bottom};
        int const days = Horizons.at(index);
        PrintCentred(canvas, (column.Left + column.Right) / 2, top - line,
                     std::to_string(days) + (days == 1 ? " day ahead" : " days ahead"));
        DrawColumn(canvas, column, evaluation, index);
    }
    DrawKinds(canvas, area.Left, bottom + line, evaluation);
}

} // namespace quorvex::evaluation
