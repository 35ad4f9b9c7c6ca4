// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/EvenAngles.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvex::cycles {

namespace {

struct Angles {
    double Step = 0;
    double Offset = 0;
};

class EvenAnglesOf : public testing::TestWithParam<Angles> {};

TEST_P(EvenAnglesOf, AreAsGoodAsTheAngle) {
    double const step = GetParam().Step;
    double const offset = GetParam().Offset;
    constexpr int Last = 525;
    EvenAngles<Last> angles;
    angles.Take(offset, step, Last);
    for (int number = 1; number <= Last; ++number) {
        double const angle = offset + number * step;
        double const rounding = 4 * std::numeric_limits<double>::epsilon() * (1 + std::fabs(angle));
        EXPECT_NEAR(angles.Cosine(number), std::cos(angle), rounding) << number;
        EXPECT_NEAR(angles.Sine(number), std::sin(angle), rounding) << number;
    }
}

INSTANTIATE_TEST_SUITE_P(EvenAngles, EvenAnglesOf,
                         testing::Values(Angles{0, 0}, Angles{0.0001, 0}, Angles{0.1, 0}, Angles{1.5, 0.25},
                                         Angles{3.14159265358979, 0}, Angles{6.28318530717958, -6.3},
                                         Angles{-0.37, 1000}));

TEST(EvenAngles, AreAsManyAsWanted) {
    EvenAngles<8> angles;
    for (int const last : {8, 7, 5, 4, 3, 1, 0}) {
        angles.Take(0, 0.1, 8);
        angles.Take(1, 0.2, last);
        for (int number = 1; number <= 8; ++number) {
            double const angle = number <= std::max(last, 1) ? 1 + 0.2 * number : 0.1 * number;
            EXPECT_NEAR(angles.Sine(number), std::sin(angle), 1e-15) << number << " of " << last;
        }
    }
    EXPECT_THROW(angles.Take(0, 0.1, 9), text::RunTimeError);
}

} // namespace

} // namespace quorvex::cycles
