// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/ui/RoleBoxes.h"

#include "platform/pictures/QtTexts.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

namespace quorvex::imports::ui {

namespace {

using platform::pictures::ToQt;

constexpr int Gap = 2;
constexpr int WidestColumn = 200;
constexpr int RowsLookedAt = 50;

int ChoiceOf(Role role) {
    return static_cast<int>(std::ranges::find(RoleChoices, role) - RoleChoices.begin());
}

} // namespace

RoleBoxes::RoleBoxes(QWidget* parent) : QWidget(parent), strip_(new QWidget(this)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void RoleBoxes::Follow(QTableView& table) {
    table_ = &table;
    QHeaderView& header = *table.horizontalHeader();
    header.setResizeContentsPrecision(RowsLookedAt);
    table.viewport()->installEventFilter(this);
    connect(&header, &QHeaderView::sectionResized, this, [this] { PlaceBoxes(); });
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { PlaceBoxes(); });
}

void RoleBoxes::AddBox() {
    int const column = static_cast<int>(boxes_.size());
    auto* box = new QComboBox(strip_);
    box->setObjectName(QStringLiteral("cboRole_%1").arg(column + 1));
    for (Role const role : RoleChoices) {
        box->addItem(ToQt(NameOf(role)));
    }
    box->setFocusPolicy(Qt::StrongFocus);
    box->installEventFilter(this);
    connect(box, &QComboBox::activated, this,
            [this, column](int choice) { Q_EMIT RoleChosen(column, choice); });
    boxes_.push_back(box);
}

void RoleBoxes::ShowRoles(TablePreview const& preview) {
    int const count = preview.columnCount();
    while (static_cast<int>(boxes_.size()) < count) {
        AddBox();
    }
    for (int column = 0; column < static_cast<int>(boxes_.size()); ++column) {
        QComboBox& box = *boxes_.at(static_cast<std::size_t>(column));
        box.setVisible(column < count);
        if (column < count) {
            QString const head = preview.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            box.setCurrentIndex(ChoiceOf(preview.RoleOf(column)));
            box.setAccessibleName(QStringLiteral("Column %1").arg(head));
            // On some systems a box is named by its entry, unless a label stands in front of it.
            box.setAccessibleDescription(box.accessibleName());
        }
    }
    updateGeometry();
    PlaceBoxes();
}

void RoleBoxes::FitColumns() {
    table_->resizeColumnsToContents();
    int const least = boxes_.empty() ? 0 : boxes_.front()->sizeHint().width() + Gap;
    for (int column = 0; column < table_->model()->columnCount(); ++column) {
        table_->setColumnWidth(column, std::max(least, std::min(table_->columnWidth(column), WidestColumn)));
    }
}

QSize RoleBoxes::sizeHint() const {
    return {0, QComboBox().sizeHint().height()};
}

void RoleBoxes::PlaceBoxes() {
    QWidget const& viewport = *table_->viewport();
    strip_->setGeometry(viewport.mapTo(table_, QPoint()).x(), 0, viewport.width(), height());
    QHeaderView const& header = *table_->horizontalHeader();
    for (int column = 0; column < std::min(header.count(), static_cast<int>(boxes_.size())); ++column) {
        boxes_.at(static_cast<std::size_t>(column))
            ->setGeometry(header.sectionViewportPosition(column), 0, header.sectionSize(column) - Gap,
                          height());
    }
}

void RoleBoxes::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceBoxes();
}

bool RoleBoxes::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_->viewport() && (event->type() == QEvent::Resize || event->type() == QEvent::Move)) {
        PlaceBoxes();
        return false;
    }
    auto const found = std::ranges::find(boxes_, watched);
    if (found != boxes_.end() && event->type() == QEvent::FocusIn) {
        int const row = std::max(table_->rowAt(0), 0);
        table_->scrollTo(table_->model()->index(row, static_cast<int>(found - boxes_.begin())));
    }
    // A wheel that scrolls the table must not change what a column is.
    if (found != boxes_.end() && event->type() == QEvent::Wheel && !(*found)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quorvex::imports::ui
