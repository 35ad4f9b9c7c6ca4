// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basEvaluationPlot.h"

#include "evaluation/PlotArea.h"
#include "evaluation/basErrorPlot.h"
#include "evaluation/basFanPlot.h"

#include <optional>

namespace quorvex::evaluation {

namespace {

// What is drawn when nothing is better than the last close.
std::size_t UsualModel(std::vector<ModelReport> const& models) {
    constexpr Model Usual{Method::Search, 3};
    std::size_t usual = models.size() - 1;
    for (std::size_t index = 0; index < models.size(); ++index) {
        bool const isFirstChoice = models[index].Model == Usual;
        bool const isBetterThanNone = IsRefitted(models[index].Model) && models[usual].Model != Usual;
        usual = isFirstChoice || isBetterThanNone ? index : usual;
    }
    return usual;
}

} // namespace

FanChoice ChooseFan(Evaluation const& evaluation) {
    FanChoice choice{UsualModel(evaluation.Models), ForecastKind::Composite};
    std::optional<double> least;
    for (std::size_t index = 0; index < evaluation.Models.size(); ++index) {
        if (!IsRefitted(evaluation.Models[index].Model)) {
            continue;
        }
        for (ForecastKind const kind : ForecastKinds) {
            for (HorizonReport const& report : evaluation.Models[index].Of(kind).ByHorizon) {
                if (report.IsBetter && (!least || *report.Chance < *least)) {
                    least = report.Chance;
                    choice = {index, kind};
                }
            }
        }
    }
    return choice;
}

void DrawEvaluation(platform::Canvas& canvas, Evaluation const& evaluation, FanChoice const& choice) {
    constexpr double Margin = 150;
    constexpr double LeastFan = 1500;
    canvas.Clear();
    canvas.SetForeColour(platform::Black);
    SetPlotFont(canvas, false);
    double const errors = ErrorPlotHeight(canvas, evaluation);
    PlotArea const all{Margin, Margin, canvas.Width() - Margin, canvas.Height() - Margin};
    PlotArea const upper{all.Left, all.Top, all.Right, all.Top + errors};
    PlotArea const lower{all.Left, upper.Bottom + Margin, all.Right, all.Bottom};
    if (all.Width() < PlotWidth / 2 || lower.Height() < LeastFan) {
        return;
    }
    DrawErrors(canvas, upper, evaluation);
    DrawFan(canvas, lower, evaluation, choice);
}

} // namespace quorvex::evaluation
