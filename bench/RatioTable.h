// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace quorvex::bench {

// Measures the ratios that have a target and puts them into a table, one a line.
[[nodiscard]] std::string MeasuredRatioTable();

} // namespace quorvex::bench
