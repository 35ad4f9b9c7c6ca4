// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basFigures.h"

#include <algorithm>
#include <cmath>

namespace quorvex::evaluation {

namespace {

// 1 for the right direction, 0 for the wrong one.
double DirectionScore(Move const& move) {
    if (move.Foreseen == 0) {
        return 0.5;
    }
    return (move.Foreseen > 0) == (move.Actual > 0) ? 1 : 0;
}

// Those of all forecasts.
struct Means {
    double Foreseen = 0;
    double Actual = 0;
};

Means MeansOf(Moves const& moves) {
    Means means;
    auto const count = static_cast<double>(ForecastCount(moves));
    for (std::optional<Move> const& move : moves) {
        means.Foreseen += move ? move->Foreseen / count : 0;
        means.Actual += move ? move->Actual / count : 0;
    }
    return means;
}

// 0 when it is rounding: moves are differences of prices that are larger by far.
double DistanceFrom(double mean, double value) {
    constexpr double Negligible = 1e-9;
    double const distance = value - mean;
    return std::fabs(distance) > Negligible * std::fabs(mean) ? distance : 0;
}

Sums PartOf(std::optional<Move> const& move, Means const& means) {
    if (!move) {
        return {};
    }
    bool const hasMoved = move->Actual != 0;
    double const foreseen = DistanceFrom(means.Foreseen, move->Foreseen);
    double const actual = DistanceFrom(means.Actual, move->Actual);
    return {.Count = 1,
            .Error = std::fabs(move->Actual - move->Foreseen),
            .ErrorOfLastClose = std::fabs(move->Actual),
            .Moved = hasMoved ? 1.0 : 0.0,
            .Right = hasMoved ? DirectionScore(*move) : 0,
            .Foreseen = foreseen,
            .Actual = actual,
            .ForeseenSquare = foreseen * foreseen,
            .ActualSquare = actual * actual,
            .Product = foreseen * actual};
}

// The sum of squared distances from the mean; 0 when nothing but rounding is left of it.
double SpreadOf(double square, double sum, double count) {
    constexpr double Negligible = 1e-12;
    double const spread = square - sum * sum / count;
    return spread > Negligible * square ? spread : 0;
}

std::optional<double> CorrelationOf(Sums const& sums) {
    constexpr double Fewest = 3; // two forecasts lie on a line whatever they are
    if (sums.Count < Fewest) {
        return std::nullopt;
    }
    double const foreseen = SpreadOf(sums.ForeseenSquare, sums.Foreseen, sums.Count);
    double const actual = SpreadOf(sums.ActualSquare, sums.Actual, sums.Count);
    if (foreseen == 0 || actual == 0) {
        return std::nullopt;
    }
    double const common = sums.Product - sums.Foreseen * sums.Actual / sums.Count;
    return std::clamp(common / std::sqrt(foreseen) / std::sqrt(actual), -1.0, 1.0);
}

} // namespace

void Sums::Add(Sums const& other) {
    Count += other.Count;
    Error += other.Error;
    ErrorOfLastClose += other.ErrorOfLastClose;
    Moved += other.Moved;
    Right += other.Right;
    Foreseen += other.Foreseen;
    Actual += other.Actual;
    ForeseenSquare += other.ForeseenSquare;
    ActualSquare += other.ActualSquare;
    Product += other.Product;
}

std::size_t ForecastCount(Moves const& moves) {
    return static_cast<std::size_t>(
        std::count_if(moves.begin(), moves.end(), [](auto const& move) { return move.has_value(); }));
}

std::vector<Sums> PartsOf(Moves const& moves) {
    Means const means = MeansOf(moves);
    std::vector<Sums> parts;
    parts.reserve(moves.size());
    for (std::optional<Move> const& move : moves) {
        parts.push_back(PartOf(move, means));
    }
    return parts;
}

Sums SumsOf(Moves const& moves) {
    Sums sums;
    for (Sums const& part : PartsOf(moves)) {
        sums.Add(part);
    }
    return sums;
}

Figures FiguresOf(Sums const& sums) {
    Figures figures;
    if (sums.ErrorOfLastClose > 0) {
        figures.ErrorRatio = sums.Error / sums.ErrorOfLastClose;
    }
    if (sums.Moved > 0) {
        figures.RightDirections = sums.Right / sums.Moved;
    }
    figures.Correlation = CorrelationOf(sums);
    return figures;
}

Figures FiguresOf(Moves const& moves) {
    return FiguresOf(SumsOf(moves));
}

} // namespace quorvex::evaluation
