// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What is computed from quotes and cycles, and everything that shows it reads.
#pragma once

#include "cycles/ChartStates.h"
#include "quotes/PriceScale.h"
#include "quotes/QuoteSeries.h"
#include "text/SlotArray.h"

#include <cstdint>

namespace quorvex::cycles {

// The trading days past the last quote that are forecast.
inline constexpr std::int16_t ForecastDays = 25;

// The last day of a cycle's curve: 525.
inline constexpr std::int16_t LastCurveDay = quotes::MaxQuotes + ForecastDays;

using CycleCurve = text::SlotArray<double, LastCurveDay>;
using QuoteCurve = text::SlotArray<double, quotes::MaxQuotes>;

// The curves by trading day, day 1 the oldest of the working copy; slot 0 is never filled.
struct CycleCurves {
    CycleCurve CompositeCurve;     // days 1..n+25, in cycle units: -100..+100 spans the price scale
    QuoteCurve MovingAverageCurve; // days 1..n, in prices
    QuoteCurve ResidualCurve;      // days 1..n, in cycle units
    std::int16_t MovingAverageLength = 0;
    quotes::PriceScale PriceScale;
    ChartStates States;
};

} // namespace quorvex::cycles
