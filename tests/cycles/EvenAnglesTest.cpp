// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/EvenAngles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

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
    EvenAngles(step).ForEach(offset, Last, [&](int number, double cosine, double sine) {
        double const angle = offset + number * step;
        double const rounding = 4 * std::numeric_limits<double>::epsilon() * (1 + std::fabs(angle));
        EXPECT_NEAR(cosine, std::cos(angle), rounding) << number;
        EXPECT_NEAR(sine, std::sin(angle), rounding) << number;
    });
}

INSTANTIATE_TEST_SUITE_P(EvenAngles, EvenAnglesOf,
                         testing::Values(Angles{0, 0}, Angles{0.0001, 0}, Angles{0.1, 0}, Angles{1.5, 0.25},
                                         Angles{3.14159265358979, 0}, Angles{6.28318530717958, -6.3},
                                         Angles{-0.37, 1000}));

TEST(EvenAngles, AreAsManyAsWanted) {
    for (int const last : {0, 1, 63, 64, 65, 128, 500}) {
        std::vector<int> numbers;
        EvenAngles(0.1).ForEach(0, last,
                                [&numbers](int number, double, double) { numbers.push_back(number); });
        std::vector<int> wanted;
        for (int number = 1; number <= last; ++number) {
            wanted.push_back(number);
        }
        EXPECT_EQ(numbers, wanted);
    }
}

} // namespace

} // namespace quorvex::cycles
