// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSwing.h"

#include "search/basAngles.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvex::search {

double SwingOf(WholeSet const& set, Sinusoids const& waves) {
    std::vector<double> composite(static_cast<std::size_t>(waves.Days()));
    for (std::size_t i = 0; i < set.Waves.size(); ++i) {
        Direction const day = DirectionAt(2, waves.Periods()[set.Waves[i].Period]);
        Direction at = waves.DirectionOf(set.Waves[i].Phase);
        for (double& value : composite) {
            at = Turned(at, day);
            value += set.Percent[i] * at.Sine;
        }
    }
    auto const [lowest, highest] = std::minmax_element(composite.begin(), composite.end());
    return (*highest - *lowest) / 2;
}

} // namespace quorvex::search
