// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::quotes {

// Top and bottom of the quote chart's price axis, in the units of the quote file.
struct PriceScale {
    double PriceScaleHigh = 0;
    double PriceScaleLow = 0;
};

} // namespace quorvex::quotes
