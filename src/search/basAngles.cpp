// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basAngles.h"

#include <array>
#include <cstddef>
#include <numbers>

namespace quorvex::search {

namespace {

// The series of Taylor, nested, within pi / 4 of zero, where eighteen powers are enough for a double.
constexpr int LastPower = 18;

// By power: 1 / (power * (power - 1)), the quotient of one term and the last but one.
constexpr std::array<double, LastPower + 1> Quotients = [] {
    std::array<double, LastPower + 1> quotients{};
    for (std::size_t power = 2; power < quotients.size(); ++power) {
        quotients[power] = 1.0 / static_cast<double>(power * (power - 1));
    }
    return quotients;
}();

// 1 minus what follows the first term of the series, by powers of one parity.
template <std::size_t Power>
double Nested(double square) {
    if constexpr (Power > LastPower) {
        return 1;
    } else {
        return 1 - Quotients[Power] * square * Nested<Power + 2>(square);
    }
}

} // namespace

Direction DirectionAt(std::int64_t numerator, std::int64_t denominator) {
    std::int64_t const turn = 2 * denominator;
    std::int64_t const inTurn = (numerator % turn + turn) % turn;
    // The nearest quarter of a turn, and what is left to it in units of pi / (2 * denominator).
    std::int64_t const quarter = (2 * inTurn + denominator / 2) / denominator;
    std::int64_t const rest = 2 * inTurn - quarter * denominator;
    double const angle =
        std::numbers::pi / 2 * (static_cast<double>(rest) / static_cast<double>(denominator));
    double const cosine = Nested<2>(angle * angle);
    double const sine = angle * Nested<3>(angle * angle);
    switch (quarter % 4) {
    case 0:
        return {cosine, sine};
    case 1:
        return {-sine, cosine};
    case 2:
        return {-cosine, -sine};
    default:
        return {sine, -cosine};
    }
}

} // namespace quorvex::search
