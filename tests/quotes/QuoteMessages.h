// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::quotes {

inline constexpr auto TooFewQuotes = "A minimum of 25 daily quotes is required to perform cyclical analysis";

} // namespace quorvex::quotes
