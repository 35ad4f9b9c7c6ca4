// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basProcessor.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace quorvex::platform {

TEST(FreeWideRegisters, ChangesNoValueThatIsBeingComputed) {
    std::array<double, 4> undisturbed{};
    std::array<double, 4> sums{};
    for (int day = 1; day <= 500; ++day) {
        for (std::size_t curve = 0; curve < sums.size(); ++curve) {
            undisturbed.at(curve) += std::sin(day * 0.1 * static_cast<double>(curve + 1));
        }
    }
    for (int day = 1; day <= 500; ++day) {
        for (std::size_t curve = 0; curve < sums.size(); ++curve) {
            double const angle = day * 0.1 * static_cast<double>(curve + 1);
            FreeWideRegisters();
            sums.at(curve) += std::sin(angle);
        }
    }
    EXPECT_EQ(sums, undisturbed);
}

} // namespace quorvex::platform
