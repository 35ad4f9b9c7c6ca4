// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/Sinusoids.h"
#include "search/Triangle.h"

#include <utility>

namespace quorvex::search {

// What is left of the waves of one period beside some that are chosen: inner products of their two parts with
// each other, with the series, and with the component that all waves have in common.
struct PeriodRest {
    double SineSine = 0;
    double SineCosine = 0;
    double CosineCosine = 0;
    Parts WithSeries;
    Parts WithCommon;
    double CommonCommon = 0;
    double CommonSeries = 0;

    // The part of the series' sum of squares that the wave of a phase explains beside those chosen; 0 when it
    // would need a negative weight, or when nothing is left of it.
    [[nodiscard]] double Gain(Direction const& phase) const;

    // Whether the waves of the period differ in size alone, so that no direction tells the best of them. So
    // it is for the period 2, of which every wave changes between two values.
    [[nodiscard]] bool IsFlat() const;

    // At least what the best phase gains, were any angle to be had.
    [[nodiscard]] double MostGain() const;

    // About the phase that gains most. Not of length 1.
    [[nodiscard]] Direction BestDirection() const;

private:
    [[nodiscard]] double Determinant() const;
};

// The phase with the largest gain on the way from the first in steps of so many places, while the gain rises.
[[nodiscard]] std::pair<std::size_t, double> Climb(PeriodRest const& rest, Sinusoids const& waves,
                                                   std::size_t first, int places);

// The waves beside which another one is sought.
class ChosenWaves {
public:
    struct Chosen {
        Products const* ByPeriod = nullptr; // those of its period with all periods
        Direction Phase;
    };

    // The square of the component that all waves have in common.
    explicit ChosenWaves(double commonSquare) : commonSquare_(commonSquare) {}

    // Adds the wave that stands at the position of the system; one that those before make up is left out.
    void Add(Chosen const& wave, SmallSystem const& system, std::size_t position);

    // To be called after the last wave.
    void Close();

    // The part of the series' sum of squares that they explain with weights of either sign.
    [[nodiscard]] double Explained() const { return explained_; }

    [[nodiscard]] PeriodRest RestOf(std::size_t period, Products const& own, Parts const& withSeries) const {
        return restOf_(*this, period, own, withSeries);
    }

private:
    using RestRoutine = PeriodRest (*)(ChosenWaves const&, std::size_t, Products const&, Parts const&);

    template <std::size_t Size>
    [[nodiscard]] static PeriodRest ComputeRest(ChosenWaves const& chosen, std::size_t period,
                                                Products const& own, Parts const& withSeries);

    // The routine whose loops know how many waves there are: most of a search is spent in it.
    template <std::size_t... Sizes>
    [[nodiscard]] static RestRoutine RoutineFor(std::size_t size, std::index_sequence<Sizes...> sizes);

    double commonSquare_;
    Triangle triangle_;
    std::array<Chosen, LargestSystem> waves_{};
    std::array<std::size_t, LargestSystem> positions_{};
    SmallSystem::Row withSeries_{};
    // Coordinates in the space of the waves.
    Triangle::Row series_{};
    Triangle::Row common_{};
    double commonRest_ = 0;
    double commonSeries_ = 0;
    double explained_ = 0;
    RestRoutine restOf_ = nullptr;
};

} // namespace quorvex::search
