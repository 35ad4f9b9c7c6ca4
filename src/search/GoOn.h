// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace quorvex::search {

// Asked many times a second while a search runs: false ends it.
using GoOn = std::function<bool()>;

} // namespace quorvex::search
