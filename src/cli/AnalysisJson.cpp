// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/AnalysisJson.h"

#include "auxiliary/basProperties.h"
#include "cli/JsonText.h"
#include "cycles/basForecast.h"

#include <cstddef>

namespace quorvex::cli {

namespace {

// Slots 1..last of a curve or list.
template <class Slots>
Json ArrayOf(Slots const& slots, std::ptrdiff_t last) {
    Json array = Json::array();
    for (std::ptrdiff_t slot = 1; slot <= last; ++slot) {
        array.push_back(slots[slot]);
    }
    return array;
}

Json QuotesJson(quotes::QuoteSeries const& series) {
    Json rows = Json::array();
    for (int day = 1; day <= series.WorkingCount; ++day) {
        quotes::QuoteRecord const& quote = series.Working[day];
        rows.push_back(
            {quote.Date, quote.Open, quote.High, quote.Low, quote.Close, quote.Volume, quote.OpenInterest});
    }
    return rows;
}

Json GridJson(cycles::ParameterGrid const& grid) {
    Json rows = Json::array();
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        Json row = Json::array();
        for (auto const parameter : cycles::Parameters) {
            row.push_back(grid.Text(parameter, cycle));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

Json CyclesJson(cycles::CycleParameterSet const& set, std::ptrdiff_t lastDay) {
    Json active = Json::array();
    for (int index = 1; index <= cycles::CycleCount; ++index) {
        cycles::CycleRecord const& cycle = set.Cycles[index];
        if (cycle.IsActive()) {
            active.push_back({{"Weight", cycle.Weight},
                              {"Period", cycle.Period},
                              {"Shift", cycle.Shift},
                              {"Decay", cycle.Decay},
                              {"Values", ArrayOf(cycle.Values, lastDay)}});
        }
    }
    return active;
}

Json FitsJson(std::vector<cycles::SinusoidFit> const& fits) {
    Json array = Json::array();
    for (cycles::SinusoidFit const& fit : fits) {
        array.push_back({{"Amplitude", fit.Amplitude},
                         {"Frequency", fit.Frequency},
                         {"Phase", fit.Phase},
                         {"CosineCoefficient", fit.CosineCoefficient},
                         {"SineCoefficient", fit.SineCoefficient}});
    }
    return array;
}

Json ModelsJson(std::vector<search::CycleModel> const& models) {
    Json array = Json::array();
    for (search::CycleModel const& model : models) {
        Json found = Json::array();
        for (search::FoundCycle const& cycle : model.Cycles) {
            found.push_back({{"Weight", cycle.Weight},
                             {"Period", cycle.Period},
                             {"Shift", cycle.Shift},
                             {"Adds", cycle.Adds}});
        }
        array.push_back({{"Correlation", model.Correlation}, {"Cycles", std::move(found)}});
    }
    return array;
}

Json CorrelationJson(app::AnalysisResult const& result) {
    auto const& r = result.CorrelationCoefficient;
    return {{"r", r ? Json(*r) : Json()},
            {"message", result.CorrelationMessage.Text},
            {"title", result.CorrelationMessage.Title}};
}

Json ForecastJson(quotes::QuoteSeries const& series, app::WholeForecast const& forecast) {
    return {{"Values", ArrayOf(forecast.Values, cycles::ForecastDays)},
            {"Dates", ArrayOf(forecast.Dates, cycles::ForecastDays)},
            {"List1", cycles::PreviousCloseLines(series)},
            {"List2", cycles::EstimatedValueLines(forecast.Values, forecast.Dates)}};
}

Json PropertiesJson(std::vector<auxiliary::PropertyCaption> const& properties) {
    Json captions = Json::object();
    for (auto const& property : properties) {
        captions[std::string(property.Label)] = property.Caption;
    }
    return captions;
}

} // namespace

std::string AnalysisJson(app::Program const& program, cycles::ParameterGrid const& grid,
                         app::AnalysisResult const& result) {
    quotes::QuoteSeries const& series = program.Quotes;
    cycles::CycleCurves const& curves = program.Curves;
    int const n = series.WorkingCount;
    int const lastDay = n + cycles::ForecastDays;
    bool const hasAverage = curves.States.MovingAverage.IsReady();
    bool const hasComposite = curves.States.Composite.IsReady();
    // In the window a residual can rest on the moving average of other quotes.
    bool const hasResidual = curves.States.Residual.IsReady() && hasAverage;
    Json json;
    json["QuoteFileName"] = series.QuoteFileName;
    json["QuoteCount"] = series.QuoteCount;
    json["WorkingCount"] = series.WorkingCount;
    json["FirstQuoteDate"] = series.FirstQuoteDate;
    json["LastQuoteDate"] = series.LastQuoteDate;
    json["Quotes"] = QuotesJson(series);
    json["MovingAverageCurve"] = hasAverage ? ArrayOf(curves.MovingAverageCurve, n) : Json();
    json["PriceScaleHigh"] = curves.PriceScale.PriceScaleHigh;
    json["PriceScaleLow"] = curves.PriceScale.PriceScaleLow;
    json["Grid"] = GridJson(grid);
    json["Cycles"] = hasComposite ? CyclesJson(program.Cycles, lastDay) : Json();
    json["CompositeCurve"] = hasComposite ? ArrayOf(curves.CompositeCurve, lastDay) : Json();
    json["ResidualCurve"] = hasResidual ? ArrayOf(curves.ResidualCurve, n) : Json();
    json["Fits"] = result.Fits.empty() ? Json() : FitsJson(result.Fits);
    if (!result.Models.empty()) {
        json["Search"] = ModelsJson(result.Models);
        json["Detrend"] = result.IsDetrended;
    }
    json["Correlation"] = CorrelationJson(result);
    json["Forecast"] = result.ForecastShown ? ForecastJson(series, *result.ForecastShown) : Json();
    json["Properties"] = result.Properties ? PropertiesJson(*result.Properties) : Json();
    return JsonText(json);
}

} // namespace quorvex::cli
