// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Spread.h"
#include "text/SlotArray.h"

#include <optional>
#include <vector>

namespace quorvex::editor {

struct Cell {
    std::string Text;
    CellKind Kind = CellKind::Text;
    std::optional<platform::Colour> BackColour; // nothing is the grid's own
};

// A grid of seven columns without a display.
class Sheet final : public Spread {
public:
    static constexpr std::int16_t Columns = 7;

    [[nodiscard]] std::int16_t RowCount() const override;
    void SetRowCount(std::int16_t count) override;

    [[nodiscard]] std::int16_t ColumnCount() const override { return Columns; }

    void SetRow(std::int16_t row) override { row_ = row; }

    void SetColumn(std::int16_t column) override { column_ = column; }

    [[nodiscard]] std::int16_t Column() const override { return column_; }

    [[nodiscard]] std::string Text() const override { return CellAt(row_, column_).Text; }

    void SetText(std::string_view text) override;

    [[nodiscard]] std::int16_t ActiveRow() const override { return cursor_.Row; }

    void MoveCursor(std::int16_t row, std::int16_t column) override;
    void SetCellKind(Block const& block, CellKind kind) override;
    void SetBackColour(Block const& block, platform::Colour colour) override;
    void SortByDate(Block const& block, std::int16_t keyColumn) override;
    void SetColumnWidth(std::int16_t column, double width) override;

    void SetVisible(bool isVisible) override { isVisible_ = isVisible; }

    [[nodiscard]] double Width() const override { return width_; }

    void SetWidth(double width) override { width_ = width; }

    void SetHeight(double height) override { height_ = height; }

    // What was set.
    [[nodiscard]] Cell const& CellAt(std::int16_t row, std::int16_t column) const;

    [[nodiscard]] std::int16_t ActiveColumn() const { return cursor_.Column; }

    [[nodiscard]] double ColumnWidth(std::int16_t column) const { return columnWidths_[column]; }

    [[nodiscard]] bool IsVisible() const { return isVisible_; }

    [[nodiscard]] double Height() const { return height_; }

private:
    struct Place {
        std::int16_t Row = 0; // 0 is nowhere
        std::int16_t Column = 0;
    };

    // Slot 0 is not used.
    using Row = text::SlotArray<Cell, Columns>;

    [[nodiscard]] Row const& RowAt(std::ptrdiff_t row) const;

    template <class Change>
    void ChangeCells(Block const& block, Change const& change);

    std::vector<Row> rows_{1}; // the head row first
    std::int16_t row_ = 0;
    std::int16_t column_ = 1;
    Place cursor_;
    text::SlotArray<double, Columns> columnWidths_;
    double width_ = 0;
    double height_ = 0;
    bool isVisible_ = true;
};

} // namespace quorvex::editor
