// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Sheet.h"
#include "editor/Spread.h"
#include "text/SlotArray.h"

#include <algorithm>

namespace quorvex::editor {

// A grid without a display, which remembers what was set.
class PlainSpread final : public Spread {
public:
    // The sheet must outlive the grid.
    explicit PlainSpread(Sheet const& sheet) : sheet_(sheet) {}

    // The cursor stays inside the rows.
    [[nodiscard]] std::int16_t ActiveRow() const override { return std::min(row_, sheet_.RowCount()); }

    void GotoCell(std::int16_t row, std::int16_t column) override {
        static_cast<void>(sheet_.CellAt(row, column)); // which must be there
        row_ = row;
        column_ = column;
    }

    void SetColumnWidth(std::int16_t column, double width) override { columnWidths_[column] = width; }

    void SetVisible(bool isVisible) override { isVisible_ = isVisible; }

    [[nodiscard]] double Width() const override { return width_; }

    void SetSize(double width, double height) override {
        width_ = width;
        height_ = height;
    }

    [[nodiscard]] std::int16_t ActiveColumn() const { return column_; }

    [[nodiscard]] double ColumnWidth(std::int16_t column) const { return columnWidths_[column]; }

    [[nodiscard]] bool IsVisible() const { return isVisible_; }

    [[nodiscard]] double Height() const { return height_; }

private:
    Sheet const& sheet_;
    std::int16_t row_ = 0; // 0 is nowhere
    std::int16_t column_ = 0;
    text::SlotArray<double, Sheet::Columns> columnWidths_;
    double width_ = 0;
    double height_ = 0;
    bool isVisible_ = true;
};

} // namespace quorvex::editor
