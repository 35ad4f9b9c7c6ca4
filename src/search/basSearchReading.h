// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a search found, in words and figures.
#pragma once

#include "search/CycleModel.h"
#include "search/basSearch.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace quorvex::search {

// A coefficient of correlation, or a part of one, in percent.
[[nodiscard]] std::string ShareText(double share);

// Weight, period, shift, and by how much the cycle adds to the correlation: a row for each cycle.
using CycleRow = std::array<std::string, 4>;
[[nodiscard]] std::vector<CycleRow> ModelRows(CycleModel const& model);

// How far a composite swings.
[[nodiscard]] std::string DescribeSwing(Extremes const& swing);

// How well the model of the chosen number of cycles does, and how far its composite swings. The correlation
// in the grid differs from that of the model when the trend was taken out before the search.
[[nodiscard]] std::string DescribeModel(CycleModel const& model, int chosen, bool isDetrended,
                                        GridComposite const& inGrid);

// The figures of one number of cycles, 1.., in lines joined by LF; empty when it was not found yet.
[[nodiscard]] std::string DescribeCount(std::span<CycleModel const> models, int cycleCount);

// The whole curve of the plot in words.
[[nodiscard]] std::string DescribeSearch(std::span<CycleModel const> models, int chosen);

} // namespace quorvex::search
