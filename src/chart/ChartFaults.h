// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <optional>

namespace quorvex::chart {

// What ended each part of the charts early; empty where the part ran to its end or had nothing to do.
struct ChartFaults {
    std::optional<text::RunTimeError> Quotes;        // neither quotes nor moving average are complete
    std::optional<text::RunTimeError> MovingAverage; // the quotes are complete
    std::optional<text::RunTimeError> Cycles;        // single cycles or composite; there is no residual then
    std::optional<text::RunTimeError> Residual;
};

} // namespace quorvex::chart
