// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Draws what a test of forecasts found: the errors with their intervals above, forecasts over the closes
// below.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/PlotArea.h"
#include "platform/Canvas.h"

#include <cstddef>
#include <string>

namespace quorvex::evaluation {

// The size in which texts and marks have room, in twips.
inline constexpr double PlotWidth = 16'500;
inline constexpr double PlotHeight = 12'000;

// Whose forecasts are drawn over the closes.
struct FanChoice {
    std::size_t Model = 0; // its position
    ForecastKind Kind = ForecastKind::Composite;
};

// The model and kind that is most surely better than the last close. When none is, the composite of the
// search of three cycles; of the last model without that. Fixed cycles are chosen when there is nothing else.
// REQUIRES: one model at least.
[[nodiscard]] FanChoice ChooseFan(Evaluation const& evaluation);

// The kind of this model that is most surely better than the last close, else the composite.
[[nodiscard]] ForecastKind ChooseKind(ModelReport const& model);

// Draws both into the area. Nothing where they have no room.
void DrawPlot(platform::Canvas& canvas, PlotArea const& area, Evaluation const& evaluation,
              FanChoice const& choice);

// The same on the whole canvas, which it clears.
void DrawEvaluation(platform::Canvas& canvas, Evaluation const& evaluation, FanChoice const& choice);

// What the plot shows, in sentences.
[[nodiscard]] std::string DescribePlot(Evaluation const& evaluation, FanChoice const& choice);

} // namespace quorvex::evaluation
