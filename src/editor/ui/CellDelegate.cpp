// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/CellDelegate.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace quorvex::editor::ui {

int RowsToMove(QKeyEvent const& event) {
    bool const isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isEnter) {
        return 0;
    }
    return event.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1;
}

HistoryKey HistoryKeyOf(QKeyEvent const& event) {
    if (event.matches(QKeySequence::Undo)) {
        return HistoryKey::Undo;
    }
    bool const isControlY = event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
    bool const isControlShiftZ =
        event.key() == Qt::Key_Z && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    return event.matches(QKeySequence::Redo) || isControlY || isControlShiftZ ? HistoryKey::Redo
                                                                              : HistoryKey::None;
}

QWidget* CellDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const&,
                                    QModelIndex const& index) const {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("CellEditor"));
    edit->setFrame(false);
    edit->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    edit->setAccessibleName(index.data(Qt::AccessibleDescriptionRole).toString());
    return edit;
}

void CellDelegate::Finish(QWidget& cellEditor) {
    Q_EMIT commitData(&cellEditor);
    Q_EMIT closeEditor(&cellEditor);
}

bool CellDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() == Qt::MenuBarFocusReason) {
        return false; // else a menu bar worked by keys could not give the focus back
    }
    auto* cellEditor = qobject_cast<QLineEdit*>(watched);
    if (cellEditor != nullptr && event->type() == QEvent::KeyPress) {
        auto const& key = *static_cast<QKeyEvent*>(event);
        if (int const rows = RowsToMove(key); rows != 0) {
            Finish(*cellEditor);
            Q_EMIT MoveWanted(rows);
            return true;
        }
        // What the line edit does not know of would go to the grid.
        if (auto const wanted = HistoryKeyOf(key); wanted != HistoryKey::None) {
            wanted == HistoryKey::Undo ? cellEditor->undo() : cellEditor->redo();
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

} // namespace quorvex::editor::ui
