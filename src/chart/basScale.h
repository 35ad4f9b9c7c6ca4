// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The axes of the chart boxes.
#pragma once

#include "quotes/PriceScale.h"
#include "text/RunTimeError.h"

namespace quorvex::chart {

// The distance of two columns in a box of this width, which leaves a column's width empty at each end: column
// i stands at i times this.
[[nodiscard]] inline double ColumnStep(double width, int columns) {
    return width / (columns + 1);
}

// The column, from 1 on, that stands nearest to the place x; the later one exactly between two. Without a
// width it is column 1. REQUIRES: one column.
[[nodiscard]] int ColumnAt(double x, double width, int columns);

// The sizes of time ticks, in whatever unit.
struct TickSizes {
    double Other = 0;
    double EveryFifth = 0;
    double EveryTenth = 0;
};

// The one of the tick at this column.
[[nodiscard]] double TickSizeAt(int column, TickSizes const& sizes);

// Maps a value to a height in a box: y = Factor x value + Offset, in twips.
struct VerticalScale {
    double Factor = 0;
    double Offset = 0;

    // Raises "Overflow" when the height is beyond the range of a double.
    [[nodiscard]] double Y(double value) const { return text::RequireFinite(Factor * value + Offset); }
};

// The mapping of prices to a box of this height, with a margin of 5 twips above and below. Raises "Division
// by zero" for a scale without height.
[[nodiscard]] VerticalScale ScalePrices(quotes::PriceScale const& scale, double height);

} // namespace quorvex::chart
