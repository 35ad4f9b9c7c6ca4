// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RatioTable.h"

namespace quorvex::bench {

// Measures the routines that need no display.
void AddCoreRatios(RatioTable& table);

} // namespace quorvex::bench
