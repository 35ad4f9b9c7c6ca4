// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The grid in which the user types the cycle model: texts, ten cycles by four parameters.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "platform/PendingMessages.h"

#include <array>
#include <string>
#include <string_view>

namespace quorvex::cycles {

// The rows of the grid, in the order of the control arrays Text1 to Text4.
enum class Parameter { Weight, Period, Shift, Decay };

inline constexpr std::array<Parameter, 4> Parameters = {Parameter::Weight, Parameter::Period,
                                                        Parameter::Shift, Parameter::Decay};

// What a parameter is called, in captions and tables.
[[nodiscard]] std::string_view ParameterName(Parameter parameter);

class ParameterGrid {
public:
    ParameterGrid() = default;
    ParameterGrid(ParameterGrid const&) = delete;
    ParameterGrid& operator=(ParameterGrid const&) = delete;
    virtual ~ParameterGrid() = default;

    // Cycles are 1..10.
    [[nodiscard]] virtual std::string Text(Parameter parameter, int cycle) const = 0;
    virtual void SetText(Parameter parameter, int cycle, std::string_view text) = 0;
};

// A grid without a window. All cells are empty at first.
class TextGrid final : public ParameterGrid {
public:
    [[nodiscard]] std::string Text(Parameter parameter, int cycle) const override;
    void SetText(Parameter parameter, int cycle, std::string_view text) override;

private:
    std::array<text::SlotArray<std::string, CycleCount>, Parameters.size()> cells_;
};

// Sets all forty cells to "0".
void ClearGrid(ParameterGrid& grid);

// Takes what was typed into the set: weights outside 0..100 become "0", the others are scaled to percent of
// their sum, all parameters become whole numbers, and the cells show them. Returns whether the set was taken
// from the grid: not when all weights are zero, which leaves the set alone, and not after a fault, which ends
// it quietly and may leave it half done. Weights that are read twice may be scaled twice: docs/behaviour.md.
bool ReadGrid(ParameterGrid& grid, CycleParameterSet& set, platform::PendingMessages& pending);

// Shows the set, rounded to whole numbers. Raises "Overflow" for a parameter outside -32768..32767.
void WriteGrid(CycleParameterSet const& set, ParameterGrid& grid);

// Shows one parameter rounded to a whole number. Raises "Overflow" as above.
void WriteCell(ParameterGrid& grid, Parameter parameter, int cycle, double value);

// The sum of the weights in the grid, each read by the leading-number rule.
[[nodiscard]] double SumOfWeights(ParameterGrid const& grid);

} // namespace quorvex::cycles
