// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/PeriodRest.h"
#include "search/Sinusoids.h"
#include "search/basWeights.h"

#include <optional>
#include <span>
#include <vector>

namespace quorvex::search {

// Some waves with the weights of zero or more that fit best together.
struct WaveSet {
    std::vector<Wave> Waves; // all different; each has a weight above zero
    SmallSystem System;      // in the same order
    search::Weights Weights{};
    double Part = 0; // of the series' sum of squares that it explains, less what rounding the weights costs
};

// Looks for waves that explain a series.
//
// Waves of almost one period and almost opposite phase explain much with weights far larger than what is left
// of them, and whole weights are too coarse for that. So every wave gets one more component, of the same size
// in all, which the series does not have: rounding each weight to a hundredth of their sum costs as much on
// the average, and large sums of weights are avoided from the beginning. A larger component finds sets whose
// composite swings further.
class Pursuit {
public:
    // The series sums to zero and its squares to 1. Both must outlive the pursuit.
    Pursuit(Sinusoids& waves, std::span<double const> series);

    // From now on the rounding of so many weights is counted in, by this factor, and likewise what a
    // composite lacks that should swing so far, 0..100. Sets that have been fitted are to be fitted again.
    // REQUIRES: 1 to 10 waves.
    void CountCosts(std::size_t waveCount, double factor, double leastSwing);

    // The set of those waves that get a weight.
    [[nodiscard]] WaveSet Fit(std::vector<Wave> waves) const;

    // The set with one wave more, for the so many waves that promise most, the best first.
    [[nodiscard]] std::vector<WaveSet> Extend(WaveSet const& set, std::size_t most) const;

    // Takes every wave out in turn and puts the best of all in its place. Returns whether that explained
    // more.
    bool Improve(WaveSet& set) const;

    // Moves a wave a little and gives the one that resembles it most a new place nearby at the same time,
    // since two that almost cancel each other can move only together. Returns whether that explained more.
    bool ImproveTogether(WaveSet& set) const;

    // The set with all its periods so many places further in the list of periods, each wave at the same phase
    // in the middle of the days as nearly as can be: sets of waves that almost cancel each other follow a
    // series likewise with other periods. Nothing when there are no such periods.
    [[nodiscard]] std::optional<WaveSet> MovedTogether(WaveSet const& set, int places) const;

    // The inner products of the waves with each other and the series.
    [[nodiscard]] SmallSystem SystemOf(std::span<Wave const> waves) const;

    [[nodiscard]] Sinusoids& Waves() const { return waves_; }

    // The inner product of a wave with the series.
    [[nodiscard]] double ProductWithSeries(Wave const& wave) const {
        return waves_.Product(withSeries_[wave.Period], wave.Phase);
    }

    // Whether the shorter period or, in the same, the smaller shift is that of a; of a shift and its negative
    // the positive one. It decides among what is equally good.
    [[nodiscard]] bool IsShorter(Wave const& a, Wave const& b) const;

private:
    // A wave, and the part that it explains with those before when those may have weights of either sign: at
    // least what it does in truth.
    struct Offer {
        search::Wave Wave;
        double Bound = 0;
    };

    // Positions of periods, the second of them outside.
    struct Range {
        std::size_t From = 0;
        std::size_t To = 0;
    };

    // The best offers, the best first, whose bounds are above the threshold.
    class Offers;

    [[nodiscard]] Range AllPeriods() const { return {0, withSeries_.size()}; }

    [[nodiscard]] Range PeriodsAround(std::size_t period) const;
    [[nodiscard]] std::vector<Offer> OffersBeside(WaveSet const& set, Range const& periods, double threshold,
                                                  std::size_t most) const;
    void OfferAllPhases(PeriodRest const& rest, std::size_t period, double explained, Offers& offers) const;
    [[nodiscard]] bool IsBetterOffer(Offer const& a, Offer const& b) const;

    // The wave of another period that has the phase of this one in the middle of the days.
    [[nodiscard]] Wave WithPeriod(Wave const& wave, std::size_t period) const;

    // Adds the wave without a weight.
    void Append(WaveSet& set, Wave const& wave) const;

    // Finds the weights and takes the waves out that get none.
    void FitWeights(WaveSet& set) const;

    [[nodiscard]] WaveSet FitWith(WaveSet set, Wave const& wave) const;

    // Puts the wave that completes the set best into it, when that explains more than the best so far.
    bool Complete(WaveSet& best, WaveSet const& without, Range const& periods) const;

    bool MoveWithPartner(WaveSet& set, std::size_t position) const;

    Sinusoids& waves_;
    std::vector<Parts> withSeries_;
    double cost_ =
        0; // of rounding and of a small swing, as the square of the component that all waves have in common
};

} // namespace quorvex::search
