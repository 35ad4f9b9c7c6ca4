// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/Approximate.h"

#include <algorithm>
#include <cmath>

namespace quorvex::tests {

testing::AssertionResult IsClose(double actual, double expected, double tolerance) {
    double const allowed = tolerance * std::max(1.0, std::fabs(expected));
    if (std::fabs(actual - expected) <= allowed) {
        return testing::AssertionSuccess();
    }
    auto failure = testing::AssertionFailure();
    failure << testing::PrintToString(actual) << " is not close to " << testing::PrintToString(expected);
    return failure;
}

} // namespace quorvex::tests
