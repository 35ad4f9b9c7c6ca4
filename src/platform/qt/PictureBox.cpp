// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/PictureBox.h"

#include "platform/basMessages.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtPictureEncoder.h"
#include "platform/pictures/QtTexts.h"

#include <QAccessibleWidget>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPaintEngine>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>

namespace quorvex::platform::qt {

namespace {

constexpr Colour CursorColour = 0x0066CC;

QAccessibleInterface* MakeAccessibleBox(QString const&, QObject* object) {
    auto* box = qobject_cast<PictureBox*>(object);
    return box == nullptr ? nullptr : new QAccessibleWidget(box, QAccessible::Chart);
}

// The ending that files of the filter have, without the point.
QString EndingOf(QString const& filter) {
    return filter.mid(filter.indexOf(u'.') + 1).remove(u')');
}

} // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(MakeAccessibleBox); // which it takes once only
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool PictureBox::ShowDrawing() {
    if (drawing_.ClearCount() == shownClearCount_) {
        return false;
    }
    shownClearCount_ = drawing_.ClearCount();
    Rasterise();
    update();
    return true;
}

void PictureBox::OfferSaving(Files& files, Dialogs& dialogs, QString const& suggestedName) {
    files_ = &files;
    dialogs_ = &dialogs;
    suggestedName_ = suggestedName;
}

void PictureBox::Rasterise() {
    double const ratio = devicePixelRatioF();
    QSize const pixels(static_cast<int>(std::ceil(width() * ratio)),
                       static_cast<int>(std::ceil(height() * ratio)));
    if (pixels.isEmpty()) {
        picture_ = QImage();
        return;
    }
    if (picture_.size() != pixels) {
        picture_ = QImage(pixels, QImage::Format_RGB32);
    }
    picture_.setDevicePixelRatio(1);
    QSizeF const drawn = QSizeF(drawing_.Width(), drawing_.Height()) * (ratio / pictures::TwipsPerPixel);
    if (drawn.width() < pixels.width() || drawn.height() < pixels.height()) {
        picture_.fill(Qt::white); // the drawing is white as far as it reaches
    }
    QPainter painter(&picture_);
    pictures::PaintDrawing(painter, drawing_, {ratio / pictures::TwipsPerPixel, pictures::Medium::Pixels});
    painter.end();
    picture_.setDevicePixelRatio(ratio);
}

bool PictureBox::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto const* help = static_cast<QHelpEvent*>(event);
        int const column = readings_ != nullptr && readings_->Columns() > 0
                               ? readings_->ColumnAt(help->pos().x() * pictures::TwipsPerPixel)
                               : 0;
        ShowReading(column, help->globalPos());
        return true;
    }
    return QWidget::event(event);
}

void PictureBox::paintEvent(QPaintEvent*) {
    if (!picture_.isNull() && picture_.devicePixelRatio() != devicePixelRatioF()) {
        Rasterise(); // the window was moved to a screen of another density
    }
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (painter.paintEngine()->type() == QPaintEngine::Raster) {
        painter.drawImage(QPoint(), picture_);
        PaintCursor(painter);
    } else {
        painter.setClipRect(rect());
        pictures::PaintDrawing(
            painter, drawing_,
            {1 / pictures::TwipsPerPixel, pictures::Medium::Vectors}); // a page has a resolution of its own
    }
    painter.setPen(
        QPen(hasFocus() ? pictures::ToQt(CursorColour) : pictures::ToQt(pictures::BorderColour), 1));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PictureBox::PaintCursor(QPainter& painter) const {
    if (cursor_ == 0 || !hasFocus() || readings_ == nullptr || cursor_ > readings_->Columns()) {
        return;
    }
    int const x = static_cast<int>(std::floor(readings_->PlaceOf(cursor_) / pictures::TwipsPerPixel));
    painter.setPen(QPen(pictures::ToQt(CursorColour), 1, Qt::DotLine));
    painter.drawLine(x, 0, x, height());
}

void PictureBox::ShowReading(int column, QPoint place) {
    QString const text = column > 0 ? pictures::ToQt(readings_->Describe(column)) : QString();
    if (text.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(place, Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text, this);
    }
}

void PictureBox::MoveCursor(int column) {
    cursor_ = std::clamp(column, 1, readings_->Columns());
    int const x = static_cast<int>(readings_->PlaceOf(cursor_) / pictures::TwipsPerPixel);
    ShowReading(cursor_, mapToGlobal(QPoint(x, height() / 2)));
    update();
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
    int const columns = readings_ == nullptr ? 0 : readings_->Columns();
    if (columns == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    constexpr int LargeStep = 10;
    switch (event->key()) {
    case Qt::Key_Left:
        MoveCursor(cursor_ == 0 ? columns : cursor_ - 1);
        break;
    case Qt::Key_Right:
        MoveCursor(cursor_ + 1);
        break;
    case Qt::Key_PageUp:
        MoveCursor(cursor_ == 0 ? columns : cursor_ - LargeStep);
        break;
    case Qt::Key_PageDown:
        MoveCursor(cursor_ + LargeStep);
        break;
    case Qt::Key_Home:
        MoveCursor(1);
        break;
    case Qt::Key_End:
        MoveCursor(columns);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureBox::focusOutEvent(QFocusEvent* event) {
    cursor_ = 0;
    QToolTip::hideText();
    QWidget::focusOutEvent(event);
}

void PictureBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuPicture"));
    QAction* copy = menu.addAction(QStringLiteral("&Copy Image"));
    copy->setObjectName(QStringLiteral("mnuPictureCopy"));
    connect(copy, &QAction::triggered, this, [this] { CopyImage(); });
    if (files_ != nullptr) {
        QAction* save = menu.addAction(QStringLiteral("Save Image &As..."));
        save->setObjectName(QStringLiteral("mnuPictureSaveAs"));
        connect(save, &QAction::triggered, this, [this] { SaveImageAs(); });
    }
    bool const byMouse = event->reason() == QContextMenuEvent::Mouse;
    menu.exec(byMouse ? event->globalPos() : mapToGlobal(rect().center()));
}

void PictureBox::CopyImage() const {
    QGuiApplication::clipboard()->setImage(picture_);
}

void PictureBox::SaveImageAs() {
    QFileDialog dialog(this, QStringLiteral("Save Image As"));
    dialog.setObjectName(QStringLiteral("SavePicture"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QStringLiteral("PNG image (*.png)"), QStringLiteral("SVG drawing (*.svg)"),
                           QStringLiteral("PDF document (*.pdf)")});
    // The dialog itself completes the name, so that it asks before an existing file is replaced.
    auto const complete = [&dialog](QString const& filter) { dialog.setDefaultSuffix(EndingOf(filter)); };
    complete(dialog.selectedNameFilter());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, complete);
    dialog.selectFile(suggestedName_);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    std::string const path = pictures::FromQt(dialog.selectedFiles().constFirst());
    auto const kindOfFilter = PictureKindOf(pictures::FromQt(u'.' + dialog.defaultSuffix()));
    PictureKind const kind = PictureKindOf(path).value_or(kindOfFilter.value_or(PictureKind::Png));
    std::array<PlacedDrawing, 1> const drawings = {{{0, 0, &drawing_}}};
    pictures::QtPictureEncoder encoder;
    RunReported(*dialogs_, [&] {
        files_->Overwrite(path, encoder.Encode({drawing_.Width(), drawing_.Height(), drawings}, kind));
    });
}

} // namespace quorvex::platform::qt
