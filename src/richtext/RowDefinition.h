// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The rows of tables as the words in front of \row define them.
#pragma once

#include "richtext/ColourTable.h"
#include "richtext/ControlWords.h"
#include "richtext/RichText.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace quorvex::richtext {

// The most cells that a row has. What is written into further ones goes to the last.
constexpr std::size_t MostCells = 64;

class RowDefinition {
public:
    // Takes a word of the definition; any other word changes nothing.
    void TakeWord(ControlWord const& word, std::optional<int> number, ColourTable const& colours);

    // Gives the cells of the row, which have their blocks, edges and looks. Cells that are merged with their
    // left neighbour become part of it; cells beyond the definition are an inch wide.
    void Apply(TableRow& row) const;

private:
    struct Cell {
        int Right = 0;
        bool IsMergedLeft = false;
        TableCell Look;
    };

    void TakeBorderWord(ControlWord const& word, std::optional<int> number, ColourTable const& colours);
    void EndCell(int right);

    int left_ = 0;
    bool isHeader_ = false;
    std::vector<Cell> cells_;
    Cell next_;
    std::optional<CellSide> side_; // whose border the next words describe
};

} // namespace quorvex::richtext
