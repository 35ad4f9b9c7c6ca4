// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Sine and cosine of rational parts of a turn, by arithmetic alone: the same to the last bit on every
// machine, whatever its C library's sines are.
#pragma once

#include <cstdint>

namespace quorvex::search {

// A direction in the plane: cosine and sine of an angle.
struct Direction {
    double Cosine = 1;
    double Sine = 0;
};

// The direction at the angle pi * numerator / denominator, right to two units in the last place. REQUIRES:
// the denominator is 1 or more; both lie within 2^60.
[[nodiscard]] Direction DirectionAt(std::int64_t numerator, std::int64_t denominator);

// The first direction, turned by the angle of the second.
[[nodiscard]] inline Direction Turned(Direction const& from, Direction const& by) {
    return {from.Cosine * by.Cosine - from.Sine * by.Sine, from.Sine * by.Cosine + from.Cosine * by.Sine};
}

} // namespace quorvex::search
