// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How good forecasts were: errors, directions, correlation.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quorvex::evaluation {

// How far the close moved from the origin to the horizon, and how far a forecast said that it would. In
// prices.
struct Move {
    double Foreseen = 0;
    double Actual = 0;
};

// By origin; nothing where there was no forecast.
using Moves = std::vector<std::optional<Move>>;

// Fewer forecasts than these tell too little of chance: their figures have neither intervals nor chances.
inline constexpr std::size_t FewestForecasts = 10;

// How many there are.
[[nodiscard]] std::size_t ForecastCount(Moves const& moves);

// What does not exist is empty: a ratio to no error, a direction where nothing moved, a correlation with what
// is always the same or of fewer than three forecasts.
struct Figures {
    std::optional<double> ErrorRatio;      // mean absolute error as a ratio to that of the last close
    std::optional<double> RightDirections; // share of 1; a forecast without a change is half right
    std::optional<double> Correlation;     // of foreseen and actual moves, -1..1
};

// The figures as sums over origins, so that origins can be drawn again and again. What the correlation is
// made of is counted from the means of all moves, so that little is lost where these are large.
struct Sums {
    double Count = 0;
    double Error = 0;
    double ErrorOfLastClose = 0;
    double Moved = 0;    // origins after which the close moved
    double Right = 0;    // of these
    double Foreseen = 0; // from the mean, as all below
    double Actual = 0;
    double ForeseenSquare = 0;
    double ActualSquare = 0;
    double Product = 0;

    void Add(Sums const& other);
};

// The part of each origin; all zero where there is no forecast.
[[nodiscard]] std::vector<Sums> PartsOf(Moves const& moves);

[[nodiscard]] Sums SumsOf(Moves const& moves);

[[nodiscard]] Figures FiguresOf(Sums const& sums);

[[nodiscard]] Figures FiguresOf(Moves const& moves);

} // namespace quorvex::evaluation
