// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <vector>

namespace quorvex::search {

// The largest of the values, whatever their signs; 0 when there are none.
[[nodiscard]] double LargestSize(std::span<double const> values);

// The series less its mean, with a sum of squares of 1; empty when it does not change, or by no more than
// computing with its values does.
[[nodiscard]] std::vector<double> Normalised(std::span<double const> series);

} // namespace quorvex::search
