// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Triangle.h"

#include <cmath>

namespace quorvex::search {

bool Triangle::Append(Row const& products, double square) {
    constexpr double LeastOwnPart = 1e-10;
    Row const coordinates = Coordinates(products);
    double const own = square - Dot(coordinates, coordinates, size_);
    if (own <= LeastOwnPart * square) {
        return false;
    }
    double const diagonal = std::sqrt(own);
    rows_[size_] = coordinates;
    rows_[size_][size_] = diagonal;
    inverseDiagonal_[size_] = 1 / diagonal;
    ++size_;
    return true;
}

Triangle::Row Triangle::Solve(Row const& products) const {
    Row weights = Coordinates(products);
    for (std::size_t i = size_; i-- > 0;) {
        for (std::size_t j = i + 1; j < size_; ++j) {
            weights[i] -= rows_[j][i] * weights[j];
        }
        weights[i] *= inverseDiagonal_[i];
    }
    return weights;
}

} // namespace quorvex::search
