// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "WindowRatios.h"

namespace quorvex::bench {

void AddWindowRatios(RatioTable&, int, char**) {}

} // namespace quorvex::bench
