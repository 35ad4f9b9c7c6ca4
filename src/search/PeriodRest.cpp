// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/PeriodRest.h"

#include <array>

namespace quorvex::search {

double PeriodRest::Gain(Direction const& phase) const {
    constexpr double LeastSquare = 1e-9;
    double const product = phase.Cosine * WithSeries.Sine + phase.Sine * WithSeries.Cosine + CommonSeries;
    double const square = phase.Cosine * (phase.Cosine * SineSine + 2 * WithCommon.Sine) +
                          phase.Sine * (phase.Sine * CosineCosine + 2 * WithCommon.Cosine) +
                          2 * phase.Cosine * phase.Sine * SineCosine + CommonCommon;
    return product > 0 && square > LeastSquare ? product * product / square : 0;
}

double PeriodRest::Determinant() const {
    return SineSine * CosineCosine - SineCosine * SineCosine;
}

bool PeriodRest::IsFlat() const {
    constexpr double LeastDeterminant = 1e-9;
    return Determinant() <= LeastDeterminant;
}

double PeriodRest::MostGain() const {
    constexpr double All = 1;
    if (IsFlat()) {
        return All;
    }
    double const sine = CosineCosine * WithSeries.Sine - SineCosine * WithSeries.Cosine;
    double const cosine = SineSine * WithSeries.Cosine - SineCosine * WithSeries.Sine;
    double const ofParts = (sine * WithSeries.Sine + cosine * WithSeries.Cosine) / Determinant();
    return ofParts + (CommonSeries > 0 && CommonCommon > 0 ? CommonSeries * CommonSeries / CommonCommon : 0);
}

// The common component lengthens all phases alike, which is taken for a longer sine and cosine.
Direction PeriodRest::BestDirection() const {
    double const ss = SineSine + CommonCommon;
    double const cc = CosineCosine + CommonCommon;
    return {cc * WithSeries.Sine - SineCosine * WithSeries.Cosine,
            ss * WithSeries.Cosine - SineCosine * WithSeries.Sine};
}

std::pair<std::size_t, double> Climb(PeriodRest const& rest, Sinusoids const& waves, std::size_t first,
                                     int places) {
    std::size_t best = first;
    double most = rest.Gain(waves.DirectionOf(first));
    for (;;) {
        std::size_t const next = waves.PhaseFrom(best, places);
        double const gain = rest.Gain(waves.DirectionOf(next));
        if (gain <= most) {
            return {best, most};
        }
        best = next;
        most = gain;
    }
}

void ChosenWaves::Add(Chosen const& wave, SmallSystem const& system, std::size_t position) {
    SmallSystem::Row products{};
    std::size_t const size = triangle_.Size();
    for (std::size_t i = 0; i < size; ++i) {
        products[i] = system.Products[position][positions_[i]] + commonSquare_;
    }
    if (triangle_.Append(products, system.Products[position][position] + commonSquare_)) {
        positions_[size] = position;
        waves_[size] = wave;
        withSeries_[size] = system.WithSeries[position];
    }
}

void ChosenWaves::Close() {
    std::size_t const size = triangle_.Size();
    Triangle::Row common{};
    common.fill(commonSquare_);
    series_ = triangle_.Coordinates(withSeries_);
    common_ = triangle_.Coordinates(common);
    commonRest_ = commonSquare_ - Dot(common_, common_, size);
    commonSeries_ = -Dot(common_, series_, size);
    explained_ = Dot(series_, series_, size);
    restOf_ = RoutineFor(size, std::make_index_sequence<LargestSystem>());
}

template <std::size_t Size>
PeriodRest ChosenWaves::ComputeRest(ChosenWaves const& chosen, std::size_t period, Products const& own,
                                    Parts const& withSeries) {
    PeriodRest rest{own.SineSine, own.SineCosine,     own.CosineCosine,    withSeries,
                    {},           chosen.commonRest_, chosen.commonSeries_};
    std::array<Parts, Size> coordinates{};
    for (std::size_t i = 0; i < Size; ++i) {
        Products const& products = chosen.waves_[i].ByPeriod[period];
        Direction const& phase = chosen.waves_[i].Phase;
        Parts part{phase.Cosine * products.SineSine + phase.Sine * products.CosineSine,
                   phase.Cosine * products.SineCosine + phase.Sine * products.CosineCosine};
        for (std::size_t j = 0; j < i; ++j) {
            part.Sine -= chosen.triangle_.At(i, j) * coordinates[j].Sine;
            part.Cosine -= chosen.triangle_.At(i, j) * coordinates[j].Cosine;
        }
        part.Sine *= chosen.triangle_.InverseDiagonal(i);
        part.Cosine *= chosen.triangle_.InverseDiagonal(i);
        coordinates[i] = part;
        rest.SineSine -= part.Sine * part.Sine;
        rest.SineCosine -= part.Sine * part.Cosine;
        rest.CosineCosine -= part.Cosine * part.Cosine;
        rest.WithSeries.Sine -= part.Sine * chosen.series_[i];
        rest.WithSeries.Cosine -= part.Cosine * chosen.series_[i];
        rest.WithCommon.Sine -= part.Sine * chosen.common_[i];
        rest.WithCommon.Cosine -= part.Cosine * chosen.common_[i];
    }
    return rest;
}

template <std::size_t... Sizes>
ChosenWaves::RestRoutine ChosenWaves::RoutineFor(std::size_t size, std::index_sequence<Sizes...>) {
    static constexpr std::array<RestRoutine, sizeof...(Sizes)> Routines = {&ComputeRest<Sizes>...};
    return Routines[size];
}

} // namespace quorvex::search
