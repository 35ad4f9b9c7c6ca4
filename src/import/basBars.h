// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How much time the rows of a table stand for, as far as the distances of their days tell it.
#pragma once

#include "text/basDates.h"

#include <string>
#include <vector>

namespace quorvex::imports {

// The median distance that the days of daily quotes have at the most: those of a contract that is seldom
// traded lie some days apart, weekly rows seven.
inline constexpr int MostOfDaily = 4;

// The median of the distances between different days that follow each other, the lower one of two; 0 when
// there are fewer than two of them.
[[nodiscard]] int MedianDistance(std::vector<text::CalendarDay> days);

// What a median distance of more than a day says of the rows.
[[nodiscard]] std::string DescribeBars(int distance);

} // namespace quorvex::imports
