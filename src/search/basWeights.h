// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The weights of some chosen waves that follow a series best.
#pragma once

#include "search/SmallSystem.h"

namespace quorvex::search {

// By wave; what lies behind the size of the system is zero.
using Weights = SmallSystem::Row;

// The weights of zero or more with the least sum of squared differences from the series.
[[nodiscard]] Weights NonNegativeWeights(SmallSystem const& system);

// The coefficient of correlation of the sum of the weighted waves with the series; 0 when that is not above
// zero.
[[nodiscard]] double Correlation(SmallSystem const& system, Weights const& weights);

// The value as it is compared with others: what differs by less than 1e-12 is equally good, since the order
// of a sum may make such a difference.
[[nodiscard]] double Comparable(double value);

} // namespace quorvex::search
