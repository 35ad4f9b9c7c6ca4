// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/Surrogates.h"

#include "MadeSeries.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorvex::evaluation {
namespace {

// The amplitudes of the daily changes by frequency, the mean first.
std::vector<double> Amplitudes(std::vector<double> const& closes) {
    std::size_t const count = closes.size() - 1;
    std::vector<double> amplitudes;
    for (std::size_t frequency = 0; 2 * frequency <= count; ++frequency) {
        double cosine = 0;
        double sine = 0;
        for (std::size_t day = 0; day < count; ++day) {
            double const angle = 2 * 3.14159265358979323846 * static_cast<double>(frequency * day) /
                                 static_cast<double>(count);
            cosine += (closes[day + 1] - closes[day]) * std::cos(angle);
            sine += (closes[day + 1] - closes[day]) * std::sin(angle);
        }
        amplitudes.push_back(std::hypot(cosine, sine));
    }
    return amplitudes;
}

TEST(Surrogates, KeepTheAmplitudesAndTheFirstAndLastClose) {
    for (int const days : {2, 3, 4, 60, 61}) { // odd and even counts of changes
        SCOPED_TRACE(days);
        auto const closes = tests::WalkingCloses(days, 7);
        SurrogateMaker const maker(closes);
        for (std::uint64_t number = 1; number <= 5; ++number) {
            auto const surrogate = maker.Make(number);
            ASSERT_EQ(surrogate.size(), closes.size());
            EXPECT_EQ(surrogate.front(), closes.front());
            EXPECT_NEAR(surrogate.back(), closes.back(), 1e-9);
            auto const expected = Amplitudes(closes);
            auto const actual = Amplitudes(surrogate);
            for (std::size_t frequency = 0; frequency < expected.size(); ++frequency) {
                EXPECT_NEAR(actual[frequency], expected[frequency], 1e-9);
            }
        }
    }
}

TEST(Surrogates, DifferFromTheSeriesAndFromEachOther) {
    auto const closes = tests::WalkingCloses(100, 8);
    SurrogateMaker const maker(closes);
    auto const distance = [](std::vector<double> const& a, std::vector<double> const& b) {
        double sum = 0;
        for (std::size_t day = 0; day < a.size(); ++day) {
            sum += std::fabs(a[day] - b[day]) / static_cast<double>(a.size());
        }
        return sum;
    };
    EXPECT_GT(distance(maker.Make(1), closes), 2);
    EXPECT_GT(distance(maker.Make(1), maker.Make(2)), 2);
}

TEST(Surrogates, AreTheSameWhateverWasMadeBefore) {
    auto const closes = tests::WalkingCloses(50, 9);
    SurrogateMaker const maker(closes);
    auto const third = maker.Make(3);
    static_cast<void>(maker.Make(1));
    EXPECT_EQ(maker.Make(3), third);
    EXPECT_EQ(SurrogateMaker(closes).Make(3), third);
}

TEST(Surrogates, HavePhasesOfAllDirections) {
    // One frequency alone: its first change tells the phase.
    std::vector<double> closes = {0};
    for (int day = 0; day < 16; ++day) {
        closes.push_back(closes.back() + std::cos(2 * 3.14159265358979 * day / 16));
    }
    SurrogateMaker const maker(closes);
    std::array<int, 4> quarters{};
    for (std::uint64_t number = 1; number <= 400; ++number) {
        auto const made = maker.Make(number);
        double const first = made[1] - made[0];
        double const fifth = made[5] - made[4]; // a quarter of the circle on
        ++quarters.at(static_cast<std::size_t>((first > 0 ? 1 : 0) + (fifth > 0 ? 2 : 0)));
    }
    for (int const count : quarters) {
        EXPECT_NEAR(count, 100, 35);
    }
}

} // namespace
} // namespace quorvex::evaluation
