// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tests the forecasts of any series: whatever is found must be finite and make sense.

#include "Require.h"
#include "evaluation/basEvaluation.h"
#include "evaluation/basEvaluationPlot.h"
#include "evaluation/basVerdicts.h"
#include "platform/RecordingCanvas.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace {

using namespace quorvex;
using quorvex::fuzz::Require;

constexpr std::size_t HeadSize = 4;
constexpr std::int16_t MostDays = 160; // longer series find nothing else, and slowly

// The closes go on from the bytes of the input, large and small ones among them; they repeat when it is
// short.
std::unique_ptr<quotes::QuoteSeries> SeriesOf(std::uint8_t const* data, std::size_t size, bool isWild) {
    auto series = std::make_unique<quotes::QuoteSeries>();
    series->QuoteFileName = "any";
    for (std::size_t place = 0; series->WorkingCount < MostDays; ++place) {
        std::size_t const at = place % size;
        double close = data[at];
        if (isWild && data[at] > 0xF0 && at + sizeof close < size) {
            double any = 0;
            std::memcpy(&any, data + at, sizeof any);
            close = std::isfinite(any) ? any : close;
        }
        ++series->WorkingCount;
        series->Working[series->WorkingCount] = {
            "01/02/03", close, close + data[at] % 3, close - data[at] % 2, close, 0, 0};
    }
    return series;
}

void CheckFigures(evaluation::Figures const& figures) {
    Require(!figures.ErrorRatio || (std::isfinite(*figures.ErrorRatio) && *figures.ErrorRatio >= 0));
    Require(!figures.RightDirections || (*figures.RightDirections >= 0 && *figures.RightDirections <= 1));
    Require(!figures.Correlation || (*figures.Correlation >= -1 && *figures.Correlation <= 1));
}

void CheckModel(evaluation::ModelReport const& model) {
    Require(!model.Verdict.empty());
    for (evaluation::KindReport const& kind : model.ByKind) {
        for (evaluation::HorizonReport const& report : kind.ByHorizon) {
            CheckFigures(report.Figures);
            Require(!report.Chance || (*report.Chance >= 0 && *report.Chance <= 1));
            Require(!report.IsBetter || (report.Chance && report.Intervals.ErrorRatio));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size <= HeadSize) {
        return 0;
    }
    evaluation::EvaluationRequest request;
    request.Models = {{evaluation::Method::Automate, 2}, {evaluation::Method::Search, 2}};
    request.MovingAverageLength = data[0];
    request.Every = 1 + data[1] % 30;
    request.SampleCount = 5;
    request.SurrogateCount = data[2] % 2;
    auto const series = SeriesOf(data + HeadSize, size - HeadSize, (data[3] & 1U) != 0);
    auto const outcome = evaluation::Evaluate(*series, request, [](double) { return true; });
    Require(outcome.Result.has_value() == outcome.Refusal.empty());
    if (outcome.Result) {
        for (evaluation::ModelReport const& model : outcome.Result->Models) {
            CheckModel(model);
        }
        for (auto const& row : evaluation::TableRows(*outcome.Result)) {
            Require(row.Error.find("nan") == std::string::npos && row.Error.find("inf") == std::string::npos);
        }
        platform::RecordingCanvas canvas(evaluation::PlotWidth, evaluation::PlotHeight);
        evaluation::DrawEvaluation(canvas, *outcome.Result, evaluation::ChooseFan(*outcome.Result));
    }
    return 0;
}
