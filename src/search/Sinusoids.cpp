// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Sinusoids.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace quorvex::search {

namespace {

// The sums of cos(day * a) and sin(day * a) over the days 1..n for the angle a = 2 pi numerator /
// denominator:
//
//     sum of cos = sin(n a / 2) cos((n + 1) a / 2) / sin(a / 2)
//     sum of sin = sin(n a / 2) sin((n + 1) a / 2) / sin(a / 2)
Direction SumOfTurns(int days, std::int64_t numerator, std::int64_t denominator) {
    if (numerator % denominator == 0) {
        return {static_cast<double>(days), 0};
    }
    Direction const half = DirectionAt(numerator, denominator);
    Direction const all = DirectionAt(days * numerator, denominator);
    Direction const next{all.Cosine * half.Cosine - all.Sine * half.Sine,
                         all.Sine * half.Cosine + all.Cosine * half.Sine};
    double const factor = all.Sine / half.Sine;
    return {factor * next.Cosine, factor * next.Sine};
}

// The products of the values by day of the turn with the sine and cosine of that day. Two days at the same
// distance before and behind the turn's begin share them but for the sign of the sine.
Parts ProductsOfOneTurn(std::span<double const> values) {
    auto const period = static_cast<std::int64_t>(values.size());
    Parts sum{0, values[0]};
    for (std::size_t day = 1; 2 * day <= values.size(); ++day) {
        Direction const at = DirectionAt(2 * static_cast<std::int64_t>(day), period);
        double const before = values[day];
        double const behind = 2 * day < values.size() ? values[values.size() - day] : 0;
        sum.Sine += (before - behind) * at.Sine;
        sum.Cosine += (before + behind) * at.Cosine;
    }
    return sum;
}

std::vector<int> Ordered(std::vector<int> periods) {
    std::sort(periods.begin(), periods.end());
    periods.erase(std::unique(periods.begin(), periods.end()), periods.end());
    return periods;
}

} // namespace

Sinusoids::Sinusoids(int days, std::vector<int> periods)
    : days_(days),
      periods_(Ordered(std::move(periods))),
      products_(periods_.size()) {
    for (int const period : periods_) {
        Direction const sum = SumOfTurns(days_, 1, period);
        sums_.push_back({sum.Sine, sum.Cosine});
    }
    for (std::size_t period = 0; period < periods_.size(); ++period) {
        own_.push_back(ComputeProducts(period, period));
    }
}

std::span<Products const> Sinusoids::ProductsOf(std::size_t period) {
    std::vector<Products>& row = products_[period];
    if (row.empty()) {
        row.reserve(periods_.size());
        for (std::size_t other = 0; other < periods_.size(); ++other) {
            row.push_back(ComputeProducts(period, other));
        }
    }
    return row;
}

// A product of two of the parts is half a sum or difference of one at the sum and one at the difference of
// their frequencies.
Products Sinusoids::ComputeProducts(std::size_t a, std::size_t b) const {
    std::int64_t const p = periods_[a];
    std::int64_t const q = periods_[b];
    Direction const sum = SumOfTurns(days_, q + p, p * q);
    Direction const difference = SumOfTurns(days_, q - p, p * q);
    Parts const& x = sums_[a];
    Parts const& y = sums_[b];
    double const n = days_;
    return {(difference.Cosine - sum.Cosine) / 2 - x.Sine * y.Sine / n,
            (sum.Sine + difference.Sine) / 2 - x.Sine * y.Cosine / n,
            (sum.Sine - difference.Sine) / 2 - x.Cosine * y.Sine / n,
            (difference.Cosine + sum.Cosine) / 2 - x.Cosine * y.Cosine / n};
}

std::vector<Parts> Sinusoids::ProductsWith(std::span<double const> series) const {
    std::vector<Parts> products;
    products.reserve(periods_.size());
    std::vector<double> folded;
    for (int const period : periods_) {
        // Days a whole period apart have the same sine: the series is laid over itself first.
        folded.assign(static_cast<std::size_t>(period), 0);
        std::size_t place = 0;
        for (double const value : series) {
            place = place + 1 == folded.size() ? 0 : place + 1;
            folded[place] += value;
        }
        products.push_back(ProductsOfOneTurn(folded));
    }
    return products;
}

double Sinusoids::Product(Wave const& a, Wave const& b) {
    Products const& products = ProductsOf(a.Period)[b.Period];
    Direction const& x = DirectionOf(a.Phase);
    Direction const& y = DirectionOf(b.Phase);
    return x.Cosine * (y.Cosine * products.SineSine + y.Sine * products.SineCosine) +
           x.Sine * (y.Cosine * products.CosineSine + y.Sine * products.CosineCosine);
}

} // namespace quorvex::search
