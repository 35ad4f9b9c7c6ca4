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

// The sum of squared distances from the mean; 0 when nothing but rounding is left of it.
double SpreadOf(double square, double sum, double count) {
    constexpr double Negligible = 1e-12;
    double const spread = square - sum * sum / count;
    return spread > Negligible * square ? spread : 0;
}

std::optional<double> CorrelationOf(Sums const& sums) {
    if (sums.Count == 0) {
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

Sums SumsOf(std::optional<Move> const& move) {
    if (!move) {
        return {};
    }
    bool const hasMoved = move->Actual != 0;
    return {.Count = 1,
            .Error = std::fabs(move->Actual - move->Foreseen),
            .ErrorOfLastClose = std::fabs(move->Actual),
            .Moved = hasMoved ? 1.0 : 0.0,
            .Right = hasMoved ? DirectionScore(*move) : 0,
            .Foreseen = move->Foreseen,
            .Actual = move->Actual,
            .ForeseenSquare = move->Foreseen * move->Foreseen,
            .ActualSquare = move->Actual * move->Actual,
            .Product = move->Foreseen * move->Actual};
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
    Sums sums;
    for (std::optional<Move> const& move : moves) {
        sums.Add(SumsOf(move));
    }
    return FiguresOf(sums);
}

} // namespace quorvex::evaluation
