// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"
#include "text/SlotArray.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::editor {

// What a cell holds; the text in it may be anything.
enum class CellKind { Text, Date, Number };

struct Cell {
    std::string Text;
    CellKind Kind = CellKind::Text;
    std::optional<platform::Colour> BackColour; // nothing is the grid's own
};

// The cells between two corners, both of them included.
struct Block {
    std::int16_t Row = 0;
    std::int16_t Column = 0;
    std::int16_t ToRow = 0;
    std::int16_t ToColumn = 0;
};

// The cells of the editor's grid. Rows and columns count from 1; row 0 is the head row. Addressing a cell
// that is not there raises "Subscript out of range".
class Sheet {
public:
    static constexpr std::int16_t Columns = 7;

    // The rows below the head row. New rows come to the end, empty; the last ones go.
    [[nodiscard]] std::int16_t RowCount() const;
    void SetRowCount(std::int16_t count);

    [[nodiscard]] Cell const& CellAt(std::int16_t row, std::int16_t column) const;

    [[nodiscard]] std::string const& Text(std::int16_t row, std::int16_t column) const {
        return CellAt(row, column).Text;
    }

    void SetText(std::int16_t row, std::int16_t column, std::string_view text);

    // Of every cell of the block.
    void SetCellKind(Block const& block, CellKind kind);
    void SetBackColour(Block const& block, platform::Colour colour);

    // Puts the rows of the block into the order of the dates in the key column, oldest first; texts that are
    // no dates come before all. Rows of one date keep their order. Colours stay where they are.
    void SortByDate(Block const& block, std::int16_t keyColumn);

private:
    // Slot 0 is not used.
    using Row = text::SlotArray<Cell, Columns>;

    [[nodiscard]] Row const& RowAt(std::ptrdiff_t row) const;

    template <class Change>
    void ChangeCells(Block const& block, Change const& change);

    std::vector<Row> rows_{1}; // the head row first
};

} // namespace quorvex::editor
