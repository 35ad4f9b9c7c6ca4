// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/WholeSet.h"

#include "search/Triangle.h"
#include "search/basWeights.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace quorvex::search {

namespace {

using Percents = std::array<int, LargestSystem>;

constexpr int WholeSum = 100;
constexpr double LeastRise = 1e-9;
constexpr double MostLoss = 0.003;

Weights AsWeights(Percents const& percent) {
    Weights weights{};
    std::copy(percent.begin(), percent.end(), weights.begin());
    return weights;
}

// Whether the grid, which scales weights to percent of their sum and rounds them, leaves these alone.
bool AreKept(Percents const& percent) {
    double const sum = std::accumulate(percent.begin(), percent.end(), 0);
    return sum > 0 && std::all_of(percent.begin(), percent.end(), [sum](int weight) {
               return weight >= 0 && weight <= WholeSum && std::fabs(weight * WholeSum / sum - weight) < 0.5;
           });
}

// Rounded down, with what is missing to 100 given to those that lost most, the first of equals first.
Percents NearestPercent(SmallSystem const& system, Weights const& weights) {
    double const sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    Percents percent{};
    Weights lost{};
    for (std::size_t wave = 0; wave < system.Size; ++wave) {
        double const exact = weights[wave] / sum * WholeSum;
        percent[wave] = static_cast<int>(exact);
        lost[wave] = exact - percent[wave];
    }
    auto* const end = lost.data() + system.Size;
    for (int given = std::accumulate(percent.begin(), percent.end(), 0); given < WholeSum; ++given) {
        auto const most = static_cast<std::size_t>(std::max_element(lost.data(), end) - lost.data());
        ++percent[most];
        lost[most] -= 1;
    }
    return percent;
}

bool LosesLittle(SmallSystem const& system, double correlation) {
    return Correlation(system, NonNegativeWeights(system)) - correlation <= MostLoss;
}

// Improves a set of whole weights by small steps.
class Rounding {
public:
    Rounding(Pursuit const& pursuit, WaveSet const& set) : pursuit_(pursuit), waves_(pursuit.Waves()) {
        set_.Waves = set.Waves;
        set_.System = set.System;
        set_.Percent = NearestPercent(set.System, set.Weights);
        set_.Correlation = Correlation(set_.System, AsWeights(set_.Percent));
    }

    [[nodiscard]] WholeSet Improved() {
        while (MoveWeights() || MoveWaves() || MovePairs()) {
        }
        LeaveOutWeightless();
        return set_;
    }

private:
    // A step of one or two weights by one each.
    struct Step {
        std::size_t First = 0;
        int ByFirst = 0;
        std::size_t Second = 0;
        int BySecond = 0;
    };

    [[nodiscard]] static Percents Stepped(Percents percent, Step const& step) {
        percent[step.First] += step.ByFirst;
        percent[step.Second] += step.BySecond;
        return percent;
    }

    // Makes the best step of weights. Returns whether one was good.
    bool MoveWeights() {
        // Of all waves with the sum, and of the sum with itself and the series: what a step changes follows.
        Weights withSum{};
        double square = 0;
        double product = 0;
        for (std::size_t i = 0; i < set_.System.Size; ++i) {
            withSum[i] = Dot(set_.System.Products[i], AsWeights(set_.Percent), set_.System.Size);
            square += set_.Percent[i] * withSum[i];
            product += set_.Percent[i] * set_.System.WithSeries[i];
        }
        Percents best = set_.Percent;
        double most = set_.Correlation + LeastRise;
        ForEachStep([&](Step const& step) {
            double const steppedProduct = product + step.ByFirst * set_.System.WithSeries[step.First] +
                                          step.BySecond * set_.System.WithSeries[step.Second];
            double const own =
                step.ByFirst * step.ByFirst * set_.System.Products[step.First][step.First] +
                step.BySecond * step.BySecond * set_.System.Products[step.Second][step.Second] +
                2 * step.ByFirst * step.BySecond * set_.System.Products[step.First][step.Second];
            double const steppedSquare =
                square + own +
                2 * (step.ByFirst * withSum[step.First] + step.BySecond * withSum[step.Second]);
            if (steppedProduct <= 0 || steppedSquare <= 0 ||
                steppedProduct <= most * std::sqrt(steppedSquare)) {
                return;
            }
            if (Percents const stepped = Stepped(set_.Percent, step); AreKept(stepped)) {
                best = stepped;
                most = steppedProduct / std::sqrt(steppedSquare);
            }
        });
        bool const isMoved = best != set_.Percent;
        set_.Percent = best;
        set_.Correlation = Correlation(set_.System, AsWeights(best));
        return isMoved;
    }

    template <class Routine>
    void ForEachStep(Routine&& routine) const {
        for (std::size_t first = 0; first < set_.System.Size; ++first) {
            for (std::size_t second = 0; second < first; ++second) {
                for (int byFirst = -1; byFirst <= 1; ++byFirst) {
                    for (int bySecond = -1; bySecond <= 1; ++bySecond) {
                        if (byFirst != 0 || bySecond != 0) {
                            routine(Step{first, byFirst, second, bySecond});
                        }
                    }
                }
            }
        }
    }

    // A place for a wave of given weight, and what it adds there to the products of the composite with the
    // series and with itself, beside waves that stay.
    struct Place {
        Wave At;
        double WithSeries = 0;
        double Square = 0;
    };

    // Gives each wave in turn the best of the places nearby. Returns whether one moved.
    bool MoveWaves() {
        bool isMoved = false;
        for (std::size_t position = 0; position < set_.Waves.size(); ++position) {
            isMoved = MoveWave(position) || isMoved;
        }
        return isMoved;
    }

    bool MoveWave(std::size_t position) {
        constexpr int Reach = 2;
        Place const rest = Without(position, position);
        std::optional<Wave> best;
        double most = set_.Correlation + LeastRise;
        for (Place const& place : PlacesAround(position, position, Reach)) {
            double const correlation =
                CorrelationOf(rest.WithSeries + place.WithSeries, rest.Square + place.Square);
            if (correlation > most) {
                best = place.At;
                most = correlation;
            }
        }
        return best && Put(position, *best, position, *best);
    }

    // Moves the first two waves that follow the series better when both move: those that almost cancel each
    // other have no good place nearby while the other stays. Returns whether there are two.
    bool MovePairs() {
        for (std::size_t first = 0; first < set_.Waves.size(); ++first) {
            for (std::size_t second = 0; second < first; ++second) {
                if (MovePair(first, second)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool MovePair(std::size_t first, std::size_t second) {
        constexpr int Reach = 1;
        Place const rest = Without(first, second);
        std::vector<Place> const secondPlaces = PlacesAround(second, first, Reach);
        double const between = 2.0 * set_.Percent[first] * set_.Percent[second];
        std::optional<std::pair<Wave, Wave>> best;
        double most = set_.Correlation + LeastRise;
        for (Place const& a : PlacesAround(first, second, Reach)) {
            for (Place const& b : secondPlaces) {
                double const correlation =
                    CorrelationOf(rest.WithSeries + a.WithSeries + b.WithSeries,
                                  rest.Square + a.Square + b.Square + between * waves_.Product(a.At, b.At));
                if (correlation > most && a.At != b.At) {
                    best = {a.At, b.At};
                    most = correlation;
                }
            }
        }
        return best && Put(first, best->first, second, best->second);
    }

    [[nodiscard]] static double CorrelationOf(double withSeries, double square) {
        return withSeries > 0 && square > 0 ? withSeries / std::sqrt(square) : 0;
    }

    // What the waves give together without those at the two positions, which may be the same.
    [[nodiscard]] Place Without(std::size_t first, std::size_t second) const {
        Weights weights = AsWeights(set_.Percent);
        weights[first] = weights[second] = 0;
        Place rest;
        for (std::size_t i = 0; i < set_.System.Size; ++i) {
            rest.WithSeries += weights[i] * set_.System.WithSeries[i];
            rest.Square += weights[i] * Dot(set_.System.Products[i], weights, set_.System.Size);
        }
        return rest;
    }

    // The places around a wave's own, so many periods and two phases away, that none of the others takes.
    // What they add leaves out the partner, which may be the wave itself.
    [[nodiscard]] std::vector<Place> PlacesAround(std::size_t position, std::size_t partner,
                                                  int reach) const {
        constexpr int PhaseReach = 2;
        Wave const from = set_.Waves[position];
        auto const periods = static_cast<std::size_t>(reach);
        auto const firstPeriod = from.Period - std::min(from.Period, periods);
        auto const endPeriod = std::min(from.Period + periods + 1, waves_.Periods().size());
        std::vector<Place> places;
        for (std::size_t period = firstPeriod; period < endPeriod; ++period) {
            for (int steps = -PhaseReach; steps <= PhaseReach; ++steps) {
                if (auto const place =
                        PlaceAt(position, partner, {period, waves_.PhaseFrom(from.Phase, steps)})) {
                    places.push_back(*place);
                }
            }
        }
        return places;
    }

    [[nodiscard]] std::optional<Place> PlaceAt(std::size_t position, std::size_t partner,
                                               Wave const& wave) const {
        double const weight = set_.Percent[position];
        Place place{wave, weight * pursuit_.ProductWithSeries(wave),
                    weight * weight * waves_.Product(wave, wave)};
        for (std::size_t i = 0; i < set_.Waves.size(); ++i) {
            if (i != position && i != partner) {
                if (set_.Waves[i] == wave) {
                    return std::nullopt;
                }
                place.Square += 2 * weight * set_.Percent[i] * waves_.Product(wave, set_.Waves[i]);
            }
        }
        return place;
    }

    // Puts waves into one or two positions when that follows the series better and loses little. Returns
    // whether it does.
    bool Put(std::size_t first, Wave const& atFirst, std::size_t second, Wave const& atSecond) {
        std::vector<Wave> waves = set_.Waves;
        waves[first] = atFirst;
        waves[second] = atSecond;
        SmallSystem const system = pursuit_.SystemOf(waves);
        double const correlation = Correlation(system, AsWeights(set_.Percent));
        if (correlation <= set_.Correlation || !LosesLittle(system, correlation)) {
            return false;
        }
        set_.Waves = std::move(waves);
        set_.System = system;
        set_.Correlation = correlation;
        return true;
    }

    void LeaveOutWeightless() {
        std::vector<Wave> waves;
        Percents percent{};
        for (std::size_t i = 0; i < set_.Waves.size(); ++i) {
            if (set_.Percent[i] > 0) {
                percent[waves.size()] = set_.Percent[i];
                waves.push_back(set_.Waves[i]);
            }
        }
        set_.Waves = std::move(waves);
        set_.Percent = percent;
        set_.System = pursuit_.SystemOf(set_.Waves);
    }

    Pursuit const& pursuit_;
    Sinusoids& waves_;
    WholeSet set_;
};

} // namespace

std::optional<WholeSet> RoundWeights(Pursuit const& pursuit, WaveSet const& set) {
    WholeSet whole = Rounding(pursuit, set).Improved();
    return LosesLittle(whole.System, whole.Correlation) ? std::optional(std::move(whole)) : std::nullopt;
}

} // namespace quorvex::search
