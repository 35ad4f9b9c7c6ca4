// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/Phases.h"

#include <cstddef>
#include <span>
#include <vector>

namespace quorvex::search {

// One cycle to choose: a position in the periods of Sinusoids and one in the phases.
struct Wave {
    std::size_t Period = 0;
    std::size_t Phase = 0;

    friend bool operator==(Wave const&, Wave const&) = default;
};

// A pair of numbers for the two parts of which every wave of one period is made: sin(2 pi day / Period) and
// cos(2 pi day / Period).
struct Parts {
    double Sine = 0;
    double Cosine = 0;
};

// Inner products of the parts of one period with those of another, which comes second in the names.
struct Products {
    double SineSine = 0;
    double SineCosine = 0;
    double CosineSine = 0;
    double CosineCosine = 0;
};

// The sinusoids of some whole periods over the days 1..n, each part less its mean. Their inner products have
// closed forms, so that no curve of a wave is ever computed. The waves themselves are the same as in
// cycles/basCurves.
class Sinusoids {
public:
    // The periods are sorted, each taken once. REQUIRES: one period at least; all are 2 or more.
    Sinusoids(int days, std::vector<int> periods);

    [[nodiscard]] std::span<int const> Periods() const { return periods_; }

    [[nodiscard]] std::size_t PhaseCount() const { return phases_.All().size(); }

    [[nodiscard]] int ShiftOf(std::size_t phase) const { return phases_.All()[phase].Shift; }

    [[nodiscard]] Direction const& DirectionOf(std::size_t phase) const { return phases_.All()[phase].At; }

    // The phase so many places on around the circle. REQUIRES: fewer places than there are phases.
    [[nodiscard]] std::size_t PhaseFrom(std::size_t phase, int places) const {
        auto const count = static_cast<std::ptrdiff_t>(PhaseCount());
        return static_cast<std::size_t>((static_cast<std::ptrdiff_t>(phase) + places + count) % count);
    }

    [[nodiscard]] Phases::Neighbours PhasesAround(Direction const& direction) const {
        return phases_.Around(direction);
    }

    [[nodiscard]] int Days() const { return days_; }

    // The products of one period with every period, itself included. Computed once, when it is first asked
    // for; so one object serves one thread.
    [[nodiscard]] std::span<Products const> ProductsOf(std::size_t period);

    // The products of one period with itself.
    [[nodiscard]] Products const& OwnProducts(std::size_t period) const { return own_[period]; }

    // The products of the parts of every period with a series over the days, which sums to zero.
    [[nodiscard]] std::vector<Parts> ProductsWith(std::span<double const> series) const;

    // The inner product of two waves.
    [[nodiscard]] double Product(Wave const& a, Wave const& b);

    // The inner product of a wave with what has such products with the parts.
    [[nodiscard]] double Product(Parts const& products, std::size_t phase) const {
        Direction const& at = DirectionOf(phase);
        return at.Cosine * products.Sine + at.Sine * products.Cosine;
    }

private:
    [[nodiscard]] Products ComputeProducts(std::size_t a, std::size_t b) const;

    int days_;
    std::vector<int> periods_;
    Phases phases_;
    std::vector<Parts> sums_; // of the days, by period
    std::vector<Products> own_;
    std::vector<std::vector<Products>> products_;
};

} // namespace quorvex::search
