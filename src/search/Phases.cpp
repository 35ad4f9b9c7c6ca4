// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Phases.h"

#include <algorithm>

namespace quorvex::search {

namespace {

constexpr int LargestShift = 99;

// Whether the angle of a, from above -pi to pi, is below that of b.
bool HasSmallerAngle(Direction const& a, Direction const& b) {
    bool const isAInLowerHalf = a.Sine < 0;
    if (isAInLowerHalf != (b.Sine < 0)) {
        return isAInLowerHalf;
    }
    double const cross = a.Cosine * b.Sine - a.Sine * b.Cosine;
    // The angle pi: a cross product cannot tell it from 0.
    if (a.Sine == 0 && b.Sine == 0) {
        return a.Cosine > 0 && b.Cosine < 0;
    }
    return cross > 0;
}

} // namespace

Phases::Phases() {
    for (int shift = -3; shift >= -LargestShift; --shift) {
        phases_.push_back({shift, DirectionAt(-2, -shift)});
    }
    phases_.push_back({0, {1, 0}});
    for (int shift = LargestShift; shift >= 3; --shift) {
        phases_.push_back({shift, DirectionAt(2, shift)});
    }
    phases_.push_back({2, {-1, 0}});
}

Phases::Neighbours Phases::Around(Direction const& direction) const {
    auto const above =
        std::lower_bound(phases_.begin(), phases_.end(), direction,
                         [](Phase const& phase, Direction const& d) { return HasSmallerAngle(phase.At, d); });
    auto const position = static_cast<std::size_t>(above - phases_.begin()) % phases_.size();
    return {(position + phases_.size() - 1) % phases_.size(), position};
}

} // namespace quorvex::search
