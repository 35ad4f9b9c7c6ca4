// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleCurves.h"
#include "cycles/CycleParameterSet.h"
#include "quotes/QuoteSeries.h"

#include <nlohmann/json.hpp>

#include <memory>

namespace quorvex::cycles {

// The curves of one analysis among the reference vectors, computed by the program.
struct ReferenceCurves {
    explicit ReferenceCurves(nlohmann::json const& expected);

    std::unique_ptr<quotes::QuoteSeries> series;
    std::unique_ptr<CycleParameterSet> set = std::make_unique<CycleParameterSet>();
    std::unique_ptr<CycleCurves> curves = std::make_unique<CycleCurves>();
};

} // namespace quorvex::cycles
