// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Sinusoids.h"

#include "PlainSearch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <numeric>

namespace quorvex::search {
namespace {

using tests::Series;

Series Centred(Series series) {
    double const mean =
        std::accumulate(series.begin(), series.end(), 0.0) / static_cast<double>(series.size());
    for (double& value : series) {
        value -= mean;
    }
    return series;
}

double Product(Series const& a, Series const& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

Series Part(int period, int days, bool isCosine) {
    Series part;
    for (int day = 1; day <= days; ++day) {
        double const angle = 2 * std::numbers::pi * day / period;
        part.push_back(isCosine ? std::cos(angle) : std::sin(angle));
    }
    return Centred(part);
}

class SinusoidProducts : public testing::TestWithParam<int> {};

TEST_P(SinusoidProducts, AreThoseOfTheCurves) {
    int const days = GetParam();
    std::vector<int> const periods = {2, 3, 5, 12, 13, 47, 250, 500};
    Sinusoids waves(days, periods);
    for (std::size_t a = 0; a < periods.size(); ++a) {
        for (std::size_t b = 0; b < periods.size(); ++b) {
            SCOPED_TRACE(std::to_string(periods[a]) + " " + std::to_string(periods[b]));
            Products const& products = waves.ProductsOf(a)[b];
            double const tolerance = 1e-11 * days;
            auto const part = [&](std::size_t period, bool isCosine) {
                return Part(periods[period], days, isCosine);
            };
            EXPECT_NEAR(products.SineSine, Product(part(a, false), part(b, false)), tolerance);
            EXPECT_NEAR(products.SineCosine, Product(part(a, false), part(b, true)), tolerance);
            EXPECT_NEAR(products.CosineSine, Product(part(a, true), part(b, false)), tolerance);
            EXPECT_NEAR(products.CosineCosine, Product(part(a, true), part(b, true)), tolerance);
        }
    }
}

TEST_P(SinusoidProducts, WithASeriesAreThoseOfTheCurves) {
    int const days = GetParam();
    std::vector<int> const periods = {2, 3, 5, 12, 13, 47, 250, 500};
    Series const series = Centred(tests::Randomness(7).Walk(days));
    auto const products = Sinusoids(days, periods).ProductsWith(series);
    for (std::size_t period = 0; period < periods.size(); ++period) {
        EXPECT_NEAR(products[period].Sine, Product(Part(periods[period], days, false), series), 1e-10 * days);
        EXPECT_NEAR(products[period].Cosine, Product(Part(periods[period], days, true), series),
                    1e-10 * days);
    }
}

TEST_P(SinusoidProducts, OfWavesAreThoseOfTheirCurves) {
    int const days = GetParam();
    Sinusoids waves(days, {7, 30, 31});
    for (std::size_t phase = 0; phase < waves.PhaseCount(); phase += 5) {
        Wave const a{1, phase};
        Wave const b{2, waves.PhaseCount() - 1 - phase};
        Series const curveOfA = Centred(tests::CurveOf(30, waves.ShiftOf(a.Phase), days));
        Series const curveOfB = Centred(tests::CurveOf(31, waves.ShiftOf(b.Phase), days));
        EXPECT_NEAR(waves.Product(a, b), Product(curveOfA, curveOfB), 1e-11 * days);
        EXPECT_NEAR(waves.Product(a, a), Product(curveOfA, curveOfA), 1e-11 * days);
    }
}

INSTANTIATE_TEST_SUITE_P(Days, SinusoidProducts, testing::Values(25, 26, 125, 499, 500));

TEST(Sinusoids, SortTheirPeriodsAndTakeEachOnce) {
    Sinusoids const waves(50, {9, 5, 9, 7});
    EXPECT_EQ(std::vector(waves.Periods().begin(), waves.Periods().end()), std::vector({5, 7, 9}));
}

TEST(Sinusoids, CountPhasesAroundTheCircle) {
    Sinusoids const waves(50, {9});
    EXPECT_EQ(waves.PhaseFrom(0, -1), waves.PhaseCount() - 1);
    EXPECT_EQ(waves.PhaseFrom(waves.PhaseCount() - 1, 2), 1U);
}

} // namespace
} // namespace quorvex::search
