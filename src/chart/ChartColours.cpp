// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/ChartColours.h"

#include "cycles/CycleParameterSet.h"
#include "text/SlotArray.h"

#include <array>
#include <cstddef>

namespace quorvex::chart {

namespace {

// Tol's "muted" palette without its lightest member, and a grey: dark enough for white paper and distinct in
// hue and lightness.
constexpr std::array<platform::Colour, cycles::CycleCount> Palette = {
    0x332288, 0xCC6677, 0x117733, 0x88CCEE, 0xAA4499, 0x999933, 0x44AA99, 0x882255, 0xDDCC77, 0x777777};

} // namespace

platform::Colour CycleColour(int cycle) {
    if (cycle < 1 || cycle > cycles::CycleCount) {
        throw text::RunTimeError(text::Fault::SubscriptOutOfRange);
    }
    return Palette.at(static_cast<std::size_t>(cycle - 1));
}

} // namespace quorvex::chart
