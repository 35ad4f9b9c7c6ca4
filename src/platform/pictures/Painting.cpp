// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/Painting.h"

#include "platform/pictures/QtTexts.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace quorvex::platform::pictures {

namespace {

using Kind = DrawingOperation::Kind;

// Beyond any screen: what lies farther away is moved here, so that it still fits a whole number.
constexpr double FarAway = 1'000'000;

// The width of lines in a file, in twips: three quarters of a logical pixel.
constexpr double VectorLine = 0.75 * TwipsPerPixel;

// Of lines and borders on paper, in twips, and what the thinnest shape is widened to, which is fine enough
// for the bars of many days to stay apart.
constexpr double PaperLine = 8;
constexpr double ThinnestOnPaper = 5;

// What text at the very edge keeps clear of the border, in twips.
constexpr double TextMargin = 45;

double Limit(double value) {
    return std::clamp(value, -FarAway, FarAway);
}

int PixelOf(double value) {
    return static_cast<int>(std::floor(value));
}

// The first and the last of a row of pixels.
struct PixelSpan {
    int First = 0;
    int Last = 0;

    [[nodiscard]] int Length() const { return Last - First + 1; }
};

// The pixels from one coordinate to another. A short one keeps its centre, so that a wick stands in the
// middle of its candle.
PixelSpan SnapAcross(double from, double to) {
    constexpr double Short = 32;
    double const low = std::min(from, to);
    double const high = std::max(from, to);
    if (high - low >= Short) {
        return {PixelOf(low), PixelOf(high)};
    }
    int const centre = PixelOf((low + high) / 2);
    int const half = PixelOf((high - low) / 2);
    return {centre - half, centre + half};
}

// The same upright, where the ends are prices: only what is flatter than two pixels becomes a hairline.
PixelSpan SnapUpright(double from, double to) {
    constexpr double Flat = 2;
    double const low = std::min(from, to);
    double const high = std::max(from, to);
    if (high - low < Flat) {
        int const centre = PixelOf((low + high) / 2);
        return {centre, centre};
    }
    return {PixelOf(low), PixelOf(high)};
}

class DrawingPainter {
public:
    DrawingPainter(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale)
        : painter_(painter),
          drawing_(drawing),
          scale_(scale) {}

    void Paint() {
        auto const& operations = drawing_.Operations();
        bool const isCleared = !operations.empty() && operations.front().What == Kind::Clear;
        if (!isCleared && scale_.On != Medium::Paper) {
            PaintBackground();
        }
        for (DrawingOperation const& operation : operations) {
            Paint(operation);
        }
        PaintCurve();
    }

private:
    [[nodiscard]] double Unit(double twips) const { return Limit(twips * scale_.UnitsPerTwip); }

    [[nodiscard]] bool OnPixels() const { return scale_.On == Medium::Pixels; }

    // Lines are this wide where there are no pixels.
    [[nodiscard]] double LineWidth() const {
        return Unit(scale_.On == Medium::Paper ? PaperLine : VectorLine);
    }

    void Paint(DrawingOperation const& operation);
    void PaintBackground();
    void PaintPoint(DrawingOperation const& operation);
    void PaintLine(DrawingOperation const& operation);
    void PaintCurve();
    void PaintStraightLine(QPointF from, QPointF to);
    void PaintRectangle(DrawingOperation const& operation);
    void PaintPixelRectangle(PixelSpan across, PixelSpan upright, bool filled);
    void PaintExactRectangle(QRectF const& rectangle, bool filled);
    void PaintPaperRectangle(QRectF rectangle, bool filled);
    void PaintText(DrawingOperation const& operation);
    void SetLinePen();

    QPainter& painter_;
    RecordingCanvas const& drawing_;
    PaintScale scale_;
    QColor textColour_ = Qt::black;
    QPointF textPosition_;
    // Lines that join end to end are one curve, painted when the next operation is none of it.
    QPolygonF curve_;
    QColor colour_ = Qt::black;
};

void DrawingPainter::Paint(DrawingOperation const& operation) {
    if (operation.What == Kind::Line) {
        PaintLine(operation);
        return;
    }
    PaintCurve();
    switch (operation.What) {
    case Kind::Clear:
        PaintBackground();
        break;
    case Kind::ForeColour:
        textColour_ = ToQt(operation.Drawn);
        break;
    case Kind::Point:
        PaintPoint(operation);
        break;
    case Kind::Rectangle:
        PaintRectangle(operation);
        break;
    case Kind::TextPosition:
        textPosition_ = {Unit(operation.Coordinates[0]), Unit(operation.Coordinates[1])};
        break;
    case Kind::Font:
        painter_.setFont(FontOf(operation, scale_.UnitsPerTwip));
        break;
    case Kind::Print:
        PaintText(operation);
        break;
    case Kind::Line:
        break;
    }
}

void DrawingPainter::PaintBackground() {
    painter_.fillRect(QRectF(0, 0, std::ceil(Unit(drawing_.Width())), std::ceil(Unit(drawing_.Height()))),
                      Qt::white);
}

void DrawingPainter::PaintPoint(DrawingOperation const& operation) {
    QPointF const point(Unit(operation.Coordinates[0]), Unit(operation.Coordinates[1]));
    colour_ = ToQt(operation.Drawn);
    if (OnPixels()) {
        painter_.fillRect(PixelOf(point.x()), PixelOf(point.y()), 1, 1, colour_);
    } else {
        double const size = LineWidth();
        painter_.fillRect(QRectF(point - QPointF(size, size) / 2, QSizeF(size, size)), colour_);
    }
    curve_.append(point);
}

void DrawingPainter::PaintLine(DrawingOperation const& operation) {
    auto const& at = operation.Coordinates;
    QPointF const from(Unit(at[0]), Unit(at[1]));
    QPointF const to(Unit(at[2]), Unit(at[3]));
    QColor const colour = ToQt(operation.Drawn);
    if (curve_.isEmpty() || curve_.last() != from || colour != colour_) {
        PaintCurve();
        colour_ = colour;
        curve_.append(from);
    }
    if (to != from) {
        curve_.append(to);
    }
}

void DrawingPainter::PaintCurve() {
    constexpr int PointsOfLine = 2;
    if (curve_.size() == PointsOfLine) {
        PaintStraightLine(curve_.first(), curve_.last());
    } else if (curve_.size() > PointsOfLine) {
        painter_.setRenderHint(QPainter::Antialiasing, true);
        SetLinePen();
        painter_.drawPolyline(curve_);
        painter_.setRenderHint(QPainter::Antialiasing, false);
    }
    curve_.clear();
}

void DrawingPainter::PaintStraightLine(QPointF from, QPointF to) {
    bool const isLevel = from.y() == to.y();
    bool const isUpright = from.x() == to.x();
    if (OnPixels() && (isLevel || isUpright)) {
        int const left = PixelOf(std::min(from.x(), to.x()));
        int const right = PixelOf(std::max(from.x(), to.x()));
        int const top = PixelOf(std::min(from.y(), to.y()));
        int const bottom = PixelOf(std::max(from.y(), to.y()));
        painter_.fillRect(left, top, right - left + 1, bottom - top + 1, colour_);
        return;
    }
    painter_.setRenderHint(QPainter::Antialiasing, true);
    SetLinePen();
    painter_.drawLine(from, to);
    painter_.setRenderHint(QPainter::Antialiasing, false);
}

void DrawingPainter::PaintRectangle(DrawingOperation const& operation) {
    auto const& at = operation.Coordinates;
    colour_ = ToQt(operation.Drawn);
    double const x1 = Unit(at[0]);
    double const y1 = Unit(at[1]);
    double const x2 = Unit(at[2]);
    double const y2 = Unit(at[3]);
    QRectF const rectangle = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
    switch (scale_.On) {
    case Medium::Pixels:
        PaintPixelRectangle(SnapAcross(x1, x2), SnapUpright(y1, y2), operation.Flag);
        break;
    case Medium::Vectors:
        PaintExactRectangle(rectangle, operation.Flag);
        break;
    case Medium::Paper:
        PaintPaperRectangle(rectangle, operation.Flag);
        break;
    }
}

void DrawingPainter::PaintPixelRectangle(PixelSpan across, PixelSpan upright, bool filled) {
    int const width = across.Length();
    int const height = upright.Length();
    if (filled || width <= 2 || height <= 2) {
        painter_.fillRect(across.First, upright.First, width, height, colour_);
        return;
    }
    painter_.fillRect(across.First, upright.First, width, 1, colour_);
    painter_.fillRect(across.First, upright.Last, width, 1, colour_);
    painter_.fillRect(across.First, upright.First, 1, height, colour_);
    painter_.fillRect(across.Last, upright.First, 1, height, colour_);
}

void DrawingPainter::PaintExactRectangle(QRectF const& rectangle, bool filled) {
    if (filled) {
        painter_.fillRect(rectangle, colour_);
        return;
    }
    SetLinePen();
    if (rectangle.width() < LineWidth()) {
        painter_.drawLine(QPointF(rectangle.center().x(), rectangle.top()),
                          QPointF(rectangle.center().x(), rectangle.bottom()));
    } else if (rectangle.height() < LineWidth()) {
        painter_.drawLine(QPointF(rectangle.left(), rectangle.center().y()),
                          QPointF(rectangle.right(), rectangle.center().y()));
    } else {
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(rectangle);
    }
}

// The border lies within the corners, so that the shapes of neighbours stay apart; what is too thin for a
// hole is solid.
void DrawingPainter::PaintPaperRectangle(QRectF rectangle, bool filled) {
    double const thinnest = std::max(Unit(ThinnestOnPaper), 1.0);
    double const wider = std::max(thinnest - rectangle.width(), 0.0) / 2;
    double const higher = std::max(thinnest - rectangle.height(), 0.0) / 2;
    rectangle.adjust(-wider, -higher, wider, higher);
    double const border = LineWidth();
    constexpr int BordersAndHole = 3;
    if (filled || std::min(rectangle.width(), rectangle.height()) < BordersAndHole * border) {
        painter_.fillRect(rectangle, colour_);
        return;
    }
    SetLinePen();
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(rectangle.adjusted(border / 2, border / 2, -border / 2, -border / 2));
}

void DrawingPainter::PaintText(DrawingOperation const& operation) {
    double const ascent = QFontMetricsF(painter_.font(), painter_.device()).ascent();
    QPointF place = textPosition_;
    if (scale_.On != Medium::Paper) {
        double const margin = Unit(TextMargin);
        place = QPointF(std::max(place.x(), margin), std::max(place.y(), margin / 2));
    }
    place.ry() += ascent;
    if (OnPixels()) {
        place = QPointF(std::round(place.x()), std::round(place.y()));
    }
    painter_.setPen(textColour_);
    painter_.drawText(place, ToQt(operation.Text));
}

void DrawingPainter::SetLinePen() {
    QPen pen(colour_, OnPixels() ? 1 : LineWidth());
    pen.setCosmetic(OnPixels());
    painter_.setPen(pen);
}

} // namespace

QColor ToQt(Colour colour) {
    constexpr Colour Opaque = 0xFF000000;
    return QColor::fromRgba(Opaque | colour);
}

QFont FontOf(DrawingOperation const& operation, double unitsPerTwip) {
    QFont font(ToQt(operation.Text));
    double const size = operation.Coordinates[0] * TwipsPerPoint * unitsPerTwip;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(Limit(size)))));
    font.setBold(operation.Flag);
    return font;
}

void PaintDrawing(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    DrawingPainter(painter, drawing, scale).Paint();
    painter.restore();
}

} // namespace quorvex::platform::pictures
