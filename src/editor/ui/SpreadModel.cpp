// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/SpreadModel.h"

#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"

namespace quorvex::editor::ui {

namespace {

using platform::pictures::ToQt;

// Views count rows and columns from 0, the sheet from 1.
std::int16_t SheetNumber(int section) {
    return static_cast<std::int16_t>(section + 1);
}

Qt::Alignment AlignmentOf(CellKind kind) {
    return kind == CellKind::Number ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

int SpreadModel::rowCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int SpreadModel::columnCount(QModelIndex const& parent) const {
    return parent.isValid() ? 0 : Sheet::Columns;
}

Cell const& SpreadModel::CellAt(QModelIndex const& index) const {
    return sheet_.CellAt(SheetNumber(index.row()), SheetNumber(index.column()));
}

QVariant SpreadModel::data(QModelIndex const& index, int role) const {
    // The cursor of an empty grid, and rows that are just going.
    if (!index.isValid() || index.row() >= sheet_.RowCount()) {
        return {};
    }
    Cell const& cell = CellAt(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return ToQt(cell.Text);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(AlignmentOf(cell.Kind));
    case Qt::BackgroundRole:
        return cell.BackColour ? QVariant(ToQt(*cell.BackColour)) : QVariant();
    case Qt::ForegroundRole:
        // A palette with light text would leave it unreadable on a cell's own colour.
        return cell.BackColour ? QVariant(QColor(Qt::black)) : QVariant();
    case Qt::AccessibleDescriptionRole:
        return QStringLiteral("%1, row %2")
            .arg(headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString())
            .arg(index.row() + 1);
    default:
        return {};
    }
}

QVariant SpreadModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < Sheet::Columns) {
        return ToQt(sheet_.CellAt(0, SheetNumber(section)).Text);
    }
    return QAbstractTableModel::headerData(section, orientation, role); // rows have their numbers
}

Qt::ItemFlags SpreadModel::flags(QModelIndex const& index) const {
    Qt::ItemFlags const flags = QAbstractTableModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsEditable : flags;
}

bool SpreadModel::setData(QModelIndex const& index, QVariant const& value, int role) {
    if (role != Qt::EditRole || !index.isValid()) {
        return false;
    }
    sheet_.SetText(SheetNumber(index.row()), SheetNumber(index.column()),
                   platform::pictures::FromQt(value.toString()));
    Q_EMIT dataChanged(index, index);
    Q_EMIT Typed();
    return true;
}

void SpreadModel::ShowRows() {
    int const count = sheet_.RowCount();
    if (count > rows_) {
        beginInsertRows({}, rows_, count - 1);
        rows_ = count;
        endInsertRows();
    } else if (count < rows_) {
        beginRemoveRows({}, count, rows_ - 1);
        rows_ = count;
        endRemoveRows();
    }
}

void SpreadModel::ShowSheet() {
    ShowRows();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

} // namespace quorvex::editor::ui
