// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Searches any series in any range: whatever is found must be a model that the grid can hold.

#include "Require.h"
#include "search/basSearch.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace {

using namespace quorvex::search;
using quorvex::fuzz::Require;

constexpr std::size_t HeadSize = 4;
constexpr std::size_t MostDays = 70; // longer series find nothing else, and slowly

// The values of the input, most of them from its bytes as they are, or with large and small ones among them.
std::vector<double> SeriesOf(std::uint8_t const* data, std::size_t size, bool isWild) {
    std::vector<double> series;
    for (std::size_t place = 0; place < size && series.size() < MostDays; ++place) {
        double value = data[place];
        if (isWild && data[place] > 0xF0 && place + sizeof value < size) {
            double any = 0;
            std::memcpy(&any, data + place, sizeof any);
            value = std::isfinite(any) && std::fabs(any) < 1e300 ? any : value;
        }
        series.push_back(value);
    }
    return series;
}

void CheckModel(CycleModel const& model, SearchRequest const& request, int days) {
    int sum = 0;
    Require(!model.Cycles.empty());
    Require(model.Correlation > 0 && model.Correlation < 1 + 1e-9);
    for (FoundCycle const& cycle : model.Cycles) {
        Require(cycle.Weight >= 1 && cycle.Weight <= 100);
        Require(cycle.Period >= request.MinPeriod && cycle.Period <= MaxPeriodOf(request, days));
        Require(cycle.Shift >= -99 && cycle.Shift <= 99);
        Require(std::isfinite(cycle.Adds));
        sum += cycle.Weight;
    }
    Require(sum >= 95 && sum <= 105);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size <= HeadSize) {
        return 0;
    }
    SearchRequest request;
    request.CycleCount = 1 + data[0] % 5;
    request.MinPeriod = ShortestPeriod + data[1] % 40;
    if (data[2] > 0) {
        request.MaxPeriod = ShortestPeriod + data[2] % 150;
    }
    request.Detrend = (data[3] & 1U) != 0;
    request.LeastSwing = data[3] / 4 * 90 / 63;
    request.HowHard = Effort::Quick;
    auto const series = SeriesOf(data + HeadSize, size - HeadSize, (data[3] & 2U) != 0);
    auto const outcome = SearchSeries(series, request, [] { return true; });
    Require(outcome.Models.empty() == !outcome.Refusal.empty());
    for (CycleModel const& model : outcome.Models) {
        CheckModel(model, request, static_cast<int>(series.size()));
    }
    return 0;
}
