// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The colours of curves, the same in charts and legend.
#pragma once

#include "platform/Canvas.h"

namespace quorvex::chart {

inline constexpr platform::Colour QuoteColour = platform::Black;
inline constexpr platform::Colour MovingAverageColour = platform::Magenta;
inline constexpr platform::Colour CompositeColour = 0x0000C0;
inline constexpr platform::Colour ResidualColour = 0xC00000;
// The forecast goes on where the composite, of whose cycles it is made, ends.
inline constexpr platform::Colour ForecastColour = CompositeColour;
// What stands behind the curves: the lines of prices, and the line between quotes and forecast.
inline constexpr platform::Colour GridColour = 0xDCDCDC;
inline constexpr platform::Colour BoundaryColour = 0x808080;

// The colour of a single cycle, 1..10: ten that people with any kind of colour vision tell apart.
[[nodiscard]] platform::Colour CycleColour(int cycle);

} // namespace quorvex::chart
