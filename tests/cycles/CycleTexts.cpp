// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "CycleTexts.h"

#include <cstddef>

namespace quorvex::cycles {

namespace {

nlohmann::json const& RowOf(nlohmann::json const& rows, int cycle) {
    return rows.at(static_cast<std::size_t>(cycle - 1));
}

} // namespace

void SetRows(CycleParameterSet& set, nlohmann::json const& rows) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        auto const& row = RowOf(rows, cycle);
        set.Cycles[cycle].Weight = row.at(0);
        set.Cycles[cycle].Period = row.at(1);
        set.Cycles[cycle].Shift = row.at(2);
        set.Cycles[cycle].Decay = row.at(3);
    }
}

nlohmann::json RowsOf(CycleParameterSet const& set) {
    auto rows = nlohmann::json::array();
    for (int index = 1; index <= CycleCount; ++index) {
        CycleRecord const& cycle = set.Cycles[index];
        rows.push_back({cycle.Weight, cycle.Period, cycle.Shift, cycle.Decay});
    }
    return rows;
}

void SetTexts(ParameterGrid& grid, nlohmann::json const& rows) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            grid.SetText(parameter, cycle,
                         RowOf(rows, cycle).at(static_cast<std::size_t>(parameter)).get<std::string>());
        }
    }
}

nlohmann::json TextsOf(ParameterGrid const& grid) {
    auto rows = nlohmann::json::array();
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        auto row = nlohmann::json::array();
        for (Parameter const parameter : Parameters) {
            row.push_back(grid.Text(parameter, cycle));
        }
        rows.push_back(row);
    }
    return rows;
}

std::unique_ptr<CycleParameterSet> SetOf(std::vector<std::array<double, 4>> const& rows) {
    auto set = std::make_unique<CycleParameterSet>();
    int cycle = 0;
    for (auto const& row : rows) {
        CycleRecord& record = set->Cycles[++cycle];
        record.Weight = row[0];
        record.Period = row[1];
        record.Shift = row[2];
        record.Decay = row[3];
    }
    return set;
}

} // namespace quorvex::cycles
