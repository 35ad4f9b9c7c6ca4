// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/CycleModel.h"
#include "search/GoOn.h"
#include "search/Sinusoids.h"

#include <span>
#include <utility>
#include <vector>

namespace quorvex::search {

// How hard to try beyond one cycle. Quick is for those who search hundreds of series.
enum class Effort { Thorough, Quick };

// What to find.
struct SearchAim {
    int CycleCount = 3; // 1..10
    Effort HowHard = Effort::Thorough;
    // How far the composite of two cycles or more is to swing at least: half the way from its lowest to its
    // highest value, 0..100 of the 100 units of the composite chart.
    int LeastSwing = 0;
};

// Looks for the cycles whose composite follows a series best: one cycle is the true optimum over all periods
// and shifts; more are found by taking up what explains most beside those there are, and by taking each out
// and putting a better one in while there is one. The same on every machine.
//
// One object serves one thread and as many series of its length as are to be searched.
class CycleSearch {
public:
    // For series over so many days. REQUIRES: one period at least; all are 2 or more.
    CycleSearch(int days, std::vector<int> periods) : waves_(days, std::move(periods)) {}

    // The best models of 1, 2 .. so many cycles, each as good as the one before or better; one that found no
    // further cycle that helps, or none with which the composite swings far enough, is the one before. The
    // models of fewer cycles do not depend on how many are asked for. Nothing at all for a series without a
    // change or that no wave of the periods follows, and when the search was ended; what was found until then
    // has been told.
    [[nodiscard]] std::vector<CycleModel> Find(std::span<double const> series, SearchAim const& aim,
                                               GoOn const& goOn, TakeModel const& take = {});

private:
    Sinusoids waves_;
};

} // namespace quorvex::search
