// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "PlainSearch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvex::tests {

namespace {

double Mean(Series const& series) {
    double sum = 0;
    for (double const value : series) {
        sum += value;
    }
    return sum / static_cast<double>(series.size());
}

double Covariance(Series const& a, Series const& b) {
    double const meanOfA = Mean(a);
    double const meanOfB = Mean(b);
    double sum = 0;
    for (std::size_t day = 0; day < a.size(); ++day) {
        sum += (a[day] - meanOfA) * (b[day] - meanOfB);
    }
    return sum;
}

Series Sum(Series const& a, double weightOfA, Series const& b, double weightOfB) {
    Series sum(a.size());
    for (std::size_t day = 0; day < a.size(); ++day) {
        sum[day] = weightOfA * a[day] + weightOfB * b[day];
    }
    return sum;
}

// The best that two curves reach together with weights of zero or more.
double BestOfTwo(Series const& a, Series const& b, Series const& series) {
    double const aa = Covariance(a, a);
    double const bb = Covariance(b, b);
    double const ab = Covariance(a, b);
    double const as = Covariance(a, series);
    double const bs = Covariance(b, series);
    double best = std::max({0.0, PlainCorrelation(a, series), PlainCorrelation(b, series)});
    double const weightOfA = bb * as - ab * bs;
    double const weightOfB = aa * bs - ab * as;
    if (weightOfA > 0 && weightOfB > 0 && aa * bb - ab * ab > 1e-9 * aa * bb) {
        best = std::max(best, PlainCorrelation(Sum(a, weightOfA, b, weightOfB), series));
    }
    return best;
}

// The best curve beside the fixed one.
Series BestBeside(Series const& fixed, Series const& series, int minPeriod, int maxPeriod, double& best) {
    Series found = fixed;
    for (int period = minPeriod; period <= maxPeriod; ++period) {
        for (int shift = -99; shift <= 99; ++shift) {
            Series curve = CurveOf(period, shift, static_cast<int>(series.size()));
            if (double const correlation = BestOfTwo(fixed, curve, series); correlation > best + 1e-9) {
                best = correlation;
                found = std::move(curve);
            }
        }
    }
    return found;
}

} // namespace

Series CurveOf(int period, int shift, int days) {
    double const phase = shift == 0 ? 0 : 2 * std::numbers::pi / shift;
    Series curve;
    for (int day = 1; day <= days; ++day) {
        curve.push_back(std::sin(2 * std::numbers::pi * day / period + phase));
    }
    return curve;
}

Series CompositeOf(search::CycleModel const& model, int days) {
    Series composite(static_cast<std::size_t>(days));
    for (search::FoundCycle const& cycle : model.Cycles) {
        composite = Sum(composite, 1, CurveOf(cycle.Period, cycle.Shift, days), cycle.Weight);
    }
    return composite;
}

double PlainCorrelation(Series const& a, Series const& b) {
    double const spread = Covariance(a, a) * Covariance(b, b);
    return spread > 1e-18 ? Covariance(a, b) / std::sqrt(spread) : 0;
}

search::CycleModel BestOneCycle(Series const& series, int minPeriod, int maxPeriod) {
    search::CycleModel best;
    for (int period = minPeriod; period <= maxPeriod; ++period) {
        for (int size = 0; size <= 99; ++size) {
            for (int const shift : {size, -size}) {
                double const correlation =
                    PlainCorrelation(CurveOf(period, shift, static_cast<int>(series.size())), series);
                if (correlation > best.Correlation + 1e-12) {
                    best = {{{100, period, shift, correlation}}, correlation};
                }
            }
        }
    }
    return best;
}

double PursueTwoCycles(Series const& series, int minPeriod, int maxPeriod) {
    search::CycleModel const one = BestOneCycle(series, minPeriod, maxPeriod);
    Series first = CompositeOf(one, static_cast<int>(series.size()));
    double best = one.Correlation;
    for (double before = 0; best > before;) {
        before = best;
        Series second = BestBeside(first, series, minPeriod, maxPeriod, best);
        first = std::exchange(second, first);
    }
    return best;
}

double CorrelationWithAnyWeights(search::CycleModel const& model, Series const& series) {
    std::vector<Series> curves;
    for (search::FoundCycle const& cycle : model.Cycles) {
        curves.push_back(CurveOf(cycle.Period, cycle.Shift, static_cast<int>(series.size())));
    }
    Series weights(curves.size(), 1);
    Series composite;
    // Coordinate ascent: the problem has one maximum.
    for (int round = 0; round < 3000; ++round) {
        composite.assign(series.size(), 0);
        for (std::size_t i = 0; i < curves.size(); ++i) {
            composite = Sum(composite, 1, curves[i], weights[i]);
        }
        for (std::size_t i = 0; i < curves.size(); ++i) {
            double const step = (Covariance(curves[i], series) - Covariance(curves[i], composite)) /
                                Covariance(curves[i], curves[i]);
            double const moved = std::max(0.0, weights[i] + step);
            composite = Sum(composite, 1, curves[i], moved - weights[i]);
            weights[i] = moved;
        }
    }
    return PlainCorrelation(composite, series);
}

double Randomness::Next() {
    constexpr double Scale = 1.0 / 1073741824;
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state_ >> 33U) * Scale - 1;
}

Series Randomness::Walk(int days) {
    Series walk;
    double price = 100;
    for (int day = 0; day < days; ++day) {
        price += Next();
        walk.push_back(price);
    }
    return walk;
}

} // namespace quorvex::tests
