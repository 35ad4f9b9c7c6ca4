// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace quorvex::platform {

// The measures of text where no display knows the real ones: every byte is as wide as a digit of Arial, 0.55
// of the size, and a line is 1.15 of the size high.
struct NominalFont {
    int Size = 8; // in points

    // In twips.
    [[nodiscard]] constexpr double Width(std::string_view text) const {
        return WidthShare * Size * TwipsOfPoint * static_cast<double>(text.size());
    }

    // In twips.
    [[nodiscard]] constexpr double Height() const { return HeightShare * Size * TwipsOfPoint; }

private:
    static constexpr double TwipsOfPoint = 20;
    static constexpr double WidthShare = 0.55;
    static constexpr double HeightShare = 1.15;
};

} // namespace quorvex::platform
