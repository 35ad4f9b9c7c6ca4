// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The models whose forecasts are tested.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::evaluation {

enum class Method {
    Automate,   // an automatic fit, as the Parameters menu makes it
    Search,     // best cycles, found quickly
    Parameters, // cycles that were given and stay the same on all days
};

struct Model {
    evaluation::Method Method = Method::Automate;
    int CycleCount = 1; // of the first two methods

    friend bool operator==(Model const&, Model const&) = default;
};

// Fits of one, two and three cycles and searches of one, two, three and five; the parameters come last.
[[nodiscard]] std::vector<Model> StandardModels(bool withParameters);

// What a model is called, such as "Quick search of 3 cycles".
[[nodiscard]] std::string ModelName(Model const& model);

// Whether its cycles are made anew of the days up to each origin. Fixed ones may have been chosen with the
// days in view that they are tested on.
[[nodiscard]] bool IsRefitted(Model const& model);

// What a model's cycles are turned into prices by.
enum class ForecastKind {
    Window,    // the forecast window's own rule
    Composite, // the continuation of the composite from the last close on, in the height of the price scale
    Scaled,    // the same in the height in which the composite fits the moving average so far
};

inline constexpr std::array<ForecastKind, 3> ForecastKinds = {ForecastKind::Window, ForecastKind::Composite,
                                                              ForecastKind::Scaled};

// "window", "composite" and "scaled".
[[nodiscard]] std::string_view KindName(ForecastKind kind);

// Days from the origin of a forecast to the day that it is compared with.
inline constexpr std::array<int, 4> Horizons = {1, 5, 10, 25};

} // namespace quorvex::evaluation
