// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Which charts there are, and why not: decided once, when the curves are computed.
#pragma once

#include "text/RunTimeError.h"

#include <optional>

namespace quorvex::cycles {

// What a chart that is empty would need.
enum class Need { QuoteFile, Quotes, ActiveCycle };

// A chart is ready, or empty for want of something, or a fault ended its computation.
struct ChartState {
    std::optional<Need> Missing;
    std::optional<text::RunTimeError> Fault;

    [[nodiscard]] bool IsReady() const { return !Missing && !Fault; }
};

// As before the first computation.
struct ChartStates {
    ChartState Quotes{Need::QuoteFile, {}};
    ChartState MovingAverage{Need::QuoteFile, {}}; // of the curve, whether it belongs to these quotes or not
    ChartState Cycles{Need::ActiveCycle, {}};
    ChartState Composite{Need::ActiveCycle, {}};
    ChartState Residual{Need::QuoteFile, {}};
};

} // namespace quorvex::cycles
