// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvex::editor {

// What a cell holds; the text in it may be anything.
enum class CellKind { Text, Date, Number };

// The cells between two corners, both of them included.
struct Block {
    std::int16_t Row = 0;
    std::int16_t Column = 0;
    std::int16_t ToRow = 0;
    std::int16_t ToColumn = 0;
};

// The grid that the quote editor works on. Rows and columns count from 1; row 0 is the head row. The current
// cell is the one that texts are read from and written to; it is not the active cell, which holds the cursor.
// Addressing a cell that is not there raises "Subscript out of range". Widths and heights are in twips.
class Spread {
public:
    Spread() = default;
    Spread(Spread const&) = delete;
    Spread& operator=(Spread const&) = delete;
    virtual ~Spread() = default;

    // The rows below the head row. New rows come to the end, empty; the last ones go.
    [[nodiscard]] virtual std::int16_t RowCount() const = 0;
    virtual void SetRowCount(std::int16_t count) = 0;
    [[nodiscard]] virtual std::int16_t ColumnCount() const = 0;

    // The current cell.
    virtual void SetRow(std::int16_t row) = 0;
    virtual void SetColumn(std::int16_t column) = 0;
    [[nodiscard]] virtual std::int16_t Column() const = 0;
    [[nodiscard]] virtual std::string Text() const = 0;
    virtual void SetText(std::string_view text) = 0;

    // The row that holds the cursor, 0 when none does.
    [[nodiscard]] virtual std::int16_t ActiveRow() const = 0;
    virtual void MoveCursor(std::int16_t row, std::int16_t column) = 0;

    // Of every cell of the block.
    virtual void SetCellKind(Block const& block, CellKind kind) = 0;
    virtual void SetBackColour(Block const& block, platform::Colour colour) = 0;

    // Puts the rows of the block into the order of the dates in the key column, oldest first; texts that are
    // no dates come before all. Rows of one date keep their order. Colours stay where they are.
    virtual void SortByDate(Block const& block, std::int16_t keyColumn) = 0;

    virtual void SetColumnWidth(std::int16_t column, double width) = 0;

    // While it is not visible it may be filled without the user seeing it.
    virtual void SetVisible(bool isVisible) = 0;
    [[nodiscard]] virtual double Width() const = 0;
    virtual void SetWidth(double width) = 0;
    virtual void SetHeight(double height) = 0;
};

} // namespace quorvex::editor
