// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a search finds: a model as the grid holds it.
#pragma once

#include <vector>

namespace quorvex::search {

// One cycle of the grid, in whole numbers.
struct FoundCycle {
    int Weight = 0;  // percent
    int Period = 0;  // trading days
    int Shift = 0;   // -99..99
    double Adds = 0; // by how much the correlation is lower when this cycle alone is taken away

    friend bool operator==(FoundCycle const&, FoundCycle const&) = default;
};

struct CycleModel {
    std::vector<FoundCycle>
        Cycles; // the heaviest first; their weights sum to about 100, 95 to 105, as the grid keeps them
    double Correlation = 0; // of the composite with what was searched, above 0 and up to 1
};

} // namespace quorvex::search
