// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "RatioTable.h"

namespace quorvex::bench {

// Measures the window on the offscreen platform, so that it needs no display. Adds nothing in builds without
// Qt. Takes the arguments of main.
void AddWindowRatios(RatioTable& table, int argc, char** argv);

} // namespace quorvex::bench
