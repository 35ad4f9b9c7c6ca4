// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/Pursuit.h"

#include "search/PeriodRest.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

namespace quorvex::search {

namespace {

// A change must explain at least so much more.
constexpr double LeastGain = 1e-9;

// The wave that has most in common with the one at the position; the position itself when that is alone.
std::size_t PartnerOf(SmallSystem const& system, std::size_t position) {
    std::size_t partner = position;
    double most = -1;
    for (std::size_t other = 0; other < system.Size; ++other) {
        double const product = system.Products[position][other];
        double const common = product * product / system.Products[other][other];
        if (other != position && common > most) {
            most = common;
            partner = other;
        }
    }
    return partner;
}

// Moves a wave to a position before its own, over the wave that stands there.
void MoveWave(WaveSet& set, std::size_t from, std::size_t to) {
    SmallSystem& system = set.System;
    set.Waves[to] = set.Waves[from];
    system.WithSeries[to] = system.WithSeries[from];
    system.Products[to] = system.Products[from];
    for (SmallSystem::Row& row : system.Products) {
        row[to] = row[from];
    }
}

// The set without one of its waves; the others keep their weights.
WaveSet Without(WaveSet set, std::size_t position) {
    for (std::size_t i = position + 1; i < set.Waves.size(); ++i) {
        MoveWave(set, i, i - 1);
    }
    set.Waves.pop_back();
    --set.System.Size;
    return set;
}

// A position so many places on, between 0 and the count; nothing outside.
std::optional<std::size_t> Moved(std::size_t position, int places, std::size_t count) {
    auto const moved = static_cast<std::ptrdiff_t>(position) + places;
    bool const isInside = moved >= 0 && moved < static_cast<std::ptrdiff_t>(count);
    return isInside ? std::optional(static_cast<std::size_t>(moved)) : std::nullopt;
}

} // namespace

// Keeps the best of what it is offered.
class Pursuit::Offers {
public:
    Offers(Pursuit const& pursuit, double threshold, std::size_t most)
        : pursuit_(pursuit),
          threshold_(threshold),
          most_(most) {}

    // What cannot be above this will not be kept.
    [[nodiscard]] double Least() const {
        return offers_.size() < most_ ? threshold_ : offers_.back().Bound - LeastGain;
    }

    void Take(Offer const& offer) {
        auto const isBetter = [this](Offer const& a, Offer const& b) { return pursuit_.IsBetterOffer(a, b); };
        bool const isFull = offers_.size() == most_;
        if (offer.Bound <= threshold_ || (isFull && !isBetter(offer, offers_.back()))) {
            return;
        }
        offers_.insert(std::upper_bound(offers_.begin(), offers_.end(), offer, isBetter), offer);
        if (isFull) {
            offers_.pop_back();
        }
    }

    [[nodiscard]] std::vector<Offer> Best() && { return std::move(offers_); }

private:
    Pursuit const& pursuit_;
    double threshold_;
    std::size_t most_;
    std::vector<Offer> offers_;
};

Pursuit::Pursuit(Sinusoids& waves, std::span<double const> series)
    : waves_(waves),
      withSeries_(waves.ProductsWith(series)) {}

void Pursuit::CountCosts(std::size_t waveCount, double factor, double leastSwing) {
    // Rounding to hundredths errs by 1 / 12 of their square on the average; half the days are a wave's
    // square. One wave has the weight 100 anyway.
    constexpr double Hundredths = 100.0 * 100 * 12;
    double const rounding = static_cast<double>(waveCount) / 2 / Hundredths;
    // With this part of the swing that is asked for the sets around it are found.
    constexpr double SwingPart = 0.3 / 100;
    double const flatness = leastSwing * SwingPart * leastSwing * SwingPart;
    cost_ = waveCount < 2 ? 0 : factor * (rounding + flatness) * waves_.Days();
}

std::vector<Pursuit::Offer> Pursuit::OffersBeside(WaveSet const& set, Range const& periods, double threshold,
                                                  std::size_t most) const {
    ChosenWaves chosen(cost_);
    for (std::size_t i = 0; i < set.Waves.size(); ++i) {
        chosen.Add({waves_.ProductsOf(set.Waves[i].Period).data(), waves_.DirectionOf(set.Waves[i].Phase)},
                   set.System, i);
    }
    chosen.Close();
    Offers offers(*this, threshold, most);
    for (std::size_t period = periods.From; period < periods.To; ++period) {
        PeriodRest const rest = chosen.RestOf(period, waves_.OwnProducts(period), withSeries_[period]);
        if (chosen.Explained() + rest.MostGain() <= offers.Least()) {
            continue;
        }
        if (rest.IsFlat()) {
            OfferAllPhases(rest, period, chosen.Explained(), offers);
            continue;
        }
        auto const [below, above] = waves_.PhasesAround(rest.BestDirection());
        for (auto const& [first, places] : {std::pair(below, -1), std::pair(above, 1)}) {
            auto const [phase, gain] = Climb(rest, waves_, first, places);
            if (gain > 0) {
                offers.Take({{period, phase}, chosen.Explained() + gain});
            }
        }
    }
    return std::move(offers).Best();
}

void Pursuit::OfferAllPhases(PeriodRest const& rest, std::size_t period, double explained,
                             Offers& offers) const {
    for (std::size_t phase = 0; phase < waves_.PhaseCount(); ++phase) {
        if (double const gain = rest.Gain(waves_.DirectionOf(phase)); gain > 0) {
            offers.Take({{period, phase}, explained + gain});
        }
    }
}

bool Pursuit::IsShorter(Wave const& a, Wave const& b) const {
    if (a.Period != b.Period) {
        return waves_.Periods()[a.Period] < waves_.Periods()[b.Period];
    }
    int const x = waves_.ShiftOf(a.Phase);
    int const y = waves_.ShiftOf(b.Phase);
    return std::abs(x) != std::abs(y) ? std::abs(x) < std::abs(y) : x > y;
}

bool Pursuit::IsBetterOffer(Offer const& a, Offer const& b) const {
    double const boundOfA = Comparable(a.Bound);
    double const boundOfB = Comparable(b.Bound);
    return boundOfA != boundOfB ? boundOfA > boundOfB : IsShorter(a.Wave, b.Wave);
}

SmallSystem Pursuit::SystemOf(std::span<Wave const> waves) const {
    WaveSet set;
    for (Wave const& wave : waves) {
        Append(set, wave);
    }
    return set.System;
}

void Pursuit::Append(WaveSet& set, Wave const& wave) const {
    SmallSystem& system = set.System;
    std::size_t const last = system.Size;
    for (std::size_t i = 0; i < last; ++i) {
        system.Products[i][last] = system.Products[last][i] = waves_.Product(set.Waves[i], wave);
    }
    system.Products[last][last] = waves_.Product(wave, wave);
    system.WithSeries[last] = ProductWithSeries(wave);
    set.Waves.push_back(wave);
    ++system.Size;
}

WaveSet Pursuit::Fit(std::vector<Wave> waves) const {
    std::sort(waves.begin(), waves.end(), [this](Wave const& a, Wave const& b) { return IsShorter(a, b); });
    WaveSet set;
    for (Wave const& wave : waves) {
        Append(set, wave);
    }
    FitWeights(set);
    return set;
}

void Pursuit::FitWeights(WaveSet& set) const {
    Weights const weights = NonNegativeWeights(WithCommonPart(set.System, cost_));
    set.Weights = {};
    set.Part = 0;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < set.Waves.size(); ++i) {
        if (weights[i] > 0) {
            set.Part += weights[i] * set.System.WithSeries[i];
            MoveWave(set, i, kept);
            set.Weights[kept++] = weights[i];
        }
    }
    set.Waves.resize(kept);
    set.System.Size = kept;
}

WaveSet Pursuit::FitWith(WaveSet set, Wave const& wave) const {
    Append(set, wave);
    FitWeights(set);
    return set;
}

std::vector<WaveSet> Pursuit::Extend(WaveSet const& set, std::size_t most) const {
    std::vector<WaveSet> extended;
    for (Offer const& offer : OffersBeside(set, AllPeriods(), 0, most)) {
        extended.push_back(FitWith(set, offer.Wave));
    }
    return extended;
}

bool Pursuit::Complete(WaveSet& best, WaveSet const& without, Range const& periods) const {
    constexpr std::size_t MostTrials = 6;
    bool isImproved = false;
    for (Offer const& offer : OffersBeside(without, periods, best.Part + LeastGain, MostTrials)) {
        if (offer.Bound <= best.Part + LeastGain) {
            break;
        }
        if (WaveSet completed = FitWith(without, offer.Wave); completed.Part > best.Part + LeastGain) {
            best = std::move(completed);
            isImproved = true;
        }
    }
    return isImproved;
}

bool Pursuit::Improve(WaveSet& set) const {
    bool isImproved = false;
    for (std::size_t position = 0; position < set.Waves.size(); ++position) {
        isImproved = Complete(set, Without(set, position), AllPeriods()) || isImproved;
    }
    return isImproved;
}

bool Pursuit::ImproveTogether(WaveSet& set) const {
    for (std::size_t position = 0; position < set.Waves.size(); ++position) {
        if (MoveWithPartner(set, position)) {
            return true;
        }
    }
    return false;
}

bool Pursuit::MoveWithPartner(WaveSet& set, std::size_t position) const {
    constexpr int Reach = 2;
    std::size_t const partner = PartnerOf(set.System, position);
    if (partner == position) {
        return false;
    }
    Wave const moving = set.Waves[position];
    Range const around = PeriodsAround(set.Waves[partner].Period);
    WaveSet const others = Without(Without(set, std::max(position, partner)), std::min(position, partner));
    WaveSet best = set;
    bool isImproved = false;
    for (int periods = -Reach; periods <= Reach; ++periods) {
        auto const period = Moved(moving.Period, periods, withSeries_.size());
        for (int phases = -Reach; period && phases <= Reach; ++phases) {
            if (periods != 0 || phases != 0) {
                WaveSet without = others;
                Append(without, {*period, waves_.PhaseFrom(moving.Phase, phases)});
                isImproved = Complete(best, without, around) || isImproved;
            }
        }
    }
    set = std::move(best);
    return isImproved;
}

std::optional<WaveSet> Pursuit::MovedTogether(WaveSet const& set, int places) const {
    std::vector<Wave> waves;
    for (Wave const& wave : set.Waves) {
        auto const period = Moved(wave.Period, places, withSeries_.size());
        if (!period) {
            return std::nullopt;
        }
        Wave const moved = WithPeriod(wave, *period);
        if (std::find(waves.begin(), waves.end(), moved) != waves.end()) {
            return std::nullopt;
        }
        waves.push_back(moved);
    }
    return Fit(std::move(waves));
}

Wave Pursuit::WithPeriod(Wave const& wave, std::size_t period) const {
    std::int64_t const from = waves_.Periods()[wave.Period];
    std::int64_t const to = waves_.Periods()[period];
    // Half the days, times the difference of 2 pi / period.
    Direction const turn = DirectionAt((waves_.Days() + 1) * (to - from), from * to);
    Direction const wanted = Turned(waves_.DirectionOf(wave.Phase), turn);
    auto const near = waves_.PhasesAround(wanted);
    auto const inCommon = [&](std::size_t phase) {
        Direction const& at = waves_.DirectionOf(phase);
        return at.Cosine * wanted.Cosine + at.Sine * wanted.Sine;
    };
    return {period, inCommon(near.Above) > inCommon(near.Below) ? near.Above : near.Below};
}

Pursuit::Range Pursuit::PeriodsAround(std::size_t period) const {
    constexpr std::size_t Reach = 8;
    return {period - std::min(period, Reach), std::min(period + Reach + 1, withSeries_.size())};
}

} // namespace quorvex::search
