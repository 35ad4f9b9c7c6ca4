// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basScale.h"

#include <algorithm>
#include <cmath>

namespace quorvex::chart {

int ColumnAt(double x, double width, int columns) {
    double const step = ColumnStep(width, columns);
    if (!(step > 0)) {
        return 1;
    }
    return static_cast<int>(std::clamp<double>(std::round(x / step), 1, columns));
}

double TickSizeAt(int column, TickSizes const& sizes) {
    if (column % 10 == 0) {
        return sizes.EveryTenth;
    }
    return column % 5 == 0 ? sizes.EveryFifth : sizes.Other;
}

VerticalScale ScalePrices(quotes::PriceScale const& scale, double height) {
    constexpr double Margins = 10;
    double const factor = text::Divide(Margins - height, scale.PriceScaleHigh - scale.PriceScaleLow);
    double const sum = text::RequireFinite((scale.PriceScaleLow + scale.PriceScaleHigh) * factor);
    return {factor, (height - sum) / 2};
}

} // namespace quorvex::chart
