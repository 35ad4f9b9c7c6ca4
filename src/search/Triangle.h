// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/SmallSystem.h"

namespace quorvex::search {

// The lower triangle whose product with its own transpose is a matrix of inner products, grown by one vector
// at a time.
class Triangle {
public:
    using Row = SmallSystem::Row;

    [[nodiscard]] std::size_t Size() const { return size_; }

    // Adds a vector with its products with those before and with itself. Returns false, with nothing added,
    // when those before make it up.
    bool Append(Row const& products, double square);

    // The coordinates of a vector with these products with the vectors, in an orthonormal system that they
    // span.
    [[nodiscard]] Row Coordinates(Row const& products) const {
        Row coordinates{};
        for (std::size_t i = 0; i < size_; ++i) {
            double rest = products[i];
            for (std::size_t j = 0; j < i; ++j) {
                rest -= rows_[i][j] * coordinates[j];
            }
            coordinates[i] = rest * inverseDiagonal_[i];
        }
        return coordinates;
    }

    // The weights of the vectors whose sum has these products with them.
    [[nodiscard]] Row Solve(Row const& products) const;

    [[nodiscard]] double At(std::size_t row, std::size_t column) const { return rows_[row][column]; }

    [[nodiscard]] double InverseDiagonal(std::size_t row) const { return inverseDiagonal_[row]; }

private:
    std::size_t size_ = 0;
    std::array<Row, LargestSystem> rows_{};
    Row inverseDiagonal_{};
};

// The inner product of the first coordinates.
[[nodiscard]] inline double Dot(Triangle::Row const& a, Triangle::Row const& b, std::size_t size) {
    double sum = 0;
    for (std::size_t i = 0; i < size; ++i) {
        sum += a[i] * b[i];
    }
    return sum;
}

} // namespace quorvex::search
