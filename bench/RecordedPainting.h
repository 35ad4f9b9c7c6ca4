// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QRect>
#include <QString>
#include <functional>
#include <variant>
#include <vector>

namespace quorvex::bench {

// One call of a painter, ready to be made again.
struct SetAntialiasing {
    bool IsOn = false;
};

struct DrawLine {
    QLineF Line;
};

struct DrawPolyline {
    QPolygonF Points;
};

struct DrawOutline {
    QRectF Where;
};

template <class Rectangle>
struct FillRectangle {
    Rectangle Where;
    QColor Colour;
};

struct DrawText {
    QPointF Where;
    QString Text;
};

using PaintCall = std::variant<QPen, QFont, SetAntialiasing, DrawLine, DrawPolyline, DrawOutline,
                               FillRectangle<QRect>, FillRectangle<QRectF>, DrawText>;

// The calls that the routine makes on a painter for a picture of this size, without changes of pen, font or
// hint that no call needs. Throws when it makes one of another kind.
[[nodiscard]] std::vector<PaintCall> RecordPainting(QSize size,
                                                    std::function<void(QPainter&)> const& routine);

// Makes the calls again, one after the other.
void RepeatPainting(QPainter& painter, std::vector<PaintCall> const& calls);

} // namespace quorvex::bench
