// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/EvaluationJson.h"

#include "cli/JsonText.h"
#include "text/basNumbers.h"

namespace quorvex::cli {

namespace {

using evaluation::ForecastKind;

// What was computed, without the last bits, in which the sines of two machines may differ.
Json Computed(std::optional<double> const& value) {
    constexpr int Digits = 12;
    return value ? Json(text::RoundedToDigits(*value, Digits)) : Json();
}

Json FigureJson(std::optional<double> const& value, std::optional<evaluation::Interval> const& interval) {
    return {{"Value", Computed(value)},
            {"Low", interval ? Computed(interval->Low) : Json()},
            {"High", interval ? Computed(interval->High) : Json()}};
}

Json HorizonsJson(evaluation::HorizonReports const& reports, bool isTested) {
    Json array = Json::array();
    for (std::size_t index = 0; index < evaluation::Horizons.size(); ++index) {
        evaluation::HorizonReport const& report = reports.at(index);
        Json one = {
            {"Days", evaluation::Horizons.at(index)},
            {"ErrorRatio", FigureJson(report.Figures.ErrorRatio, report.Intervals.ErrorRatio)},
            {"RightDirections", FigureJson(report.Figures.RightDirections, report.Intervals.RightDirections)},
            {"Correlation", FigureJson(report.Figures.Correlation, report.Intervals.Correlation)}};
        if (isTested) {
            one["p"] = Computed(report.Chance);
            one["IsBetter"] = report.IsBetter;
        }
        array.push_back(std::move(one));
    }
    return array;
}

Json ValuesJson(evaluation::Evaluation const& evaluation, std::size_t model, ForecastKind kind) {
    Json rows = Json::array();
    for (evaluation::Origin const& origin : evaluation.Origins) {
        auto const& forecast = origin.Forecasts[model].Of(kind);
        Json row = forecast ? Json::array() : Json();
        for (int day = 1; forecast && day <= cycles::ForecastDays; ++day) {
            row.push_back(Computed((*forecast)[day]));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

std::string_view MethodName(evaluation::Method method) {
    switch (method) {
    case evaluation::Method::Automate:
        return "automate";
    case evaluation::Method::Search:
        return "search";
    case evaluation::Method::Parameters:
        return "parameters";
    }
    return {};
}

Json ModelJson(evaluation::Evaluation const& evaluation, std::size_t position) {
    evaluation::ModelReport const& report = evaluation.Models[position];
    bool const isRefitted = evaluation::IsRefitted(report.Model);
    Json forecasts = Json::array();
    for (ForecastKind const kind : evaluation::ForecastKinds) {
        forecasts.push_back({{"Kind", evaluation::KindName(kind)},
                             {"ForecastCount", report.Of(kind).ForecastCount},
                             {"Horizons", HorizonsJson(report.Of(kind).ByHorizon, true)},
                             {"Values", ValuesJson(evaluation, position, kind)}});
    }
    return {{"Name", evaluation::ModelName(report.Model)},
            {"Method", MethodName(report.Model.Method)},
            {"CycleCount", isRefitted ? Json(report.Model.CycleCount) : Json()},
            {"IsRefitted", isRefitted},
            {"Verdict", report.Verdict},
            {"Faults", Json(report.Faults)},
            {"Forecasts", std::move(forecasts)}};
}

Json OriginsJson(evaluation::Evaluation const& evaluation) {
    Json array = Json::array();
    for (evaluation::Origin const& origin : evaluation.Origins) {
        array.push_back({{"Day", origin.Day}, {"Date", evaluation.DateOf(origin)}});
    }
    return array;
}

Json SurrogatesJson(evaluation::Evaluation const& evaluation) {
    Json searches = Json::array();
    for (evaluation::SurrogateReport const& report : evaluation.Surrogates) {
        searches.push_back({{"CycleCount", report.CycleCount},
                            {"Correlation", Computed(report.Correlation)},
                            {"AsWell", report.AsWell},
                            {"p", static_cast<double>(report.AsWell) / evaluation.SurrogateCount}});
    }
    return {{"Count", evaluation.SurrogateCount}, {"Searches", std::move(searches)}};
}

} // namespace

std::string EvaluationJson(evaluation::Evaluation const& evaluation) {
    Json json;
    json["QuoteFileName"] = evaluation.QuoteFileName;
    json["MovingAverageLength"] = evaluation.MovingAverageLength;
    json["Every"] = evaluation.Every;
    json["BlockLength"] = evaluation.BlockLength;
    json["SampleCount"] = evaluation.SampleCount;
    json["Dates"] = evaluation.Dates;
    json["Closes"] = evaluation.Closes;
    json["Origins"] = OriginsJson(evaluation);
    Json errors = Json::array();
    for (double const error : evaluation.LastCloseError) {
        errors.push_back(Computed(error));
    }
    json["LastClose"] = {{"MeanAbsoluteError", std::move(errors)}};
    json["Drift"] = {{"Horizons", HorizonsJson(evaluation.Drift, false)}};
    Json models = Json::array();
    for (std::size_t position = 0; position < evaluation.Models.size(); ++position) {
        models.push_back(ModelJson(evaluation, position));
    }
    json["Models"] = std::move(models);
    json["Surrogates"] = SurrogatesJson(evaluation);
    return JsonText(json);
}

} // namespace quorvex::cli
