// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The search of the moving average, as the companion and the window ask for it, and what it puts into the
// grid.
#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/ParameterGrid.h"
#include "search/CycleModel.h"
#include "search/CycleSearch.h"
#include "search/GoOn.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quorvex::search {

inline constexpr int MostCycles = 10;
inline constexpr int ShortestPeriod = 2; // trading days
inline constexpr int DefaultMinPeriod = 5;
inline constexpr int LongestPeriod = 500;    // trading days
inline constexpr int LargestLeastSwing = 90; // of 100
// What the window suggests: a composite that can be told from a flat line in its chart.
inline constexpr int VisibleSwing = 20;

struct SearchRequest {
    int CycleCount = 3; // 1..10
    int MinPeriod = DefaultMinPeriod;
    std::optional<int> MaxPeriod =
        std::nullopt; // half the days when there is none: a cycle that was not seen twice is a trend
    Effort HowHard = Effort::Thorough;
    int LeastSwing = 0;   // of the composite of two cycles or more, 0..90 of 100; see SearchAim
    bool Detrend = false; // search what is left of the moving average beside its straight line
};

struct SearchOutcome {
    // Of 1, 2 .. cycles, as many as were asked for; empty after a refusal, and when the search was ended.
    std::vector<CycleModel> Models;
    std::string Refusal; // why there is nothing to search, a sentence for the user; empty otherwise
};

// The longest period that a request means for so many days.
[[nodiscard]] int MaxPeriodOf(SearchRequest const& request, int days);

// Searches a series of daily values. REQUIRES: one value at least; all are finite.
[[nodiscard]] SearchOutcome SearchSeries(std::span<double const> series, SearchRequest const& request,
                                         GoOn const& goOn, TakeModel const& take = {});

// The moving average of the working days.
[[nodiscard]] std::vector<double> MovingAverageSeries(cycles::CycleCurves const& curves,
                                                      std::int16_t workingCount);

// Searches the moving average of the working days.
[[nodiscard]] SearchOutcome SearchMovingAverage(cycles::CycleCurves const& curves, std::int16_t workingCount,
                                                SearchRequest const& request, GoOn const& goOn);

// A composite's extremes over the working days: of the 100 units on each side of zero little is used when
// cycles almost cancel each other.
struct Extremes {
    double Lowest = 0;  // up to 0
    double Highest = 0; // from 0
};

[[nodiscard]] Extremes ExtremesOf(cycles::CycleCurve const& composite, std::int16_t workingCount);

// What the program tells and draws once the grid holds a model.
struct GridComposite {
    std::optional<double> Correlation; // with the moving average; nothing where there is none to tell
    Extremes Swing;
};

// Raises the faults of the Correlation command.
[[nodiscard]] GridComposite CompositeInGrid(CycleModel const& model, cycles::CycleCurves const& curves,
                                            std::int16_t workingCount);

// The series less the straight line that fits it best.
[[nodiscard]] std::vector<double> WithoutLine(std::span<double const> series);

// Makes the grid hold the model and nothing else: cycles from 1 on, all other cells "0".
void WriteModel(CycleModel const& model, cycles::ParameterGrid& grid);

} // namespace quorvex::search
