// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basWeights.h"

#include "search/Triangle.h"

#include <algorithm>
#include <cmath>

namespace quorvex::search {

namespace {

// The waves that take part in a fit.
struct Chosen {
    std::size_t Count = 0;
    std::array<std::size_t, LargestSystem> Waves{};

    void Add(std::size_t wave) { Waves.at(Count++) = wave; }
};

// The weights, of either sign, with which the chosen waves fit best; those of waves that the others make up
// are zero.
Weights FreeWeights(SmallSystem const& system, Chosen const& chosen) {
    Triangle triangle;
    Chosen independent;
    for (std::size_t index = 0; index < chosen.Count; ++index) {
        std::size_t const wave = chosen.Waves[index];
        SmallSystem::Row products{};
        for (std::size_t i = 0; i < independent.Count; ++i) {
            products[i] = system.Products[wave][independent.Waves[i]];
        }
        if (triangle.Append(products, system.Products[wave][wave])) {
            independent.Add(wave);
        }
    }
    SmallSystem::Row right{};
    for (std::size_t i = 0; i < independent.Count; ++i) {
        right[i] = system.WithSeries[independent.Waves[i]];
    }
    SmallSystem::Row const solution = triangle.Solve(right);
    Weights weights{};
    for (std::size_t i = 0; i < independent.Count; ++i) {
        weights[independent.Waves[i]] = solution[i];
    }
    return weights;
}

// How much a wave's weight would add if it began to grow.
double Slope(SmallSystem const& system, Weights const& weights, std::size_t wave) {
    double slope = system.WithSeries[wave];
    for (std::size_t i = 0; i < system.Size; ++i) {
        slope -= system.Products[wave][i] * weights[i];
    }
    return slope;
}

Chosen PositiveWaves(SmallSystem const& system, Weights const& weights) {
    Chosen positive;
    for (std::size_t wave = 0; wave < system.Size; ++wave) {
        if (weights[wave] > 0) {
            positive.Add(wave);
        }
    }
    return positive;
}

// Moves the weights towards the target until the first of the chosen that falls reaches zero. Returns whether
// one did before the target was reached.
bool MoveUntilZero(Weights& weights, Weights const& target, Chosen const& chosen) {
    double way = 1;
    std::size_t first = LargestSystem;
    for (std::size_t index = 0; index < chosen.Count; ++index) {
        std::size_t const wave = chosen.Waves[index];
        double const fall = weights[wave] - target[wave];
        if (target[wave] <= 0 && weights[wave] < way * fall) {
            way = weights[wave] / fall;
            first = wave;
        }
    }
    for (std::size_t wave = 0; wave < LargestSystem; ++wave) {
        weights[wave] = std::max(0.0, weights[wave] + way * (target[wave] - weights[wave]));
    }
    if (first < LargestSystem) {
        weights[first] = 0;
    }
    return first < LargestSystem;
}

// The wave of weight zero that promises most, for its length; LargestSystem when none promises anything.
std::size_t MostPromising(SmallSystem const& system, Weights const& weights) {
    constexpr double Least = 1e-9;
    std::size_t best = LargestSystem;
    double most = Least;
    for (std::size_t wave = 0; wave < system.Size; ++wave) {
        double const length = std::sqrt(system.Products[wave][wave]);
        if (weights[wave] == 0 && length > 0 && Slope(system, weights, wave) > most * length) {
            most = Slope(system, weights, wave) / length;
            best = wave;
        }
    }
    return best;
}

// The active-set method of Lawson and Hanson: waves enter one by one, and those whose weight would turn
// negative leave.
Weights SelectWeights(SmallSystem const& system) {
    // Each round explains more than the one before, which rounding may hide; a wave rarely leaves more than
    // once.
    constexpr std::size_t MostRounds = 3 * LargestSystem;
    Weights weights{};
    for (std::size_t round = 0; round < MostRounds; ++round) {
        std::size_t const entering = MostPromising(system, weights);
        if (entering == LargestSystem) {
            break;
        }
        Chosen chosen = PositiveWaves(system, weights);
        chosen.Add(entering);
        while (MoveUntilZero(weights, FreeWeights(system, chosen), chosen)) {
            chosen = PositiveWaves(system, weights);
        }
    }
    return weights;
}

} // namespace

Weights NonNegativeWeights(SmallSystem const& system) {
    Chosen all;
    for (std::size_t wave = 0; wave < system.Size; ++wave) {
        all.Add(wave);
    }
    Weights const weights = FreeWeights(system, all);
    auto const* const end = weights.data() + system.Size;
    bool const isPositive = std::all_of(weights.data(), end, [](double weight) { return weight > 0; });
    return isPositive ? weights : SelectWeights(system);
}

double Correlation(SmallSystem const& system, Weights const& weights) {
    double product = 0;
    double square = 0;
    for (std::size_t i = 0; i < system.Size; ++i) {
        product += weights[i] * system.WithSeries[i];
        for (std::size_t j = 0; j < system.Size; ++j) {
            square += weights[i] * weights[j] * system.Products[i][j];
        }
    }
    return product > 0 && square > 0 ? product / std::sqrt(square) : 0;
}

double Comparable(double value) {
    constexpr double Steps = 1e12;
    return std::floor(value * Steps + 0.5) / Steps;
}

} // namespace quorvex::search
