// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"

namespace quorvex::chart {

enum class ChartKind { Quotes, Cycles, Composite, Residual };

// What the charts are drawn and read from: the data and what was computed from them.
struct ChartContents {
    quotes::QuoteSeries const& Series;
    settings::Settings const& Settings;
    cycles::CycleParameterSet const& Cycles;
    cycles::CycleCurves const& Curves;
};

} // namespace quorvex::chart
