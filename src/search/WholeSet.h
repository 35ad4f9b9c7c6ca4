// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/Pursuit.h"

#include <array>
#include <optional>
#include <vector>

namespace quorvex::search {

// Some waves with whole weights, as the grid holds them: it leaves them as they are when it scales them to
// percent of their sum.
struct WholeSet {
    std::vector<Wave> Waves; // in no order, all different
    std::array<int, LargestSystem> Percent{};
    SmallSystem System;
    double Correlation = 0;
};

// Rounds the weights of a set, then moves weights, periods and shifts a little as long as the whole numbers
// follow the series better for it. Waves that would weigh nothing are left out.
//
// Whole weights follow the series almost as well as any others of these waves, by 0.003 of the coefficient. A
// set that is too fine for whole numbers gives nothing.
[[nodiscard]] std::optional<WholeSet> RoundWeights(Pursuit const& pursuit, WaveSet const& set);

} // namespace quorvex::search
