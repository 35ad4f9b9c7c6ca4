// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/SpreadGrid.h"

#include "editor/basBlocks.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/QtDialogs.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>
#include <cmath>
#include <memory>

namespace quorvex::editor::ui {

namespace {

using platform::pictures::TwipsPerPixel;

// Marks cells that a grid like this one has copied: those go in as they stand, whatever they look like.
QString OwnFormat() {
    return QStringLiteral("application/x-quorvex-cells");
}

int PixelsOf(double twips) {
    return std::max(0, static_cast<int>(std::lround(twips / TwipsPerPixel)));
}

} // namespace

SpreadGrid::SpreadGrid(QWidget& client) : QTableView(&client) {
    constexpr int RowMargin = 6;
    setObjectName(QStringLiteral("Spread"));
    setAccessibleName(QStringLiteral("Daily quotes"));
    setModel(&model_);
    setItemDelegate(&delegate_);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    setWordWrap(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowMargin);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    connect(&delegate_, &CellDelegate::MoveWanted, this, &SpreadGrid::MoveDown);
    connect(&model_, &SpreadModel::Typed, this, &SpreadGrid::Edited);
}

void SpreadGrid::FinishTyping() {
    QWidget* const cellEditor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (cellEditor != nullptr) {
        delegate_.Finish(*cellEditor);
    }
}

std::int16_t SpreadGrid::ActiveRow() const {
    return static_cast<std::int16_t>(currentIndex().row() + 1);
}

void SpreadGrid::GotoCell(std::int16_t row, std::int16_t column) {
    static_cast<void>(sheet_.CellAt(row, column)); // which must be there
    model_.ShowRows();
    setCurrentIndex(model_.index(row - 1, column - 1));
}

void SpreadGrid::SetColumnWidth(std::int16_t column, double width) {
    setColumnWidth(column - 1, PixelsOf(width));
}

void SpreadGrid::SetVisible(bool isVisible) {
    // A widget that is hidden would lose the focus.
    setUpdatesEnabled(isVisible);
    if (isVisible) {
        model_.ShowSheet();
    }
}

double SpreadGrid::Width() const {
    return width() * TwipsPerPixel;
}

void SpreadGrid::SetSize(double width, double height) {
    resize(std::min(PixelsOf(width), parentWidget()->width() - x()),
           std::min(PixelsOf(height), parentWidget()->height() - y()));
}

std::optional<Block> SpreadGrid::SelectedBlock() const {
    QItemSelection const selection = selectionModel()->selection();
    if (!selection.isEmpty()) {
        // Only one range can be selected at a time.
        QItemSelectionRange const& range = selection.first();
        auto const number = [](int section) { return static_cast<std::int16_t>(section + 1); };
        return Block{number(range.top()), number(range.left()), number(range.bottom()),
                     number(range.right())};
    }
    if (QModelIndex const cursor = currentIndex(); cursor.isValid()) {
        auto const row = static_cast<std::int16_t>(cursor.row() + 1);
        auto const column = static_cast<std::int16_t>(cursor.column() + 1);
        return Block{row, column, row, column};
    }
    return std::nullopt;
}

void SpreadGrid::keyPressEvent(QKeyEvent* event) {
    platform::qt::RunGuarded(*this, [&] {
        if (int const rows = RowsToMove(*event); rows != 0) {
            MoveDown(rows);
        } else if (!AskWindow(*event) && !WorkOnBlock(*event)) {
            QTableView::keyPressEvent(event);
        }
    });
}

bool SpreadGrid::AskWindow(QKeyEvent const& event) {
    auto const wanted = HistoryKeyOf(event);
    if (wanted == HistoryKey::Undo) {
        Q_EMIT UndoWanted();
    } else if (wanted == HistoryKey::Redo) {
        Q_EMIT RedoWanted();
    } else if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier) {
        Q_EMIT MenuWanted(CursorPlace());
    } else {
        return false;
    }
    return true;
}

bool SpreadGrid::WorkOnBlock(QKeyEvent const& event) {
    if (event.matches(QKeySequence::Copy)) {
        Copy();
    } else if (event.matches(QKeySequence::Cut)) {
        Cut();
    } else if (event.matches(QKeySequence::Paste)) {
        Paste();
    } else if (event.key() == Qt::Key_Delete && event.modifiers() == Qt::NoModifier) {
        Clear();
    } else {
        return false;
    }
    return true;
}

void SpreadGrid::contextMenuEvent(QContextMenuEvent* event) {
    bool const byMouse = event->reason() == QContextMenuEvent::Mouse;
    Q_EMIT MenuWanted(byMouse ? event->globalPos() : CursorPlace());
}

QPoint SpreadGrid::CursorPlace() const {
    QRect const cell = visualRect(currentIndex()).intersected(viewport()->rect());
    return viewport()->mapToGlobal(cell.isEmpty() ? viewport()->rect().center() : cell.center());
}

void SpreadGrid::Cut() {
    Copy();
    Clear();
}

void SpreadGrid::Copy() {
    if (auto const block = SelectedBlock()) {
        QString const text = platform::pictures::ToQt(BlockText(sheet_, *block));
        auto cells = std::make_unique<QMimeData>();
        cells->setText(text);
        cells->setData(OwnFormat(), text.toUtf8());
        QGuiApplication::clipboard()->setMimeData(cells.release()); // which takes it over
    }
}

void SpreadGrid::Clear() {
    if (auto const block = SelectedBlock()) {
        ClearBlock(sheet_, *block);
        model_.ShowSheet();
        Q_EMIT Edited();
    }
}

void SpreadGrid::Paste() {
    auto const block = SelectedBlock();
    QMimeData const* const copied = QGuiApplication::clipboard()->mimeData();
    if (copied == nullptr) {
        return;
    }
    bool const isOwn = copied->hasFormat(OwnFormat());
    QString const text = isOwn ? QString::fromUtf8(copied->data(OwnFormat())) : copied->text();
    auto const behindLast = static_cast<std::int16_t>(sheet_.RowCount() + 1);
    bool const isTable = !isOwn && pasteTable_ &&
                         pasteTable_(block ? block->Row : behindLast, platform::pictures::FromQt(text));
    if (!isTable && block) {
        PasteCells(*block, text);
        if (!isOwn) {
            Q_EMIT OthersPasted(text);
        }
    }
}

void SpreadGrid::PasteCells(Block const& block, QString const& text) {
    bool const hasAll = PasteText(sheet_, block, platform::pictures::FromQt(text));
    model_.ShowSheet();
    Q_EMIT Edited();
    if (!hasAll) {
        Q_EMIT CellsLeftOut();
    }
}

void SpreadGrid::MoveDown(int rows) {
    int const target = currentIndex().row() + rows;
    if (currentIndex().isValid() && target >= 0 && target < model_.rowCount()) {
        setCurrentIndex(model_.index(target, currentIndex().column()));
    }
}

} // namespace quorvex::editor::ui
