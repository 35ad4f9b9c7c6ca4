// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

namespace quorvex::fuzz {

// Ends the program where something does not hold, so that the fuzzer keeps the input.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace quorvex::fuzz
