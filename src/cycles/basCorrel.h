// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How well the composite cycle follows the moving average.
#pragma once

#include "cycles/CycleCurves.h"
#include "platform/Dialogs.h"

#include <cstdint>
#include <optional>

namespace quorvex::cycles {

// Pearson's coefficient of correlation of composite and moving average over days 1..n; nothing when either
// sums to zero. Raises "Division by zero" when all values of one are equal.
[[nodiscard]] std::optional<double> CoefficientOfCorrelation(CycleCurves const& curves,
                                                             std::int16_t workingCount);

// The message that reports the coefficient, or that there is none.
[[nodiscard]] platform::Message CorrelationMessage(std::optional<double> coefficient);

// Computes the coefficient and shows its message. Faults as above.
void ShowCorrelation(CycleCurves const& curves, std::int16_t workingCount, platform::Dialogs& dialogs);

} // namespace quorvex::cycles
