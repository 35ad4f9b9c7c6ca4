// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Many independent pieces of work on some threads.
#pragma once

#include "search/GoOn.h"

#include <cstddef>
#include <functional>

namespace quorvex::evaluation {

// Told by the thread that asked for the work, some twenty times a second, what share of 1 is done; false ends
// it.
using Watch = std::function<bool(double)>;

// One piece by its number. The callback is to be asked many times a second; once it says no the piece ends in
// any state.
using Piece = std::function<void(std::size_t, search::GoOn const&)>;

inline constexpr int MostJobs = 256;

// As many threads as the machine runs at once, 1 to the most.
[[nodiscard]] int UsualJobs();

// Does the pieces 0.. on so many threads, while the calling one watches. Returns whether all were done; not
// when the watch ended it. What a piece throws ends the others and comes through. REQUIRES: 1 worker at
// least.
[[nodiscard]] bool DoPieces(std::size_t count, std::size_t workers, Piece const& piece, Watch const& watch);

} // namespace quorvex::evaluation
