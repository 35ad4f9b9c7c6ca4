// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basNormalised.h"

#include <algorithm>
#include <cmath>

namespace quorvex::search {

double LargestSize(std::span<double const> values) {
    double largest = 0;
    for (double const value : values) {
        largest = std::max(largest, std::fabs(value));
    }
    return largest;
}

std::vector<double> Normalised(std::span<double const> series) {
    // Sums of squares stay in range when the largest value is 1.
    constexpr double LeastChange = 1e-12;
    std::vector<double> values(series.begin(), series.end());
    double const scale = LargestSize(values);
    double mean = 0;
    for (double& value : values) {
        value = scale > 0 ? value / scale : 0;
        mean += value / static_cast<double>(values.size());
    }
    for (double& value : values) {
        value -= mean;
    }
    if (LargestSize(values) <= LeastChange) {
        return {};
    }
    double squares = 0;
    for (double const value : values) {
        squares += value * value;
    }
    for (double& value : values) {
        value /= std::sqrt(squares);
    }
    return values;
}

} // namespace quorvex::search
