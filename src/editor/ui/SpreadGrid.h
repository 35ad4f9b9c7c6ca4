// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Sheet.h"
#include "editor/ui/CellDelegate.h"
#include "editor/ui/SpreadModel.h"

#include <QTableView>

namespace quorvex::editor::ui {

// The grid of the quote editor on the screen, worked as in a spreadsheet program: typing replaces a cell, F2
// edits it, Enter, Tab and the arrows move, Delete empties, and blocks go to and from other programs as
// tab-separated text.
class SpreadGrid final : public QTableView, public Spread {
    Q_OBJECT

public:
    // It never grows beyond the client area that it stands in.
    explicit SpreadGrid(QWidget& client);

    // Takes over what is being typed into a cell.
    void FinishTyping();

    [[nodiscard]] std::int16_t RowCount() const override { return sheet_.RowCount(); }

    void SetRowCount(std::int16_t count) override { model_.SetRowCount(count); }

    [[nodiscard]] std::int16_t ColumnCount() const override { return sheet_.ColumnCount(); }

    void SetRow(std::int16_t row) override { sheet_.SetRow(row); }

    void SetColumn(std::int16_t column) override { sheet_.SetColumn(column); }

    [[nodiscard]] std::int16_t Column() const override { return sheet_.Column(); }

    [[nodiscard]] std::string Text() const override { return sheet_.Text(); }

    void SetText(std::string_view text) override;
    [[nodiscard]] std::int16_t ActiveRow() const override;
    void MoveCursor(std::int16_t row, std::int16_t column) override;
    void SetCellKind(Block const& block, CellKind kind) override;
    void SetBackColour(Block const& block, platform::Colour colour) override;
    void SortByDate(Block const& block, std::int16_t keyColumn) override;
    void SetColumnWidth(std::int16_t column, double width) override;
    void SetVisible(bool isVisible) override;
    [[nodiscard]] double Width() const override;
    void SetWidth(double width) override;
    void SetHeight(double height) override;

Q_SIGNALS:
    // A block was pasted that reaches beyond the last row or column.
    void CellsLeftOut();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // The cells that are selected, or else the one with the cursor; nothing without a cursor.
    [[nodiscard]] std::optional<Block> SelectedBlock() const;

    bool WorkOnBlock(QKeyEvent const& event);
    void Copy(Block const& block);
    void Clear(Block const& block);
    void Paste(Block const& block);
    void MoveDown(int rows);
    void TellChanged();

    Sheet sheet_;
    SpreadModel model_{sheet_};
    CellDelegate delegate_;
    bool isFilled_ = true; // false while it is being filled
};

} // namespace quorvex::editor::ui
