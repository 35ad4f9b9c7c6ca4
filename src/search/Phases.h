// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/basAngles.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quorvex::search {

// What one whole Shift of the grid turns a cycle by.
struct Phase {
    int Shift = 0;
    Direction At;
};

// The different phases that the shifts -99..99 give, by rising angle from above -pi to pi. Of shifts with one
// phase (0, 1 and -1; 2 and -2) the smallest stands for all, 2 rather than -2.
class Phases {
public:
    Phases();

    [[nodiscard]] std::span<Phase const> All() const { return phases_; }

    // The positions of the two phases between which the direction lies, of any length above zero; the same
    // twice never. One of them fits best whatever is best in that direction.
    struct Neighbours {
        std::size_t Below = 0;
        std::size_t Above = 0;
    };

    [[nodiscard]] Neighbours Around(Direction const& direction) const;

private:
    std::vector<Phase> phases_;
};

} // namespace quorvex::search
