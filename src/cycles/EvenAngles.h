// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quorvex::cycles {

// Cosines and sines of angles at even distances, in radians, for a fraction of what the C library takes for
// them: it is asked for the first angle and for one turn each time that their number doubles. The addition
// theorems give the others, as good as the angle, which a double rounds, too.
template <std::size_t Most>
class EvenAngles {
public:
    // Takes the angles offset + number * step of the numbers 1..last. More than Most raise "Subscript out of
    // range".
    void Take(double offset, double step, int last) {
        if (last > static_cast<int>(Most)) {
            throw text::RunTimeError(text::Fault::SubscriptOutOfRange);
        }
        cosines_[0] = std::cos(offset + step);
        sines_[0] = std::sin(offset + step);
        for (int known = 1; known < last; known *= 2) {
            Turn(known * step, static_cast<std::size_t>(known),
                 static_cast<std::size_t>(std::min(known, last - known)));
        }
    }

    // Of the numbers last taken: any other is not checked.
    [[nodiscard]] double Cosine(int number) const { return cosines_[static_cast<std::size_t>(number - 1)]; }

    [[nodiscard]] double Sine(int number) const { return sines_[static_cast<std::size_t>(number - 1)]; }

private:
    // Puts the first so many, turned by the angle, behind the known ones.
    void Turn(double angle, std::size_t known, std::size_t count) {
        double const cosine = std::cos(angle);
        double const sine = std::sin(angle);
        for (std::size_t at = 0; at < count; ++at) {
            cosines_[known + at] = cosines_[at] * cosine - sines_[at] * sine;
            sines_[known + at] = sines_[at] * cosine + cosines_[at] * sine;
        }
    }

    std::array<double, Most> cosines_{};
    std::array<double, Most> sines_{};
};

} // namespace quorvex::cycles
