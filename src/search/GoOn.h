// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What goes on between a search and whoever waits for it.
#pragma once

#include "search/CycleModel.h"

#include <functional>

namespace quorvex::search {

// Asked many times a second while a search runs: false ends it.
using GoOn = std::function<bool()>;

// Told each model as soon as it is found: that of one cycle, of two, and so on. It is the one that the search
// returns at its end.
using TakeModel = std::function<void(CycleModel const&)>;

} // namespace quorvex::search
