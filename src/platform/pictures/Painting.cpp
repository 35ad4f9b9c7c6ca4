// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/Painting.h"

#include "platform/basProcessor.h"
#include "platform/pictures/PixelRows.h"
#include "platform/pictures/QtTexts.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <optional>

namespace quorvex::platform::pictures {

namespace {

// Beyond any screen: what lies farther away is moved here, so that it still fits a whole number.
constexpr double FarAway = 1'000'000;

// Of lines and borders on paper, in twips, and what the thinnest shape is widened to, which is fine enough
// for the bars of many days to stay apart.
constexpr double PaperLine = 8;
constexpr double ThinnestOnPaper = 5;

double Limit(double value) {
    return std::clamp(value, -FarAway, FarAway);
}

// The floor, without the call that the plainest processors need for it.
int PixelOf(double value) {
    int const truncated = static_cast<int>(value);
    return truncated - (value < truncated ? 1 : 0);
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

class DrawingPainter final : public Ink {
public:
    // With rows, these are of the image that is painted on, and whole pixels are filled there.
    DrawingPainter(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale, PixelRows* rows)
        : painter_(painter),
          drawing_(drawing),
          scale_(scale),
          rows_(rows) {}

    void PutBackground() override;
    void PutPoint(Place at, Colour colour) override;
    void PutCurve(std::span<Place const> places, Colour colour) override;
    void PutRectangle(Place corner, Place opposite, Colour colour, bool isFilled) override;
    void SetFont(std::string_view name, double size, bool isBold) override;
    void PutText(Place place, std::string_view text, Colour colour) override;

private:
    [[nodiscard]] double Unit(double twips) const { return Limit(twips * scale_.UnitsPerTwip); }

    [[nodiscard]] QPointF Unit(Place place) const { return {Unit(place.X), Unit(place.Y)}; }

    [[nodiscard]] bool OnPixels() const { return scale_.On == Medium::Pixels; }

    // Lines are this wide where there are no pixels.
    [[nodiscard]] double LineWidth() const {
        return Unit(scale_.On == Medium::Paper ? PaperLine : VectorLine);
    }

    void FillPixels(int left, int top, int width, int height, Colour colour);
    void PaintStraightLine(QPointF from, QPointF to, Colour colour);
    void PaintPixelRectangle(PixelSpan across, PixelSpan upright, Colour colour, bool isFilled);
    void PaintExactRectangle(QRectF const& rectangle, QColor const& colour, bool isFilled);
    void PaintPaperRectangle(QRectF rectangle, QColor const& colour, bool isFilled);
    void SetLinePen(QColor const& colour);

    QPainter& painter_;
    RecordingCanvas const& drawing_;
    PaintScale scale_;
    PixelRows* rows_;
    QPolygonF curve_; // kept for its memory
};

void DrawingPainter::PutBackground() {
    double const width = std::ceil(Unit(drawing_.Width()));
    double const height = std::ceil(Unit(drawing_.Height()));
    if (rows_ != nullptr) {
        rows_->Whiten(static_cast<int>(width), static_cast<int>(height));
    } else {
        painter_.fillRect(QRectF(0, 0, width, height), Qt::white);
    }
}

void DrawingPainter::FillPixels(int left, int top, int width, int height, Colour colour) {
    if (rows_ != nullptr) {
        rows_->Fill(left, top, width, height, colour);
    } else {
        painter_.fillRect(left, top, width, height, ToQt(colour));
    }
}

void DrawingPainter::PutPoint(Place at, Colour colour) {
    QPointF const point = Unit(at);
    if (OnPixels()) {
        FillPixels(PixelOf(point.x()), PixelOf(point.y()), 1, 1, colour);
    } else {
        double const size = LineWidth();
        painter_.fillRect(QRectF(point - QPointF(size, size) / 2, QSizeF(size, size)), ToQt(colour));
    }
}

void DrawingPainter::PutCurve(std::span<Place const> places, Colour colour) {
    constexpr std::size_t PlacesOfLine = 2;
    if (places.size() == PlacesOfLine) {
        PaintStraightLine(Unit(places.front()), Unit(places.back()), colour);
        return;
    }
    curve_.resize(static_cast<qsizetype>(places.size()));
    std::ranges::transform(places, curve_.begin(), [this](Place place) { return Unit(place); });
    painter_.setRenderHint(QPainter::Antialiasing, true);
    SetLinePen(ToQt(colour));
    painter_.drawPolyline(curve_);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    FreeWideRegisters();
}

void DrawingPainter::PaintStraightLine(QPointF from, QPointF to, Colour colour) {
    bool const isLevel = from.y() == to.y();
    bool const isUpright = from.x() == to.x();
    if (OnPixels() && (isLevel || isUpright)) {
        int const left = PixelOf(std::min(from.x(), to.x()));
        int const right = PixelOf(std::max(from.x(), to.x()));
        int const top = PixelOf(std::min(from.y(), to.y()));
        int const bottom = PixelOf(std::max(from.y(), to.y()));
        FillPixels(left, top, right - left + 1, bottom - top + 1, colour);
        return;
    }
    painter_.setRenderHint(QPainter::Antialiasing, true);
    SetLinePen(ToQt(colour));
    painter_.drawLine(from, to);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    FreeWideRegisters();
}

void DrawingPainter::PutRectangle(Place corner, Place opposite, Colour colour, bool isFilled) {
    QPointF const from = Unit(corner);
    QPointF const to = Unit(opposite);
    switch (scale_.On) {
    case Medium::Pixels:
        PaintPixelRectangle(SnapAcross(from.x(), to.x()), SnapUpright(from.y(), to.y()), colour, isFilled);
        break;
    case Medium::Vectors:
        PaintExactRectangle(QRectF(from, to).normalized(), ToQt(colour), isFilled);
        break;
    case Medium::Paper:
        PaintPaperRectangle(QRectF(from, to).normalized(), ToQt(colour), isFilled);
        break;
    }
}

void DrawingPainter::PaintPixelRectangle(PixelSpan across, PixelSpan upright, Colour colour, bool isFilled) {
    int const width = across.Length();
    int const height = upright.Length();
    if (isFilled || width <= 2 || height <= 2) {
        FillPixels(across.First, upright.First, width, height, colour);
        return;
    }
    FillPixels(across.First, upright.First, width, 1, colour);
    FillPixels(across.First, upright.Last, width, 1, colour);
    FillPixels(across.First, upright.First, 1, height, colour);
    FillPixels(across.Last, upright.First, 1, height, colour);
}

void DrawingPainter::PaintExactRectangle(QRectF const& rectangle, QColor const& colour, bool isFilled) {
    if (isFilled) {
        painter_.fillRect(rectangle, colour);
        return;
    }
    SetLinePen(colour);
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
void DrawingPainter::PaintPaperRectangle(QRectF rectangle, QColor const& colour, bool isFilled) {
    double const thinnest = std::max(Unit(ThinnestOnPaper), 1.0);
    double const wider = std::max(thinnest - rectangle.width(), 0.0) / 2;
    double const higher = std::max(thinnest - rectangle.height(), 0.0) / 2;
    rectangle.adjust(-wider, -higher, wider, higher);
    double const border = LineWidth();
    constexpr int BordersAndHole = 3;
    if (isFilled || std::min(rectangle.width(), rectangle.height()) < BordersAndHole * border) {
        painter_.fillRect(rectangle, colour);
        return;
    }
    SetLinePen(colour);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(rectangle.adjusted(border / 2, border / 2, -border / 2, -border / 2));
}

void DrawingPainter::SetFont(std::string_view name, double size, bool isBold) {
    painter_.setFont(FontOf(name, size, isBold, scale_.UnitsPerTwip));
}

void DrawingPainter::PutText(Place place, std::string_view text, Colour colour) {
    QPointF at = Unit(scale_.On == Medium::Paper ? place : ClearOfBorder(place));
    at.ry() += QFontMetricsF(painter_.font(), painter_.device()).ascent();
    if (OnPixels()) {
        at = QPointF(std::round(at.x()), std::round(at.y()));
    }
    painter_.setPen(ToQt(colour));
    painter_.drawText(at, ToQt(text));
    FreeWideRegisters();
}

void DrawingPainter::SetLinePen(QColor const& colour) {
    QPen pen(colour, OnPixels() ? 1 : LineWidth());
    pen.setCosmetic(OnPixels());
    painter_.setPen(pen);
}

} // namespace

QColor ToQt(Colour colour) {
    constexpr Colour Opaque = 0xFF000000;
    return QColor::fromRgba(Opaque | colour);
}

QFont FontOf(std::string_view name, double size, bool isBold, double unitsPerTwip) {
    QFont font(ToQt(name));
    double const units = size * TwipsPerPoint * unitsPerTwip;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(Limit(units)))));
    font.setBold(isBold);
    return font;
}

namespace {

void InkOn(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale, PixelRows* rows) {
    FreeWideRegisters();
    painter.setRenderHint(QPainter::Antialiasing, false);
    DrawingPainter drawingPainter(painter, drawing, scale, rows);
    if (!BeginsWithClear(drawing) && scale.On != Medium::Paper) {
        drawingPainter.PutBackground();
    }
    InkDrawing(drawing, drawingPainter);
}

} // namespace

void PaintDrawing(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale) {
    painter.save();
    InkOn(painter, drawing, scale, nullptr);
    painter.restore();
}

void PaintPicture(QImage& picture, RecordingCanvas const& drawing, double unitsPerTwip) {
    std::optional<PixelRows> rows;
    if (PixelRows::CanFill(picture)) {
        rows.emplace(picture);
    }
    QPainter painter(&picture);
    // Changes nothing but the time: Qt paints thin lines several times as fast within a rectangle.
    painter.setClipRect(picture.rect());
    InkOn(painter, drawing, {unitsPerTwip, Medium::Pixels}, rows ? &*rows : nullptr);
}

} // namespace quorvex::platform::pictures
