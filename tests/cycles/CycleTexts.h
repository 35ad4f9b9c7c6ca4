// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Sets and grids from and to the rows of reference vectors.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "cycles/ParameterGrid.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <string>
#include <vector>

namespace quorvex::cycles {

// Ten rows of four numbers each.
void SetRows(CycleParameterSet& set, nlohmann::json const& rows);
[[nodiscard]] nlohmann::json RowsOf(CycleParameterSet const& set);

// Ten rows of four texts each.
void SetTexts(ParameterGrid& grid, nlohmann::json const& rows);
[[nodiscard]] nlohmann::json TextsOf(ParameterGrid const& grid);

// A set with these cycles as 1, 2, ...; the others are zero.
[[nodiscard]] std::unique_ptr<CycleParameterSet> SetOf(std::vector<std::array<double, 4>> const& rows);

} // namespace quorvex::cycles
