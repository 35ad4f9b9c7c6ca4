// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/CycleSearch.h"

#include "search/Pursuit.h"
#include "search/WholeSet.h"
#include "search/basNormalised.h"
#include "search/basSwing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <optional>
#include <random>

namespace quorvex::search {

namespace {

// How many sets are followed at once.
constexpr std::size_t BeamWidth = 4;

// With how many further waves each of them is extended, how many sets are shaken, and how far all periods of
// a set are moved together.
struct Trials {
    std::size_t Breadth = 0;
    std::size_t Shakes = 0;
    int Reach = 0;
};

// Few cycles are found at once; more have more sets that nothing small improves, and take longer.
Trials TrialsFor(std::size_t waveCount, Effort effort) {
    constexpr std::size_t FewWaves = 3;
    constexpr std::size_t SomeWaves = 5;
    if (effort == Effort::Quick) {
        return {4, 3, 0};
    }
    if (waveCount <= FewWaves) {
        return {4, 12, 3};
    }
    return waveCount <= SomeWaves ? Trials{6, 72, 6} : Trials{4, 10, 0};
}

// How much the costs count: more than on the average, or less while sets are shaken, since some that look too
// fine can be rounded well.
constexpr double UsualFactor = 2;
constexpr std::array<double, 3> ShakingFactors = {0.2, 0.4, 0.8};

// A set on the way, with what it becomes in whole numbers.
struct Candidate {
    WaveSet Set;
    WholeSet Whole;
    bool SwingsEnough = true;
    double Worth = 0; // the correlation, less when the composite should swing further
};

// The best of the candidates that differ, the best first.
class Beam {
public:
    Beam(Pursuit const& pursuit, double leastSwing) : pursuit_(pursuit), leastSwing_(leastSwing) {}

    void Take(WaveSet set) {
        if (set.Waves.empty()) {
            return;
        }
        set = pursuit_.Fit(std::move(set.Waves)); // in order, to be compared
        if (IsThere(set)) {
            return;
        }
        std::optional<WholeSet> whole = RoundWeights(pursuit_, set);
        if (!whole) {
            return;
        }
        Candidate candidate = Judged(std::move(set), *std::move(whole));
        if (candidate.SwingsEnough && (!best_ || IsBetter(candidate, *best_))) {
            best_ = candidate;
        }
        auto const place =
            std::upper_bound(candidates_.begin(), candidates_.end(), candidate,
                             [this](Candidate const& a, Candidate const& b) { return IsBetter(a, b); });
        candidates_.insert(place, std::move(candidate));
        if (candidates_.size() > BeamWidth) {
            candidates_.pop_back();
        }
    }

    [[nodiscard]] std::vector<Candidate> const& Candidates() const { return candidates_; }

    // The best of all that swing far enough.
    [[nodiscard]] std::optional<Candidate> const& Best() const { return best_; }

private:
    [[nodiscard]] Candidate Judged(WaveSet set, WholeSet whole) const {
        Candidate candidate{std::move(set), std::move(whole)};
        candidate.Worth = candidate.Whole.Correlation;
        if (leastSwing_ > 0 && candidate.Whole.Waves.size() > 1) {
            double const swing = SwingOf(candidate.Whole, pursuit_.Waves());
            candidate.SwingsEnough = swing >= leastSwing_;
            candidate.Worth *= std::min(1.0, swing / leastSwing_);
        }
        return candidate;
    }

    [[nodiscard]] bool IsThere(WaveSet const& set) const {
        return std::any_of(candidates_.begin(), candidates_.end(),
                           [&](Candidate const& other) { return other.Set.Waves == set.Waves; });
    }

    // By their worth and, when they are worth the same, by shorter periods and smaller shifts.
    [[nodiscard]] bool IsBetter(Candidate const& a, Candidate const& b) const {
        double const worthOfA = Comparable(a.Worth);
        double const worthOfB = Comparable(b.Worth);
        if (worthOfA != worthOfB) {
            return worthOfA > worthOfB;
        }
        return std::lexicographical_compare(
            a.Set.Waves.begin(), a.Set.Waves.end(), b.Set.Waves.begin(), b.Set.Waves.end(),
            [this](Wave const& x, Wave const& y) { return pursuit_.IsShorter(x, y); });
    }

    Pursuit const& pursuit_;
    double leastSwing_;
    std::vector<Candidate> candidates_;
    std::optional<Candidate> best_;
};

// The search of one series, from stage to stage with one cycle more.
class Climbing {
public:
    // The sequence is to be the same in every run. NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp)
    Climbing(Sinusoids& waves, std::span<double const> series, SearchAim const& aim, GoOn const& goOn)
        : waves_(waves),
          pursuit_(waves, series),
          aim_(aim),
          goOn_(goOn) {}

    // Looks for the best sets of so many waves, from those of the stage before.
    void Stage(std::size_t waveCount) {
        Trials const trials = TrialsFor(waveCount, aim_.HowHard);
        Beam beam(pursuit_, aim_.LeastSwing);
        ExtendSets(waveCount, trials.Breadth, beam);
        if (waveCount > 1) {
            MoveSets(waveCount, trials.Reach, beam);
            ShakeSets(waveCount, trials.Shakes, beam);
            MoveSets(waveCount, trials.Reach, beam);
        }
        sets_.clear();
        for (Candidate const& candidate : beam.Candidates()) {
            sets_.push_back(candidate.Set);
        }
        if (beam.Best() && beam.Best()->Whole.Correlation > best_.Correlation) {
            best_ = beam.Best()->Whole;
        }
    }

    [[nodiscard]] WholeSet const& Best() const { return best_; }

    [[nodiscard]] Pursuit const& UsedPursuit() const { return pursuit_; }

private:
    void ExtendSets(std::size_t waveCount, std::size_t breadth, Beam& beam) {
        pursuit_.CountCosts(waveCount, UsualFactor, aim_.LeastSwing);
        for (WaveSet const& set : sets_) {
            WaveSet const fitted = pursuit_.Fit(set.Waves);
            for (WaveSet& extended : pursuit_.Extend(fitted, breadth)) {
                Polish(extended);
                beam.Take(std::move(extended));
            }
            beam.Take(fitted);
        }
    }

    void MoveSets(std::size_t waveCount, int reach, Beam& beam) {
        pursuit_.CountCosts(waveCount, ShakingFactors.front(), aim_.LeastSwing);
        std::vector<Candidate> const candidates = beam.Candidates();
        for (Candidate const& candidate : candidates) {
            for (int places = -reach; places <= reach; ++places) {
                if (auto moved = pursuit_.MovedTogether(candidate.Set, places); places != 0 && moved) {
                    Complete(*moved, waveCount);
                    Polish(*moved);
                    beam.Take(std::move(*moved));
                }
            }
        }
    }

    void ShakeSets(std::size_t waveCount, std::size_t shakes, Beam& beam) {
        for (std::size_t shake = 0; shake < shakes && !beam.Candidates().empty(); ++shake) {
            std::size_t const replaced = ReplacedBy(shake, waveCount);
            pursuit_.CountCosts(waveCount, ShakingFactors[shake / 3 % ShakingFactors.size()],
                                aim_.LeastSwing);
            auto const& candidates = beam.Candidates();
            WaveSet shaken = Shake(candidates[shake % candidates.size()].Set, waveCount, replaced);
            Polish(shaken);
            beam.Take(std::move(shaken));
        }
    }

    // How many waves a shake replaces: two, three or all.
    [[nodiscard]] static std::size_t ReplacedBy(std::size_t shake, std::size_t waveCount) {
        std::array<std::size_t, 3> const counts = {2, 3, waveCount};
        return std::min(counts[shake % counts.size()], waveCount);
    }

    void Polish(WaveSet& set) const {
        do {
            while (goOn_() && pursuit_.Improve(set)) {
            }
        } while (goOn_() && pursuit_.ImproveTogether(set));
    }

    // The set with so many of its waves replaced by arbitrary ones, filled up to the count.
    [[nodiscard]] WaveSet Shake(WaveSet const& set, std::size_t waveCount, std::size_t replaced) {
        std::vector<Wave> waves = set.Waves;
        for (std::size_t out = 0; out < replaced && !waves.empty(); ++out) {
            waves.erase(waves.begin() + static_cast<std::ptrdiff_t>(Any(waves.size())));
        }
        while (waves.size() < waveCount) {
            waves.push_back({Any(waves_.Periods().size()), Any(waves_.PhaseCount())});
        }
        WaveSet shaken = pursuit_.Fit(std::move(waves));
        Complete(shaken, waveCount);
        return shaken;
    }

    // Fills the set up to so many waves, as long as more explain more.
    void Complete(WaveSet& set, std::size_t waveCount) const {
        while (goOn_() && set.Waves.size() < waveCount && AddBest(set)) {
        }
    }

    // Adds the wave that explains most more. Returns whether one does.
    bool AddBest(WaveSet& set) const {
        constexpr std::size_t MostTrials = 3;
        WaveSet best = set;
        for (WaveSet& extended : pursuit_.Extend(set, MostTrials)) {
            if (extended.Waves.size() > set.Waves.size() && extended.Part > best.Part) {
                best = std::move(extended);
            }
        }
        std::swap(set, best);
        return set.Waves.size() > best.Waves.size();
    }

    // A number below the count. The sequence is the same in every run and on every machine.
    [[nodiscard]] std::size_t Any(std::size_t count) { return random_() % count; }

    Sinusoids& waves_;
    Pursuit pursuit_;
    SearchAim aim_;
    GoOn const& goOn_;
    std::mt19937 random_; // begins the same each time
    std::vector<WaveSet> sets_{WaveSet()};
    WholeSet best_;
};

CycleModel ModelOf(WholeSet const& set, Pursuit const& pursuit) {
    Weights weights{};
    std::copy(set.Percent.begin(), set.Percent.end(), weights.begin());
    std::vector<std::size_t> order(set.Waves.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return set.Percent[a] != set.Percent[b] ? set.Percent[a] > set.Percent[b]
                                                : pursuit.IsShorter(set.Waves[a], set.Waves[b]);
    });
    CycleModel model;
    model.Correlation = set.Correlation;
    for (std::size_t const position : order) {
        Weights without = weights;
        without[position] = 0;
        Wave const& wave = set.Waves[position];
        model.Cycles.push_back({set.Percent[position], pursuit.Waves().Periods()[wave.Period],
                                pursuit.Waves().ShiftOf(wave.Phase),
                                set.Correlation - Correlation(set.System, without)});
    }
    return model;
}

} // namespace

std::vector<CycleModel> CycleSearch::Find(std::span<double const> series, SearchAim const& aim,
                                          GoOn const& goOn, TakeModel const& take) {
    std::vector<double> const normalised = Normalised(series);
    if (normalised.empty()) {
        return {};
    }
    Climbing climbing(waves_, normalised, aim, goOn);
    std::vector<CycleModel> models;
    for (int count = 1; count <= aim.CycleCount; ++count) {
        climbing.Stage(static_cast<std::size_t>(count));
        if (!goOn()) {
            return {};
        }
        if (climbing.Best().Waves.empty()) {
            return {};
        }
        models.push_back(ModelOf(climbing.Best(), climbing.UsedPursuit()));
        if (take) {
            take(models.back());
        }
    }
    return models;
}

} // namespace quorvex::search
