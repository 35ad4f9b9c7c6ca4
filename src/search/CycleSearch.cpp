// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/CycleSearch.h"

#include "search/Pursuit.h"
#include "search/WholeSet.h"

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

// With how many further waves each of them is extended, and how many sets are shaken.
struct Trials {
    std::size_t Breadth = 0;
    std::size_t Shakes = 0;
};

// Few cycles are found at once; more have more sets that nothing small improves, and take longer.
Trials TrialsFor(std::size_t waveCount, Effort effort) {
    constexpr std::size_t FewWaves = 3;
    constexpr std::size_t SomeWaves = 5;
    if (effort == Effort::Quick) {
        return {4, 3};
    }
    if (waveCount <= FewWaves) {
        return {4, 12};
    }
    return waveCount <= SomeWaves ? Trials{6, 30} : Trials{4, 10};
}

// How much the cost of rounding counts: as it is on the average, or less or more while sets are shaken, since
// some that look too fine can be rounded well.
constexpr double UsualFactor = 2;
constexpr std::array<double, 3> ShakingFactors = {0.5, 1, 2};

double LargestOf(std::vector<double> const& values) {
    double largest = 0;
    for (double const value : values) {
        largest = std::max(largest, std::fabs(value));
    }
    return largest;
}

// The series less its mean, with a sum of squares of 1; empty when it does not change.
std::vector<double> Normalised(std::span<double const> series) {
    // Sums of squares stay in range when the largest value is 1.
    constexpr double LeastChange = 1e-12;
    std::vector<double> values(series.begin(), series.end());
    double const scale = LargestOf(values);
    double mean = 0;
    for (double& value : values) {
        value = scale > 0 ? value / scale : 0;
        mean += value / static_cast<double>(values.size());
    }
    for (double& value : values) {
        value -= mean;
    }
    if (LargestOf(values) <= LeastChange) {
        return {};
    }
    double squares = 0;
    for (double const value : values) {
        squares += value * value;
    }
    for (double& value : values) {
        value /= std::sqrt(squares);
    }
    return values;
}

// A set on the way, with what it becomes in whole numbers.
struct Candidate {
    WaveSet Set;
    WholeSet Whole;
};

// The best of the candidates that differ, the best first.
class Beam {
public:
    explicit Beam(Pursuit const& pursuit) : pursuit_(pursuit) {}

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
        Candidate candidate{std::move(set), *std::move(whole)};
        auto const place =
            std::upper_bound(candidates_.begin(), candidates_.end(), candidate,
                             [this](Candidate const& a, Candidate const& b) { return IsBetter(a, b); });
        candidates_.insert(place, std::move(candidate));
        if (candidates_.size() > BeamWidth) {
            candidates_.pop_back();
        }
    }

    [[nodiscard]] std::vector<Candidate> const& Candidates() const { return candidates_; }

private:
    [[nodiscard]] bool IsThere(WaveSet const& set) const {
        return std::any_of(candidates_.begin(), candidates_.end(),
                           [&](Candidate const& other) { return other.Set.Waves == set.Waves; });
    }

    // By what they follow better and, when they follow equally well, by shorter periods and smaller shifts.
    [[nodiscard]] bool IsBetter(Candidate const& a, Candidate const& b) const {
        double const correlationOfA = Comparable(a.Whole.Correlation);
        double const correlationOfB = Comparable(b.Whole.Correlation);
        if (correlationOfA != correlationOfB) {
            return correlationOfA > correlationOfB;
        }
        return std::lexicographical_compare(
            a.Set.Waves.begin(), a.Set.Waves.end(), b.Set.Waves.begin(), b.Set.Waves.end(),
            [this](Wave const& x, Wave const& y) { return pursuit_.IsShorter(x, y); });
    }

    Pursuit const& pursuit_;
    std::vector<Candidate> candidates_;
};

// The search of one series, from stage to stage with one cycle more.
class Climbing {
public:
    // The sequence is to be the same in every run. NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp)
    Climbing(Sinusoids& waves, std::span<double const> series, GoOn const& goOn)
        : waves_(waves),
          pursuit_(waves, series),
          goOn_(goOn) {}

    // Looks for the best sets of so many waves, from those of the stage before.
    void Stage(std::size_t waveCount, Effort effort) {
        Trials const trials = TrialsFor(waveCount, effort);
        Beam beam(pursuit_);
        ExtendSets(waveCount, trials.Breadth, beam);
        if (waveCount > 1) {
            ShakeSets(waveCount, trials.Shakes, beam);
        }
        sets_.clear();
        for (Candidate const& candidate : beam.Candidates()) {
            sets_.push_back(candidate.Set);
        }
        if (!sets_.empty() && beam.Candidates().front().Whole.Correlation > best_.Correlation) {
            best_ = beam.Candidates().front().Whole;
        }
    }

    [[nodiscard]] WholeSet const& Best() const { return best_; }

    [[nodiscard]] Pursuit const& UsedPursuit() const { return pursuit_; }

private:
    void ExtendSets(std::size_t waveCount, std::size_t breadth, Beam& beam) {
        pursuit_.CountRoundingOf(waveCount, UsualFactor);
        for (WaveSet const& set : sets_) {
            WaveSet const fitted = pursuit_.Fit(set.Waves);
            for (WaveSet& extended : pursuit_.Extend(fitted, breadth)) {
                Polish(extended);
                beam.Take(std::move(extended));
            }
            beam.Take(fitted);
        }
    }

    void ShakeSets(std::size_t waveCount, std::size_t shakes, Beam& beam) {
        for (std::size_t shake = 0; shake < shakes && !beam.Candidates().empty(); ++shake) {
            std::size_t const replaced = ReplacedBy(shake, waveCount);
            pursuit_.CountRoundingOf(waveCount, ShakingFactors[shake / 3 % ShakingFactors.size()]);
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
        while (goOn_() && shaken.Waves.size() < waveCount && AddBest(shaken)) {
        }
        return shaken;
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

std::vector<CycleModel> CycleSearch::Find(std::span<double const> series, int cycleCount, Effort effort,
                                          GoOn const& goOn, TakeModel const& take) {
    std::vector<double> const normalised = Normalised(series);
    if (normalised.empty()) {
        return {};
    }
    Climbing climbing(waves_, normalised, goOn);
    std::vector<CycleModel> models;
    for (int count = 1; count <= cycleCount; ++count) {
        climbing.Stage(static_cast<std::size_t>(count), effort);
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
