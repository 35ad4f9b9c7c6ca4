// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTextDocument>
#include <QTextObjectInterface>

namespace quorvex::auxiliary::ui {

// Paints the pictures of a document on the screen so that every pixel of theirs contributes. Qt would take
// the nearest ones only, and a chart that is shown smaller than it was drawn loses its lines.
class RichTextPictures final : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    // Takes the pictures of the document over; it belongs to the document.
    static void PaintThoseOf(QTextDocument& document);

    // The size in the dots of what the document is laid out for.
    QSizeF intrinsicSize(QTextDocument* document, int position, QTextFormat const& format) override;

    void drawObject(QPainter* painter, QRectF const& place, QTextDocument* document, int position,
                    QTextFormat const& format) override;

private:
    using QObject::QObject;
};

} // namespace quorvex::auxiliary::ui
