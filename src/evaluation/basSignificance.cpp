// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basSignificance.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace quorvex::evaluation {

namespace {

constexpr int FewestDegrees = 3;

// A ratio is rounded to some 15 digits.
constexpr double NegligibleGain = 1e-9;
constexpr double NegligibleVariance = NegligibleGain * NegligibleGain;

// u of each origin, as the header has it. Origins without a forecast have no part in any sum.
std::vector<double> Deviations(std::vector<Sums> const& parts, Sums const& sums) {
    double const ratio = sums.Error / sums.ErrorOfLastClose;
    double const scale = sums.Count / sums.ErrorOfLastClose;
    std::vector<double> deviations;
    deviations.reserve(parts.size());
    for (Sums const& part : parts) {
        deviations.push_back((part.Error - ratio * part.ErrorOfLastClose) * scale);
    }
    return deviations;
}

// The sum of products of deviations so many origins apart.
double ProductsAtLag(std::vector<double> const& deviations, std::size_t lag) {
    double sum = 0;
    for (std::size_t origin = lag; origin < deviations.size(); ++origin) {
        sum += deviations[origin] * deviations[origin - lag];
    }
    return sum;
}

// The variance of the mean of so many deviations.
double VarianceOfMean(std::vector<double> const& deviations, double count, std::size_t overlap) {
    double const own = ProductsAtLag(deviations, 0);
    double sum = own;
    for (std::size_t lag = 1; lag < std::min(overlap, deviations.size()); ++lag) {
        sum += 2 * ProductsAtLag(deviations, lag);
    }
    auto const days = static_cast<double>(overlap);
    double const correction = (count + 1 - 2 * days + days * (days - 1) / count) / count;
    return std::max(sum / correction, own * count / (count - 1)) / (count * count);
}

// The probability that t lies between -|value| and |value|, by the finite series that there is for whole
// degrees.
double MiddlePart(double t, int degrees) {
    double const angle = std::atan(std::fabs(t) / std::sqrt(static_cast<double>(degrees)));
    double const sine = std::sin(angle);
    double const cosine = std::cos(angle);
    bool const isOdd = degrees % 2 == 1;
    double term = isOdd ? cosine : 1;
    double sum = 0;
    for (int step = isOdd ? 3 : 2; step <= degrees; step += 2) {
        sum += term;
        term *= cosine * cosine * (step - 1) / step;
    }
    return isOdd ? 2 / std::numbers::pi * (angle + sine * sum) : sine * sum;
}

} // namespace

double UpperTail(double t, int degrees) {
    double const tail = std::max(0.0, (1 - MiddlePart(t, degrees)) / 2);
    return t > 0 ? tail : 1 - tail;
}

std::optional<double> ChanceOfRatio(Moves const& moves, std::size_t overlap) {
    std::vector<Sums> const parts = PartsOf(moves);
    Sums sums;
    for (Sums const& part : parts) {
        sums.Add(part);
    }
    int const degrees = static_cast<int>(sums.Count) - 1 - 2 * (static_cast<int>(overlap) - 1);
    if (sums.Count < FewestForecasts || degrees < FewestDegrees || sums.ErrorOfLastClose == 0) {
        return std::nullopt;
    }
    double const gain = 1 - sums.Error / sums.ErrorOfLastClose;
    if (gain <= NegligibleGain) {
        return 1.0;
    }
    double const variance = VarianceOfMean(Deviations(parts, sums), sums.Count, overlap);
    if (variance < NegligibleVariance) {
        return 0.0; // the ratio is the same everywhere
    }
    return UpperTail(gain / std::sqrt(variance), degrees);
}

std::vector<double> HolmCorrected(std::span<double const> probabilities) {
    std::vector<std::size_t> order(probabilities.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return probabilities[a] < probabilities[b]; });
    std::vector<double> corrected(probabilities.size());
    double largest = 0;
    for (std::size_t rank = 0; rank < order.size(); ++rank) {
        auto const factor = static_cast<double>(order.size() - rank);
        largest = std::max(largest, std::min(1.0, factor * probabilities[order[rank]]));
        corrected[order[rank]] = largest;
    }
    return corrected;
}

} // namespace quorvex::evaluation
