// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basAutomate.h"

#include "cycles/EvenAngles.h"
#include "cycles/basCurves.h"
#include "text/RunTimeError.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace quorvex::cycles {

namespace {

constexpr double Pi = 3.14159265358979;

// Weights by rank of the cycle; they sum to 100 whatever the amplitudes are.
constexpr std::array<double, 3> FixedWeights = {50, 34, 16};

// cos(w t) and sin(w t) of the days, which the fit and the stripping share.
using Basis = EvenAngles<quotes::MaxQuotes>;

// The sum of many arc cosines at the cost of one arc.
//
// Let S be the sum so far, and a the next angle, whose cosine c is what is added. The point x = cos S,
// y = sin S of the unit circle turns by the addition theorems:
//
//     cos(S + a) = cos S cos a - sin S sin a          sin a = sqrt(1 - c * c), which is above zero,
//     sin(S + a) = cos S sin a + sin S cos a          because a lies between 0 and pi
//
// The point alone forgets whole turns. So split S = h pi + r with a whole number h of half turns and a rest r
// from 0 up to pi. sin S is sin r when h is even and -sin r when it is odd: the sign of y tells the parity of
// h. An angle below pi adds one half turn or none, so that h grows by one exactly when y changes its sign.
// The last point tells the rest: sin r is |y|, and cos r is x, or -x where y is below zero.
//
// The arc cosine of this program is Pi / 2 - arctan(c / sin a), with a Pi that falls short of pi: each angle
// is less by half of that.
class ArcCosineSum {
public:
    // REQUIRES: IsCosine.
    void Add(double cosine) {
        double const sine = std::sqrt(1 - cosine * cosine);
        double const x = x_ * cosine - y_ * sine;
        double const y = x_ * sine + y_ * cosine;
        halfTurns_ += static_cast<int>(std::signbit(y) != std::signbit(y_));
        x_ = x;
        y_ = y;
        ++angles_;
    }

    [[nodiscard]] double Radians() const {
        constexpr double Shortfall = (std::numbers::pi - Pi) / 2;
        double const rest = std::atan2(std::fabs(y_), std::signbit(y_) ? -x_ : x_);
        return halfTurns_ * std::numbers::pi + rest - angles_ * Shortfall;
    }

private:
    double x_ = 1;
    double y_ = 0;
    int halfTurns_ = 0;
    int angles_ = 0;
};

// Whether this is the cosine of an angle that adds anything: one of -1 or 1, or beyond, counts as an angle
// of 0.
bool IsCosine(double value) {
    return value * value < 1;
}

// What the days say about the frequency.
struct FrequencyVotes {
    std::array<double, quotes::MaxQuotes> Cosines{}; // of the angles, the first AngleCount
    std::size_t AngleCount = 0;
    int Count = 0; // of the votes, those for an angle of 0 included
};

// For a pure sinusoid the quotient is cos w at every day, so that each day within range votes for a
// frequency. Which days do is as good as random: choosing without a branch spares the processor wrong
// guesses.
FrequencyVotes CollectVotes(QuoteCurve const& x, std::int16_t count) {
    FrequencyVotes votes;
    for (int day = 3; day <= count - 2; ++day) {
        double const above = 2 * x[day] + x[day - 2] + x[day + 2];
        double const below = 2 * (x[day - 1] + x[day + 1]);
        static_cast<void>(text::RequireFinite(above + below));
        if (below == 0) {
            continue;
        }
        double const ratio = text::RequireFinite(above / below);
        votes.Cosines[votes.AngleCount] = ratio;
        votes.AngleCount += static_cast<std::size_t>(IsCosine(ratio));
        votes.Count += static_cast<int>(std::fabs(ratio) <= 1);
    }
    return votes;
}

double EstimateFrequency(QuoteCurve const& x, std::int16_t count) {
    FrequencyVotes const votes = CollectVotes(x, count);
    ArcCosineSum sum;
    for (std::size_t angle = 0; angle < votes.AngleCount; ++angle) {
        sum.Add(votes.Cosines[angle]);
    }
    return text::Divide(sum.Radians(), votes.Count);
}

// Least squares for x[t] = a cos(w t) + b sin(w t).
SinusoidFit SolveLeastSquares(QuoteCurve const& x, Basis const& basis, std::int16_t count) {
    double xc = 0;
    double xs = 0;
    double cc = 0;
    double ss = 0;
    double cs = 0;
    for (int day = 1; day <= count; ++day) {
        double const value = x[day];
        double const cosine = basis.Cosine(day);
        double const sine = basis.Sine(day);
        xc += value * cosine;
        xs += value * sine;
        cc += cosine * cosine;
        ss += sine * sine;
        cs += sine * cosine;
    }
    double const determinant = cs * cs - cc * ss;
    SinusoidFit fit;
    fit.CosineCoefficient = text::Divide(cs * xs - ss * xc, determinant);
    fit.SineCoefficient = text::Divide(cs * xc - cc * xs, determinant);
    return fit;
}

SinusoidFit FitWithBasis(QuoteCurve const& x, std::int16_t count, Basis& basis) {
    double const frequency = EstimateFrequency(x, count);
    basis.Take(0, frequency, count);
    SinusoidFit fit = SolveLeastSquares(x, basis, count);
    double const a = fit.CosineCoefficient;
    double const b = fit.SineCoefficient;
    fit.Frequency = frequency;
    fit.Amplitude = std::sqrt(text::RequireFinite(a * a + b * b));
    fit.Phase = -std::atan(text::Divide(-b, a));
    return fit;
}

// The moving average less its mean.
QuoteCurve CentredSeries(QuoteCurve const& movingAverageCurve, std::int16_t count) {
    double sum = 0;
    for (int day = 1; day <= count; ++day) {
        sum += movingAverageCurve[day];
    }
    double const mean = text::RequireFinite(sum) / count;
    QuoteCurve series;
    for (int day = 1; day <= count; ++day) {
        series[day] = movingAverageCurve[day] - mean;
    }
    return series;
}

void Strip(QuoteCurve& series, SinusoidFit const& fit, Basis const& basis, std::int16_t count) {
    for (int day = 1; day <= count; ++day) {
        series[day] =
            series[day] - fit.CosineCoefficient * basis.Cosine(day) - fit.SineCoefficient * basis.Sine(day);
    }
}

void WriteFit(ParameterGrid& grid, int cycle, SinusoidFit const& fit) {
    WriteCell(grid, Parameter::Weight, cycle, FixedWeights.at(static_cast<std::size_t>(cycle - 1)));
    WriteCell(grid, Parameter::Period, cycle, text::Divide(TwoPi, fit.Frequency));
    WriteCell(grid, Parameter::Shift, cycle, text::Divide(TwoPi, fit.Phase));
}

} // namespace

double ArcCosine(double x) {
    ArcCosineSum sum;
    if (IsCosine(x)) {
        sum.Add(x);
    }
    return sum.Radians();
}

SinusoidFit FitSinusoid(QuoteCurve const& series, std::int16_t count) {
    Basis basis;
    return FitWithBasis(series, count, basis);
}

void AutomateCycles(int cycleCount, std::int16_t workingCount, CycleCurves& curves, CycleParameterSet& set,
                    ParameterGrid& grid, std::vector<SinusoidFit>& fits) {
    if (workingCount == 0) {
        return;
    }
    ClearCycles(set, curves.CompositeCurve);
    QuoteCurve series = CentredSeries(curves.MovingAverageCurve, workingCount);
    ClearGrid(grid);
    Basis basis;
    for (int cycle = 1; cycle <= cycleCount; ++cycle) {
        SinusoidFit const fit = FitWithBasis(series, workingCount, basis);
        fits.push_back(fit);
        WriteFit(grid, cycle, fit);
        if (cycle < cycleCount) {
            Strip(series, fit, basis, workingCount);
        }
    }
}

} // namespace quorvex::cycles
