// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/PictureBox.h"

#include "platform/basMessages.h"
#include "platform/pictures/Painting.h"
#include "platform/pictures/QtPictureEncoder.h"
#include "platform/pictures/QtTexts.h"
#include "platform/qt/FileDialogs.h"

#include <QAccessibleWidget>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
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
    if (std::ceil(drawn.width()) < pixels.width() || std::ceil(drawn.height()) < pixels.height()) {
        picture_.fill(Qt::white); // the drawing is white as far as it reaches
    }
    pictures::PaintPicture(picture_, drawing_, ratio / pictures::TwipsPerPixel);
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
    if (painter.paintEngine()->type() == QPaintEngine::Raster) {
        PaintPixels(painter);
        PaintCursor(painter);
    } else {
        painter.fillRect(rect(), Qt::white);
        painter.setClipRect(rect());
        pictures::PaintDrawing(
            painter, drawing_,
            {1 / pictures::TwipsPerPixel, pictures::Medium::Vectors}); // a page has a resolution of its own
        PaintBorder(painter, rect());
    }
}

// Where the screen's scale is no whole number, the edges of the box lie between pixels in units of the
// window.
void PictureBox::PaintPixels(QPainter& painter) const {
    QTransform const toPixels = painter.deviceTransform();
    QRectF const edges = toPixels.mapRect(QRectF(rect()));
    QRect const box(QPoint(qRound(edges.left()), qRound(edges.top())),
                    QPoint(qRound(edges.right()) - 1, qRound(edges.bottom()) - 1));
    painter.setWorldTransform(toPixels.inverted());
    double const scale = toPixels.m11() / picture_.devicePixelRatio(); // 1 on the screen
    QRectF const covered(box.topLeft(), QSizeF(picture_.size()) * scale);
    if (!covered.contains(QRectF(box))) {
        painter.fillRect(box, Qt::white);
    }
    if (!picture_.isNull()) {
        painter.drawImage(covered, picture_);
    }
    PaintBorder(painter, box);
    painter.resetTransform();
}

void PictureBox::PaintBorder(QPainter& painter, QRect const& box) const {
    painter.setPen(
        QPen(hasFocus() ? pictures::ToQt(CursorColour) : pictures::ToQt(pictures::BorderColour), 1));
    painter.drawRect(box.adjusted(0, 0, -1, -1));
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
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        ShowMenu(mapToGlobal(rect().center()));
        return;
    }
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
    bool const byMouse = event->reason() == QContextMenuEvent::Mouse;
    ShowMenu(byMouse ? event->globalPos() : mapToGlobal(rect().center()));
}

void PictureBox::ShowMenu(QPoint place) {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuPicture"));
    AddCommands(menu);
    AddOwnCommands(menu);
    menu.exec(place);
}

void PictureBox::AddCommands(QMenu& menu) {
    for (PictureCommand const& command : commands_) {
        QAction* item = menu.addAction(command.Caption);
        item->setObjectName(command.Name);
        connect(item, &QAction::triggered, this, command.Run);
    }
    if (!commands_.empty()) {
        menu.addSeparator();
    }
}

void PictureBox::AddOwnCommands(QMenu& menu) {
    QAction* copy = menu.addAction(QStringLiteral("&Copy Image"));
    copy->setObjectName(QStringLiteral("mnuPictureCopy"));
    connect(copy, &QAction::triggered, this, [this] { CopyImage(); });
    if (files_ != nullptr) {
        QAction* save = menu.addAction(QStringLiteral("Save Image &As..."));
        save->setObjectName(QStringLiteral("mnuPictureSaveAs"));
        connect(save, &QAction::triggered, this, [this] { SaveImageAs(); });
    }
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
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // Qt's own question takes markup in a name as such
    CompleteByFilter(dialog, {});
    dialog.selectFile(suggestedName_);
    do {
        if (dialog.exec() != QDialog::Accepted) {
            return;
        }
    } while (!MayWrite(dialog.selectedFiles().constFirst()));
    std::string const path = pictures::FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
    auto const kindOfFilter = PictureKindOf(pictures::FromQt(u'.' + dialog.defaultSuffix()));
    PictureKind const kind = PictureKindOf(path).value_or(kindOfFilter.value_or(PictureKind::Png));
    std::array<PlacedDrawing, 1> const drawings = {{{0, 0, &drawing_}}};
    pictures::QtPictureEncoder encoder;
    RunReported(*dialogs_, [&] {
        files_->Overwrite(path, encoder.Encode({drawing_.Width(), drawing_.Height(), drawings}, kind));
    });
}

bool PictureBox::MayWrite(QString const& path) {
    QFileInfo const file(path);
    return !file.exists() || MayReplace(*dialogs_, pictures::FromQt(file.fileName()), "Save Image As");
}

} // namespace quorvex::platform::qt
