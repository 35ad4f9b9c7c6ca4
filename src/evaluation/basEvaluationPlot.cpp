// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basEvaluationPlot.h"

#include "evaluation/PlotArea.h"
#include "evaluation/basErrorPlot.h"
#include "evaluation/basFanPlot.h"
#include "evaluation/basVerdicts.h"

#include <optional>

namespace quorvex::evaluation {

namespace {

// In twips.
constexpr double PlotMargin = 150;
constexpr double LeastPlotWidth = 8600;
constexpr double LeastFanHeight = 1500;

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

// What a kind's best horizon is better by chance with; nothing when it is nowhere better.
std::optional<double> LeastChance(KindReport const& kind) {
    std::optional<double> least;
    for (HorizonReport const& report : kind.ByHorizon) {
        if (report.IsBetter && (!least || *report.Chance < *least)) {
            least = report.Chance;
        }
    }
    return least;
}

} // namespace

FanChoice ChooseFan(Evaluation const& evaluation) {
    FanChoice choice{UsualModel(evaluation.Models), ForecastKind::Composite};
    std::optional<double> least;
    for (std::size_t index = 0; index < evaluation.Models.size(); ++index) {
        if (!IsRefitted(evaluation.Models[index].Model)) {
            continue;
        }
        ForecastKind const kind = ChooseKind(evaluation.Models[index]);
        auto const chance = LeastChance(evaluation.Models[index].Of(kind));
        if (chance && (!least || *chance < *least)) {
            least = chance;
            choice = {index, kind};
        }
    }
    return choice;
}

ForecastKind ChooseKind(ModelReport const& model) {
    ForecastKind choice = ForecastKind::Composite;
    std::optional<double> least;
    for (ForecastKind const kind : ForecastKinds) {
        auto const chance = LeastChance(model.Of(kind));
        if (chance && (!least || *chance < *least)) {
            least = chance;
            choice = kind;
        }
    }
    return choice;
}

void DrawPlot(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
              FanChoice const& choice) {
    canvas.SetForeColour(platform::Black);
    SetPlotFont(canvas, false);
    PlotArea upper = area;
    upper.Bottom = upper.Top + ErrorPlotHeight(canvas, evaluation);
    PlotArea lower = area;
    lower.Top = upper.Bottom + PlotMargin;
    if (area.Width() < LeastPlotWidth || lower.Height() < LeastFanHeight) {
        return;
    }
    DrawErrors(canvas, upper, evaluation);
    DrawFan(canvas, lower, evaluation, choice);
}

void DrawEvaluation(platform::Canvas& canvas, Evaluation const& evaluation, FanChoice const& choice) {
    canvas.Clear();
    PlotArea const all{PlotMargin, PlotMargin, canvas.Width() - PlotMargin, canvas.Height() - PlotMargin};
    DrawPlot(canvas, all, evaluation, choice);
}

std::string DescribePlot(Evaluation const& evaluation, FanChoice const& choice) {
    int forecasts = 0;
    for (Origin const& origin : evaluation.Origins) {
        forecasts += origin.Forecasts[choice.Model].Of(choice.Kind) ? 1 : 0;
    }
    return VerdictOf(evaluation) +
           " Above, the errors of all models with their intervals; below, the closes from " +
           evaluation.Dates.front() + " to " + evaluation.Dates.back() + " with " +
           std::to_string(forecasts) + (forecasts == 1 ? " forecast: " : " forecasts: ") +
           FanName(evaluation, choice) + '.';
}

} // namespace quorvex::evaluation
