// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

namespace quorvex::bench {

// The program in proportion to a QMainWindow of the same size, with the same menus and as many line edits,
// each a whole process.
struct StartRatios {
    double Time = 0;                  // until the first window is painted
    std::optional<double> PeakMemory; // with 500 days open; none where the system does not tell it
};

// Starts both by turns and takes the medians. REQUIRES: a QApplication. Throws when one of them fails.
[[nodiscard]] StartRatios MeasureStarts();

} // namespace quorvex::bench
