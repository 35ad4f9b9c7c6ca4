// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/GridPanel.h"

#include "app/ui/Tables.h"
#include "app/ui/basPlacing.h"
#include "platform/pictures/QtTexts.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <cstddef>

namespace quorvex::app::ui {

namespace {

using platform::pictures::FromQt;
using platform::pictures::ToQt;

// Row 0 holds the headers.
constexpr std::size_t RowOf(cycles::Parameter parameter) {
    return static_cast<std::size_t>(parameter) + 1;
}

QString CellName(std::size_t row, int cycle) {
    return QStringLiteral("Text%1_%2").arg(row).arg(cycle);
}

// Cells have no frame of their own: the lines between them are what is left free of Frame1.
QLineEdit* MakeCell(QWidget& client, QString const& name) {
    auto* cell = new QLineEdit(&client);
    cell->setObjectName(name);
    cell->setFrame(false);
    cell->setAlignment(Qt::AlignCenter);
    return cell;
}

QLineEdit* MakeCaption(QWidget& client, QString const& name, QString const& text) {
    QLineEdit* cell = MakeCell(client, name);
    cell->setText(text);
    cell->setReadOnly(true);
    cell->setFocusPolicy(Qt::NoFocus);
    cell->setAccessibleName(text);
    QPalette palette = cell->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    palette.setColor(QPalette::Text, palette.color(QPalette::ButtonText));
    cell->setPalette(palette);
    return cell;
}

QWidget* MakeFiller(QWidget& client) {
    auto* filler = new QWidget(&client);
    filler->setAutoFillBackground(true);
    return filler;
}

// A table that is pasted or dropped on a cell: no cell can hold it.
bool IsForWindow(QEvent& event) {
    if (event.type() == QEvent::ShortcutOverride) {
        return static_cast<QKeyEvent&>(event).matches(QKeySequence::Paste) &&
               HoldsTables(QApplication::clipboard()->mimeData());
    }
    return event.type() == QEvent::DragEnter && HoldsTables(static_cast<QDragEnterEvent&>(event).mimeData());
}

QRect WithoutLines(QRect const& cell) {
    return cell.adjusted(1, 1, 0, 0);
}

} // namespace

GridPanel::GridPanel(QWidget& client)
    : frame1_(new QFrame(&client)),
      corner_(MakeFiller(client)),
      rest_(MakeFiller(client)),
      shape1_(new QFrame(&client)) {
    frame1_->setObjectName(QStringLiteral("Frame1"));
    frame1_->setAutoFillBackground(true);
    frame1_->setBackgroundRole(QPalette::Mid);
    for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
        rows_[0][cycle] = MakeCaption(client, CellName(0, cycle), QStringLiteral("Cycle %1").arg(cycle));
    }
    for (cycles::Parameter const parameter : cycles::Parameters) {
        std::size_t const row = RowOf(parameter);
        QString const caption = ToQt(cycles::ParameterName(parameter));
        rows_.at(row)[0] = MakeCaption(client, CellName(row, 0), caption);
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            QLineEdit* cell = MakeCell(client, CellName(row, cycle));
            cell->setAccessibleName(QStringLiteral("Cycle %1 %2").arg(cycle).arg(caption));
            cell->installEventFilter(this);
            rows_.at(row)[cycle] = cell;
        }
    }
    shape1_->setObjectName(QStringLiteral("Shape1"));
    shape1_->setFrameStyle(QFrame::Box | QFrame::Plain);
    shape1_->setForegroundRole(QPalette::Dark);
    shape1_->setAttribute(Qt::WA_TransparentForMouseEvents);
    shape1_->raise();
}

void GridPanel::Place(layout::GridLayout const& layout) {
    frame1_->setGeometry(PixelsOf(layout.Frame1));
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            rows_.at(row)[cycle]->setGeometry(WithoutLines(PixelsOf(layout.Cells.at(row)[cycle])));
        }
        // The captions fill what the first cycle leaves free.
        layout::Rectangle const& first = layout.Cells.at(row)[1];
        QWidget* caption = row == 0 ? corner_ : rows_.at(row)[0];
        caption->setGeometry(WithoutLines(
            PixelsOf({layout.Frame1.Left, first.Top, first.Left - layout.Frame1.Left, first.Height})));
    }
    layout::Rectangle const& last = layout.Cells[0][cycles::CycleCount];
    double const lastRight = last.Left + last.Width;
    rest_->setGeometry(
        WithoutLines(PixelsOf({lastRight, layout.Frame1.Top,
                               layout.Frame1.Left + layout.Frame1.Width - lastRight, layout.Frame1.Height})));
    shape1_->setGeometry(PixelsOf(layout.Shape1));
}

QLineEdit& GridPanel::CellOf(cycles::Parameter parameter, int cycle) const {
    return *rows_.at(RowOf(parameter))[cycle];
}

std::string GridPanel::Text(cycles::Parameter parameter, int cycle) const {
    return FromQt(CellOf(parameter, cycle).text());
}

void GridPanel::SetText(cycles::Parameter parameter, int cycle, std::string_view text) {
    QLineEdit& cell = CellOf(parameter, cycle);
    // Setting a text anew would take the cursor and the selection away from somebody who is typing.
    if (QString const shown = ToQt(text); cell.text() != shown) {
        cell.setText(shown);
    }
}

bool GridPanel::eventFilter(QObject* watched, QEvent* event) {
    if (IsForWindow(*event)) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
            return MoveFocus(*watched, -1);
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return MoveFocus(*watched, 1);
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

bool GridPanel::MoveFocus(QObject const& from, int rows) {
    constexpr int FirstRow = 1;
    for (int row = FirstRow; row < layout::GridRows; ++row) {
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            int const target = row + rows;
            if (rows_.at(static_cast<std::size_t>(row))[cycle] == &from && target >= FirstRow &&
                target < layout::GridRows) {
                QLineEdit* cell = rows_.at(static_cast<std::size_t>(target))[cycle];
                cell->setFocus(Qt::TabFocusReason); // selects the text, as Tab does
                return true;
            }
        }
    }
    return true;
}

} // namespace quorvex::app::ui
