// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Forecasts from one day, made of the days up to it.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "cycles/basForecast.h"
#include "evaluation/Models.h"
#include "quotes/QuoteSeries.h"
#include "search/GoOn.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvex::evaluation {

// The days that the last forecast needs behind it, and the fewest before the first one.
inline constexpr int LongestHorizon = cycles::ForecastDays;
inline constexpr int FewestPastDays = 100;

// The fewest days of a series that can be tested.
inline constexpr int FewestDays = FewestPastDays + LongestHorizon;

// The days after which forecasts are made: every so many from the middle of the series or day 100, whichever
// is later, to 25 days before the end. None for a series of less than 125 days. REQUIRES: every 1 or more.
[[nodiscard]] std::vector<int> OriginsOf(int days, int every);

// What forecasts are made with on every day alike.
struct Plan {
    std::vector<Model> Models;
    std::int16_t MovingAverageLength = 0;
    cycles::CycleParameterSet const* Parameters = nullptr; // of the model of that method
};

// What one model foresees for the next 25 days, by kind.
struct ModelForecast {
    std::array<std::optional<cycles::ForecastCurve>, ForecastKinds.size()> Prices;
    std::string Fault; // why there is none; empty otherwise

    [[nodiscard]] std::optional<cycles::ForecastCurve> const& Of(ForecastKind kind) const {
        return Prices.at(static_cast<std::size_t>(kind));
    }
};

// The forecasts of the plan's models, in their order. Moving average and price scale are those of the days
// given, which are all that is known. Nothing at all when the callback ended it. REQUIRES: 25..500 days.
[[nodiscard]] std::vector<ModelForecast> ForecastsAt(std::span<quotes::QuoteRecord const> past,
                                                     Plan const& plan, search::GoOn const& goOn);

} // namespace quorvex::evaluation
