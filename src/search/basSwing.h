// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/Sinusoids.h"
#include "search/WholeSet.h"

namespace quorvex::search {

// How far the composite of a set swings over the days: half the way from its lowest to its highest value, of
// the 100 units that one cycle alone reaches. Cycles that almost cancel each other can follow a series well
// with a composite that is next to a flat line.
[[nodiscard]] double SwingOf(WholeSet const& set, Sinusoids const& waves);

} // namespace quorvex::search
