// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace quorvex::bench {

// The search over 500 generated days, with periods from 5 to 250 days.
class SearchWork {
public:
    SearchWork();

    // Throws when nothing was found.
    void Find(int cycleCount);

    // The least that one look at all periods can cost: the sine and the cosine of every day of each period.
    void ComputeSinesAndCosines();

private:
    std::vector<double> series_;
    std::vector<double> sines_;
};

} // namespace quorvex::bench
