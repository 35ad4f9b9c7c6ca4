// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace quorvex::bench {

using Work = std::function<void()>;

// How many times as long the work takes as its baseline. Both run by turns in many short rounds, and the
// median of the rounds' ratios counts: what else the machine does disturbs both alike or a few rounds only.
[[nodiscard]] double MeasureRatio(Work const& work, Work const& baseline);

} // namespace quorvex::bench
