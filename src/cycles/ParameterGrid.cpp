// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/ParameterGrid.h"

#include "text/RunTimeError.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

#include <cstddef>
#include <string>

namespace quorvex::cycles {

namespace {

constexpr double LargestWeight = 100;

// Weights in percent: what the grid shows after every reading.
constexpr double WholeWeight = 100;

text::NumberFormat const& WholeFormat() {
    static text::NumberFormat const format("##0");
    return format;
}

double Number(ParameterGrid const& grid, Parameter parameter, int cycle) {
    return text::LeadingNumber(grid.Text(parameter, cycle));
}

struct ParameterRow {
    std::string_view Name;
    double CycleRecord::*Field; // where the set keeps it
};

// In the order of the enumeration.
constexpr std::array<ParameterRow, Parameters.size()> Rows = {{
    {"Weight", &CycleRecord::Weight},
    {"Period", &CycleRecord::Period},
    {"Shift", &CycleRecord::Shift},
    {"Decay", &CycleRecord::Decay},
}};

ParameterRow const& RowOf(Parameter parameter) {
    return Rows.at(static_cast<std::size_t>(parameter));
}

// Drops the weights out of range and returns the sum of the others.
double CheckWeights(ParameterGrid& grid) {
    double total = 0;
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        double const weight = Number(grid, Parameter::Weight, cycle);
        if (weight >= 0 && weight <= LargestWeight) {
            total += weight;
        } else {
            grid.SetText(Parameter::Weight, cycle, "0");
        }
    }
    return total;
}

void ScaleWeights(ParameterGrid& grid, double total) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        double const weight = Number(grid, Parameter::Weight, cycle);
        double const percent = text::Divide(weight * WholeWeight, total);
        grid.SetText(Parameter::Weight, cycle, text::PlainNumber(text::WholeNumber(percent)));
    }
}

void StoreParameters(ParameterGrid const& grid, CycleParameterSet& set) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            set.Cycles[cycle].*RowOf(parameter).Field = WholeFormat().Round(Number(grid, parameter, cycle));
        }
    }
}

} // namespace

std::string_view ParameterName(Parameter parameter) {
    return RowOf(parameter).Name;
}

std::string TextGrid::Text(Parameter parameter, int cycle) const {
    return cells_.at(static_cast<std::size_t>(parameter))[cycle];
}

void TextGrid::SetText(Parameter parameter, int cycle, std::string_view text) {
    cells_.at(static_cast<std::size_t>(parameter))[cycle] = text;
}

void ClearGrid(ParameterGrid& grid) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            grid.SetText(parameter, cycle, "0");
        }
    }
}

bool ReadGrid(ParameterGrid& grid, CycleParameterSet& set, platform::PendingMessages& pending) {
    bool stored = false;
    static_cast<void>(text::Trap([&] {
        double const total = CheckWeights(grid);
        if (total == 0) {
            return;
        }
        ScaleWeights(grid, total);
        pending.Process();
        StoreParameters(grid, set);
        WriteGrid(set, grid);
        stored = true;
    }));
    return stored;
}

void WriteGrid(CycleParameterSet const& set, ParameterGrid& grid) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            WriteCell(grid, parameter, cycle, set.Cycles[cycle].*RowOf(parameter).Field);
        }
    }
}

void WriteCell(ParameterGrid& grid, Parameter parameter, int cycle, double value) {
    grid.SetText(parameter, cycle, std::to_string(text::WholeNumber(value)));
}

double SumOfWeights(ParameterGrid const& grid) {
    double sum = 0;
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        sum += Number(grid, Parameter::Weight, cycle);
    }
    return text::RequireFinite(sum);
}

} // namespace quorvex::cycles
