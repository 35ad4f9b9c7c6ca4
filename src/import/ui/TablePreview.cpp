// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/TablePreview.h"

#include "platform/pictures/QtTexts.h"

#include <QApplication>
#include <QFont>
#include <algorithm>
#include <utility>

namespace quorvex::imports::ui {

namespace {

using platform::pictures::ToQt;

constexpr qsizetype MostShown = 200; // characters of a cell

// The colours of the roles at full strength.
QColor HueOf(Role role) {
    switch (role) {
    case Role::Unused:
        break;
    case Role::Date:
        return {0x80, 0x60, 0xFF};
    case Role::Time:
        return {0x80, 0x80, 0xA0};
    case Role::Open:
        return {0x00, 0x80, 0xFF};
    case Role::High:
        return {0x00, 0xB0, 0x60};
    case Role::Low:
        return {0xFF, 0x60, 0x30};
    case Role::Close:
        return {0xE0, 0xA0, 0x00};
    case Role::Volume:
        return {0x00, 0xA8, 0xB8};
    case Role::OpenInterest:
        return {0xD0, 0x50, 0xC0};
    case Role::Symbol:
        return {0x90, 0x90, 0x60};
    }
    return {};
}

bool IsNumberRole(Role role) {
    return std::ranges::find(FigureRoles, role) != FigureRoles.end();
}

QString ShownCell(std::string const& cell) {
    QString const text = ToQt(cell).simplified();
    return text.size() > MostShown ? text.first(MostShown) + u'\u2026' : text;
}

} // namespace

QColor RoleColour(Role role, QPalette const& palette) {
    QColor const base = palette.color(QPalette::Base);
    QColor const hue = HueOf(role);
    if (!hue.isValid()) {
        return base;
    }
    constexpr int Share = 22; // of 100
    auto const mix = [](int under, int over) { return (under * (100 - Share) + over * Share) / 100; };
    return {mix(base.red(), hue.red()), mix(base.green(), hue.green()), mix(base.blue(), hue.blue())};
}

void TablePreview::Show(std::shared_ptr<TableLook const> look) {
    beginResetModel();
    look_ = std::move(look);
    leftOut_.clear();
    headLines_.clear();
    columns_ = 0;
    if (look_) {
        headLines_.insert(look_->Made.HeadLines.begin(), look_->Made.HeadLines.end());
        std::size_t width = look_->Made.Columns.size();
        for (SampleRow const& row : look_->First.Rows) {
            width = std::max(width, row.Cells.size());
        }
        columns_ = static_cast<int>(width);
    }
    endResetModel();
}

void TablePreview::ShowFindings(Conversion const& conversion) {
    leftOut_.clear();
    for (Finding const& finding : conversion.LeftOut.Kept) {
        leftOut_.emplace(finding.Line, ToQt(finding.Text));
    }
    if (rowCount() > 0 && columnCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::FontRole, Qt::ToolTipRole, Qt::AccessibleDescriptionRole});
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
}

Role TablePreview::RoleOf(int column) const {
    auto const place = static_cast<std::size_t>(column);
    return look_ && place < look_->Made.Columns.size() ? look_->Made.Columns[place].Is : Role::Unused;
}

int TablePreview::rowCount(QModelIndex const& parent) const {
    return !look_ || parent.isValid() ? 0 : static_cast<int>(look_->First.Rows.size());
}

int TablePreview::columnCount(QModelIndex const& parent) const {
    return !look_ || parent.isValid() ? 0 : std::min(columns_, MostShownColumns);
}

SampleRow const& TablePreview::RowAt(int row) const {
    return look_->First.Rows.at(static_cast<std::size_t>(row));
}

QVariant TablePreview::data(QModelIndex const& index, int role) const {
    SampleRow const& row = RowAt(index.row());
    auto const column = static_cast<std::size_t>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return column < row.Cells.size() ? ShownCell(row.Cells[column]) : QString();
    case Qt::BackgroundRole:
        return RoleColour(RoleOf(index.column()), QApplication::palette());
    case Qt::FontRole: {
        QFont font = QApplication::font();
        font.setBold(headLines_.contains(row.Line));
        font.setStrikeOut(leftOut_.contains(row.Line));
        return font;
    }
    case Qt::ToolTipRole:
        return WhyLeftOut(row);
    case Qt::AccessibleDescriptionRole:
        return DescribeRow(row);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue((IsNumberRole(RoleOf(index.column())) ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TablePreview::WhyLeftOut(SampleRow const& row) const {
    auto const found = leftOut_.find(row.Line);
    return found == leftOut_.end() ? QVariant() : found->second;
}

// What the look of the row tells.
QVariant TablePreview::DescribeRow(SampleRow const& row) const {
    if (headLines_.contains(row.Line)) {
        return QStringLiteral("heading");
    }
    QVariant const why = WhyLeftOut(row);
    return why.isNull() ? why : QStringLiteral("left out: ") + why.toString();
}

QVariant TablePreview::LineHeader(SampleRow const& row, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return QString::number(row.Line);
    case Qt::ToolTipRole:
        return WhyLeftOut(row);
    case Qt::AccessibleDescriptionRole:
        return DescribeRow(row);
    default:
        return {};
    }
}

QVariant TablePreview::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return LineHeader(RowAt(section), role);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    auto const column = static_cast<std::size_t>(section);
    QString const number = QString::number(section + 1);
    if (column >= look_->Made.Columns.size() || look_->Made.Columns[column].Heading.empty()) {
        return number;
    }
    return number + QStringLiteral("  ") + ShownCell(look_->Made.Columns[column].Heading);
}

} // namespace quorvex::imports::ui
