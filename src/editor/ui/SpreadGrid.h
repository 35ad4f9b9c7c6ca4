// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editor/Sheet.h"
#include "editor/Spread.h"
#include "editor/ui/CellDelegate.h"
#include "editor/ui/SpreadModel.h"

#include <QTableView>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace quorvex::editor::ui {

// The grid of the quote editor on the screen, worked as in a spreadsheet program: typing replaces a cell, F2
// edits it, Enter, Tab and the arrows move, Delete empties, and blocks go to and from other programs as
// tab-separated text. What undoes steps, and the context menu, is up to the window.
class SpreadGrid final : public QTableView, public Spread {
    Q_OBJECT

public:
    // It never grows beyond the client area that it stands in.
    explicit SpreadGrid(QWidget& client);

    // Takes over what is being typed into a cell.
    void FinishTyping();

    // What it shows.
    [[nodiscard]] Sheet& Cells() { return sheet_; }

    [[nodiscard]] std::int16_t ActiveRow() const override;
    void GotoCell(std::int16_t row, std::int16_t column) override;
    void SetColumnWidth(std::int16_t column, double width) override;
    void SetVisible(bool isVisible) override;
    [[nodiscard]] double Width() const override;
    void SetSize(double width, double height) override;

    // Work on the cells that are selected. Without a cursor they do nothing; but a table can be pasted into a
    // grid without rows.
    void Cut();
    void Copy();
    void Paste();
    void Clear();

    // Lets this have a text of another program that is to be pasted, together with the row to paste it into,
    // first. It returns whether it has done so, or told why not.
    using TablePaste = std::function<bool(std::int16_t row, std::string const& text)>;

    void OfferTables(TablePaste paste) { pasteTable_ = std::move(paste); }

Q_SIGNALS:
    void UndoWanted();
    void RedoWanted();

    // The context menu, at this place of the screen.
    void MenuWanted(QPoint place);

    // The user changed the text of a cell.
    void Edited();

    // Cells that another program has copied were pasted as they stand.
    void OthersPasted(QString const& text);

    // A block was pasted that reaches beyond the last row or column.
    void CellsLeftOut();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // The cells that are selected, or else the one with the cursor; nothing without a cursor.
    [[nodiscard]] std::optional<Block> SelectedBlock() const;

    // Whether the key was one for the window.
    bool AskWindow(QKeyEvent const& event);

    // Whether the key was one that works on the selected cells.
    bool WorkOnBlock(QKeyEvent const& event);
    [[nodiscard]] QPoint CursorPlace() const; // on the screen
    void PasteCells(Block const& block, QString const& text);
    void MoveDown(int rows);

    Sheet sheet_;
    SpreadModel model_{sheet_};
    CellDelegate delegate_;
    TablePaste pasteTable_;
};

} // namespace quorvex::editor::ui
