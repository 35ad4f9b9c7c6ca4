// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/ui/RichTextPictures.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTextImageFormat>

namespace quorvex::auxiliary::ui {

namespace {

QImage ImageOf(QTextDocument const& document, QTextImageFormat const& format) {
    return document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
}

} // namespace

void RichTextPictures::PaintThoseOf(QTextDocument& document) {
    document.documentLayout()->registerHandler(QTextFormat::ImageObject, new RichTextPictures(&document));
}

QSizeF RichTextPictures::intrinsicSize(QTextDocument* document, int, QTextFormat const& format) {
    QTextImageFormat const picture = format.toImageFormat();
    bool const hasSize = picture.width() > 0 && picture.height() > 0;
    QSizeF const size =
        hasSize ? QSizeF(picture.width(), picture.height()) : QSizeF(ImageOf(*document, picture).size());
    QPaintDevice const* device = document->documentLayout()->paintDevice();
    QScreen const* screen = QGuiApplication::primaryScreen(); // a remote one may have gone
    if (device == nullptr || screen == nullptr) {
        return size;
    }
    return size * device->logicalDpiY() / screen->logicalDotsPerInchY();
}

void RichTextPictures::drawObject(QPainter* painter, QRectF const& place, QTextDocument* document, int,
                                  QTextFormat const& format) {
    QImage const image = ImageOf(*document, format.toImageFormat());
    QSizeF const dots = place.size() * painter->device()->devicePixelRatio();
    painter->drawImage(place, image.scaled(dots.toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace quorvex::auxiliary::ui
