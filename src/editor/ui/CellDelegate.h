// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

class QKeyEvent;

namespace quorvex::editor::ui {

// Edits a cell in a line edit that says which cell it is. Enter takes the text over and asks for the cell
// below, with Shift for the one above. What is undone and redone meanwhile is the typing. While a menu is
// open the editor waits: a command of the menu takes its text over, and a menu that is left without one gives
// the focus back to it.
class CellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;

    // Takes over what stands in the editor, and closes it.
    void Finish(QWidget& cellEditor);

Q_SIGNALS:
    void MoveWanted(int rows);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

// How many rows the key wants to move, 0 when it is another key.
[[nodiscard]] int RowsToMove(QKeyEvent const& event);

enum class HistoryKey : quint8 { None, Undo, Redo };

// Ctrl+Z; and Ctrl+Y, or Ctrl+Shift+Z, on every system.
[[nodiscard]] HistoryKey HistoryKeyOf(QKeyEvent const& event);

} // namespace quorvex::editor::ui
