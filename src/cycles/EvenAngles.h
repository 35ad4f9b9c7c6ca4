// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quorvex::cycles {

// Cosines and sines of angles at even distances, in radians, for a fraction of what the C library takes for
// them: it is asked for one angle of each block alone, and the addition theorems give the others, as good as
// the angle, which a double rounds, too.
class EvenAngles {
public:
    explicit EvenAngles(double step) : step_(step) {
        for (std::size_t length = 1; length < BlockLength; length *= 2) {
            Turn(length, static_cast<double>(length) * step, steps_, length);
        }
    }

    // Calls take(number, cosine, sine) of the angle offset + number * step, for the numbers 1..last.
    template <class Take>
    void ForEach(double offset, int last, Take&& take) const {
        Block block{};
        for (int begin = 1; begin <= last; begin += static_cast<int>(BlockLength)) {
            Turn(BlockLength, offset + begin * step_, block, 0);
            int const count = std::min(static_cast<int>(BlockLength), last - begin + 1);
            for (int index = 0; index < count; ++index) {
                auto const at = static_cast<std::size_t>(index);
                take(begin + index, block.Cosines[at], block.Sines[at]);
            }
        }
    }

private:
    static constexpr std::size_t BlockLength = 64;

    struct Block {
        std::array<double, BlockLength> Cosines;
        std::array<double, BlockLength> Sines;
    };

    // Writes the first so many steps, turned by the angle, to this place.
    void Turn(std::size_t count, double angle, Block& to, std::size_t place) const {
        double const cosine = std::cos(angle);
        double const sine = std::sin(angle);
        for (std::size_t at = 0; at < count; ++at) {
            to.Cosines[place + at] = steps_.Cosines[at] * cosine - steps_.Sines[at] * sine;
            to.Sines[place + at] = steps_.Sines[at] * cosine + steps_.Cosines[at] * sine;
        }
    }

    double step_;
    Block steps_{{1}, {0}}; // from no step on
};

} // namespace quorvex::cycles
