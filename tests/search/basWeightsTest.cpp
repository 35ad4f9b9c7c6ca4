// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basWeights.h"

#include "PlainSearch.h"
#include "search/Triangle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quorvex::search {
namespace {

constexpr std::size_t Days = 12;

using Vectors = std::vector<std::vector<double>>;

double ProductOf(std::vector<double> const& a, std::vector<double> const& b) {
    double sum = 0;
    for (std::size_t day = 0; day < a.size(); ++day) {
        sum += a[day] * b[day];
    }
    return sum;
}

SmallSystem SystemOf(Vectors const& vectors, std::vector<double> const& series) {
    SmallSystem system;
    system.Size = vectors.size();
    for (std::size_t i = 0; i < vectors.size(); ++i) {
        system.WithSeries[i] = ProductOf(vectors[i], series);
        for (std::size_t j = 0; j < vectors.size(); ++j) {
            system.Products[i][j] = ProductOf(vectors[i], vectors[j]);
        }
    }
    return system;
}

Vectors RandomVectors(tests::Randomness& random, std::size_t count) {
    Vectors vectors(count);
    for (auto& vector : vectors) {
        for (std::size_t day = 0; day < Days; ++day) {
            vector.push_back(random.Next());
        }
    }
    return vectors;
}

// Half the sum of squared differences, less what does not depend on the weights.
double Cost(SmallSystem const& system, Weights const& weights) {
    double cost = 0;
    for (std::size_t i = 0; i < system.Size; ++i) {
        cost -= weights[i] * system.WithSeries[i];
        for (std::size_t j = 0; j < system.Size; ++j) {
            cost += weights[i] * weights[j] * system.Products[i][j] / 2;
        }
    }
    return cost;
}

// The least cost over all choices of the waves that have a weight.
double LeastCost(SmallSystem const& system) {
    double least = 0;
    for (std::size_t choice = 1; choice < (std::size_t{1} << system.Size); ++choice) {
        Triangle triangle;
        std::vector<std::size_t> chosen;
        Triangle::Row right{};
        for (std::size_t i = 0; i < system.Size; ++i) {
            if ((choice >> i & 1U) != 0) {
                Triangle::Row products{};
                for (std::size_t j = 0; j < chosen.size(); ++j) {
                    products[j] = system.Products[i][chosen[j]];
                }
                EXPECT_TRUE(triangle.Append(products, system.Products[i][i]));
                right[chosen.size()] = system.WithSeries[i];
                chosen.push_back(i);
            }
        }
        Triangle::Row const solution = triangle.Solve(right);
        Weights weights{};
        bool isPositive = true;
        for (std::size_t j = 0; j < chosen.size(); ++j) {
            weights[chosen[j]] = solution[j];
            isPositive = isPositive && solution[j] >= 0;
        }
        least = isPositive ? std::min(least, Cost(system, weights)) : least;
    }
    return least;
}

TEST(NonNegativeWeights, AreTheBestOfAllChoices) {
    tests::Randomness random(11);
    for (int trial = 0; trial < 300; ++trial) {
        std::size_t const count = 1 + static_cast<std::size_t>(trial % 7);
        SmallSystem const system = SystemOf(RandomVectors(random, count), RandomVectors(random, 1).front());
        Weights const weights = NonNegativeWeights(system);
        for (std::size_t i = 0; i < LargestSystem; ++i) {
            EXPECT_GE(weights[i], 0);
        }
        EXPECT_NEAR(Cost(system, weights), LeastCost(system), 1e-9) << trial;
    }
}

TEST(NonNegativeWeights, LeaveOutAWaveThatIsThereTwice) {
    tests::Randomness random(5);
    Vectors vectors = RandomVectors(random, 2);
    std::vector<double> series = vectors[0];
    series[3] += 0.25;
    vectors.push_back(vectors[0]);
    SmallSystem const system = SystemOf(vectors, series);
    Weights const weights = NonNegativeWeights(system);
    EXPECT_TRUE(weights[0] == 0 || weights[2] == 0);
    vectors.pop_back();
    EXPECT_NEAR(Cost(system, weights), LeastCost(SystemOf(vectors, series)), 1e-12);
}

TEST(NonNegativeWeights, AreZeroWhenNothingPointsTheSameWay) {
    Vectors const vectors = {{1, 0}, {0, 1}};
    EXPECT_EQ(NonNegativeWeights(SystemOf(vectors, {-1, -2})), Weights());
}

TEST(Correlation, IsThatOfTheSum) {
    Vectors const vectors = {{3, 0}, {0, 2}};
    SmallSystem const system = SystemOf(vectors, {0.6, 0.8});
    EXPECT_NEAR(Correlation(system, {2, 4}), (6 * 0.6 + 8 * 0.8) / 10, 1e-15);
    EXPECT_EQ(Correlation(system, {}), 0);
}

TEST(Comparable, IsTheSameForWhatDiffersByLessThanRounding) {
    EXPECT_EQ(Comparable(0.7), Comparable(0.7 + 1e-14));
    EXPECT_LT(Comparable(0.7), Comparable(0.7 + 1e-11));
}

TEST(WithCommonPart, AddsTheSquareToEveryProduct) {
    SmallSystem system = SystemOf({{1, 0}, {0, 2}}, {1, 1});
    system = WithCommonPart(system, 0.5);
    EXPECT_EQ(system.Products[0][0], 1.5);
    EXPECT_EQ(system.Products[0][1], 0.5);
    EXPECT_EQ(system.Products[1][1], 4.5);
    EXPECT_EQ(system.WithSeries[1], 2);
}

} // namespace
} // namespace quorvex::search
