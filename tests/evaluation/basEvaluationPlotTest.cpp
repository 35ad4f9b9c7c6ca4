// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basEvaluationPlot.h"

#include "MadeSeries.h"
#include "evaluation/basEvaluation.h"
#include "platform/RecordingCanvas.h"
#include "support/Operations.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvex::evaluation {
namespace {

using platform::DrawingOperation;
using platform::RecordingCanvas;
using tests::PlacedText;
using tests::PlacedTexts;

Evaluation SomeEvaluation(std::vector<double> const& closes) {
    EvaluationRequest request;
    request.Models = {{Method::Automate, 1}, {Method::Search, 3}, {Method::Search, 1}};
    request.MovingAverageLength = 5;
    request.SampleCount = 50;
    request.SurrogateCount = 0;
    return Evaluate(*tests::SeriesOfCloses(closes), request, [](double) { return true; }).Result.value();
}

bool Overlap(RecordingCanvas const& canvas, PlacedText const& a, PlacedText const& b) {
    double const height = canvas.TextHeight();
    return a.X < b.X + canvas.TextWidth(b.Text) && b.X < a.X + canvas.TextWidth(a.Text) &&
           a.Y < b.Y + height && b.Y < a.Y + height;
}

int CountLines(RecordingCanvas const& canvas, platform::Colour colour) {
    int count = 0;
    for (DrawingOperation const& operation : canvas.Operations()) {
        bool const isLine = operation.What == DrawingOperation::Kind::Line;
        count += isLine && operation.Drawn == colour ? 1 : 0;
    }
    return count;
}

TEST(EvaluationPlot, HasAllItsTextsInsideAndApart) {
    Evaluation const evaluation = SomeEvaluation(tests::CyclicCloses(250, 1));
    RecordingCanvas canvas(PlotWidth, PlotHeight);
    DrawEvaluation(canvas, evaluation, {1, ForecastKind::Composite});
    auto const texts = PlacedTexts(canvas);
    std::set<std::string> words;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        words.insert(texts[index].Text);
        EXPECT_GE(texts[index].X, 0) << texts[index].Text;
        EXPECT_GE(texts[index].Y, 0) << texts[index].Text;
        EXPECT_LE(texts[index].X + canvas.TextWidth(texts[index].Text), PlotWidth) << texts[index].Text;
        EXPECT_LE(texts[index].Y + canvas.TextHeight(), PlotHeight) << texts[index].Text;
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_FALSE(Overlap(canvas, texts[index], texts[other]))
                << texts[index].Text << " on " << texts[other].Text;
        }
    }
    for (auto const* word :
         {"Drift", "Fit of 1 cycle", "Quick search of 3 cycles", "1 day ahead", "25 days ahead", "0.5", "4",
          "window", "composite", "scaled", "01/02/03", "500"}) {
        EXPECT_TRUE(words.contains(word)) << word;
    }
}

// The smallest box of the window.
TEST(EvaluationPlot, HasItsTextsApartInASmallBox) {
    EvaluationRequest request;
    request.Models = StandardModels(false);
    request.MovingAverageLength = 5;
    request.Every = 25;
    request.SampleCount = 10;
    request.SurrogateCount = 0;
    Evaluation evaluation =
        Evaluate(*tests::SeriesOfCloses(tests::CyclicCloses(200, 1)), request, [](double) {
            return true;
        }).Result.value();
    evaluation.Models.push_back(evaluation.Models.back());
    evaluation.Models.back().Model = {Method::Parameters, 0};
    RecordingCanvas canvas(600 * platform::TwipsPerPixel, 480 * platform::TwipsPerPixel);
    DrawEvaluation(canvas, evaluation, {6, ForecastKind::Composite});
    auto const texts = PlacedTexts(canvas);
    EXPECT_GT(texts.size(), 40U);
    for (std::size_t index = 0; index < texts.size(); ++index) {
        EXPECT_LE(texts[index].X + canvas.TextWidth(texts[index].Text), canvas.Width()) << texts[index].Text;
        EXPECT_LE(texts[index].Y + canvas.TextHeight(), canvas.Height()) << texts[index].Text;
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_FALSE(Overlap(canvas, texts[index], texts[other]))
                << texts[index].Text << " on " << texts[other].Text;
        }
    }
}

TEST(EvaluationPlot, DescribesWhatItShows) {
    Evaluation evaluation = SomeEvaluation(tests::WalkingCloses(200, 2));
    evaluation.Origins[1].Forecasts[1].Prices = {}; // a fault
    auto const count = evaluation.Origins.size() - 1;
    EXPECT_EQ(DescribePlot(evaluation, {1, ForecastKind::Scaled}),
              "None of the 3 models forecasts better than the last close. Above, the errors of all models "
              "with their intervals; below, the closes from 01/02/03 to 01/02/03 with " +
                  std::to_string(count) + " forecasts: Quick search of 3 cycles, scaled.");
}

TEST(EvaluationPlot, DrawsEveryForecastOfTheChoiceAndTheCloses) {
    Evaluation evaluation = SomeEvaluation(tests::WalkingCloses(200, 2));
    evaluation.Origins[1].Forecasts[1].Prices = {}; // a fault
    RecordingCanvas canvas(PlotWidth, PlotHeight);
    DrawEvaluation(canvas, evaluation, {1, ForecastKind::Composite});
    constexpr platform::Colour Composite = 0x0000C0;
    RecordingCanvas other(PlotWidth, PlotHeight);
    DrawEvaluation(other, evaluation, {1, ForecastKind::Window});
    auto const forecasts = static_cast<int>(evaluation.Origins.size()) - 1;
    EXPECT_EQ(CountLines(canvas, Composite) - CountLines(other, Composite),
              forecasts * 25 + 1); // and the sample of the legend
    // A forecast begins at the close of its origin.
    EXPECT_GE(CountLines(canvas, platform::Black), 199);
}

TEST(EvaluationPlot, StaysEmptyWithoutRoom) {
    Evaluation const evaluation = SomeEvaluation(tests::WalkingCloses(200, 3));
    for (auto const& [width, height] : {std::pair{100.0, 100.0}, {PlotWidth, 3000.0}, {2000.0, PlotHeight}}) {
        RecordingCanvas canvas(width, height);
        DrawEvaluation(canvas, evaluation, {0, ForecastKind::Window});
        EXPECT_TRUE(PlacedTexts(canvas).empty());
    }
}

TEST(EvaluationPlot, LabelsSmallAndLargePrices) {
    for (double const factor : {1e-5, 1e9}) {
        auto closes = tests::WalkingCloses(200, 4);
        for (double& close : closes) {
            close *= factor;
        }
        auto series = tests::SeriesOfCloses(closes);
        for (int day = 1; day <= series->WorkingCount; ++day) {
            series->Working[day].High = series->Working[day].Close + factor;
            series->Working[day].Low = series->Working[day].Close - factor;
        }
        EvaluationRequest request;
        request.Models = {{Method::Search, 1}};
        request.SampleCount = 10;
        request.SurrogateCount = 0;
        auto const outcome = Evaluate(*series, request, [](double) { return true; });
        RecordingCanvas canvas(PlotWidth, PlotHeight);
        DrawEvaluation(canvas, *outcome.Result, {0, ForecastKind::Scaled});
        auto const texts = PlacedTexts(canvas);
        EXPECT_GT(texts.size(), 30U);
        std::set<std::string> prices;
        for (PlacedText const& text : texts) {
            prices.insert(text.Text);
        }
        EXPECT_TRUE(prices.contains(factor < 1 ? "0.0100" : "1000000000000"))
            << testing::PrintToString(prices);
    }
}

TEST(EvaluationPlot, ChoosesWhatIsBetterThanTheLastClose) {
    Evaluation evaluation = SomeEvaluation(tests::WalkingCloses(200, 5));
    for (ModelReport& model : evaluation.Models) {
        for (KindReport& kind : model.ByKind) {
            for (HorizonReport& report : kind.ByHorizon) {
                report.IsBetter = false;
            }
        }
    }
    EXPECT_EQ(ChooseFan(evaluation).Model, 1U); // the search of three cycles
    EXPECT_EQ(ChooseFan(evaluation).Kind, ForecastKind::Composite);
    auto const improve = [&evaluation](std::size_t model, ForecastKind kind, double chance) {
        HorizonReport& report =
            evaluation.Models.at(model).ByKind.at(static_cast<std::size_t>(kind)).ByHorizon.at(3);
        report.IsBetter = true;
        report.Chance = chance;
    };
    improve(0, ForecastKind::Scaled, 0.02);
    improve(2, ForecastKind::Window, 0.01);
    EXPECT_EQ(ChooseFan(evaluation).Model, 2U);
    EXPECT_EQ(ChooseFan(evaluation).Kind, ForecastKind::Window);
    EXPECT_EQ(ChooseKind(evaluation.Models[0]), ForecastKind::Scaled);
    EXPECT_EQ(ChooseKind(evaluation.Models[1]), ForecastKind::Composite);
}

TEST(EvaluationPlot, WithoutThatChoosesTheSearchOfThreeCyclesOrTheLastModel) {
    Evaluation evaluation;
    auto const choice = [&evaluation](std::vector<Model> const& models) {
        evaluation.Models.clear();
        for (Model const& model : models) {
            evaluation.Models.push_back({model, {}, {}, {}});
        }
        return ChooseFan(evaluation).Model;
    };
    Model const fixed{Method::Parameters, 0};
    EXPECT_EQ(choice({{Method::Search, 3}, {Method::Search, 5}, fixed}), 0U);
    EXPECT_EQ(choice({{Method::Automate, 1}, {Method::Automate, 2}}), 1U);
    EXPECT_EQ(choice({{Method::Automate, 1}, {Method::Automate, 2}, fixed}), 1U);
    EXPECT_EQ(choice({fixed, {Method::Automate, 2}, fixed}), 1U);
    EXPECT_EQ(choice({fixed}), 0U);
}

TEST(EvaluationPlot, NeverChoosesFixedCyclesBesideOthers) {
    Evaluation evaluation;
    evaluation.Models = {{{Method::Automate, 1}, {}, {}, {}}, {{Method::Parameters, 0}, {}, {}, {}}};
    HorizonReport& report = evaluation.Models[1].ByKind.at(2).ByHorizon.at(3);
    report.IsBetter = true;
    report.Chance = 0.001;
    EXPECT_EQ(ChooseFan(evaluation).Model, 0U);
}

TEST(EvaluationPlot, SaysThatFixedCyclesMayHaveBeenChosenLater) {
    Evaluation evaluation = SomeEvaluation(tests::WalkingCloses(200, 6));
    evaluation.Models[2].Model = {Method::Parameters, 0};
    RecordingCanvas canvas(PlotWidth, PlotHeight);
    DrawEvaluation(canvas, evaluation, {2, ForecastKind::Composite});
    std::set<std::string> words;
    auto const texts = PlacedTexts(canvas);
    for (std::size_t index = 0; index < texts.size(); ++index) {
        words.insert(texts[index].Text);
        EXPECT_LE(texts[index].X + canvas.TextWidth(texts[index].Text), PlotWidth) << texts[index].Text;
        for (std::size_t other = 0; other < index; ++other) {
            EXPECT_FALSE(Overlap(canvas, texts[index], texts[other]))
                << texts[index].Text << " on " << texts[other].Text;
        }
    }
    EXPECT_TRUE(words.contains("Closes and forecasts: Parameters (fixed cycles), composite"));
    EXPECT_TRUE(words.contains("better beyond chance; fixed cycles only if chosen before 01/02/03"));
}

} // namespace
} // namespace quorvex::evaluation
