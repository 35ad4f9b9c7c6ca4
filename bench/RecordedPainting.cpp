// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RecordedPainting.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <optional>
#include <span>
#include <stdexcept>

namespace quorvex::bench {

namespace {

// Is told by the painter what to paint and in which state.
class RecordingEngine final : public QPaintEngine {
public:
    RecordingEngine() : QPaintEngine(AllFeatures) {}

    [[nodiscard]] std::vector<PaintCall> Calls() const {
        if (isIncomplete_) {
            throw std::runtime_error("The charts are painted in a way that cannot be recorded.");
        }
        return calls_;
    }

    bool begin(QPaintDevice*) override { return true; }

    bool end() override { return true; }

    [[nodiscard]] Type type() const override { return User; }

    void updateState(QPaintEngineState const& now) override {
        if (!now.transform().isIdentity() || now.opacity() < 1 || painter()->hasClipping()) {
            isIncomplete_ = true;
        }
    }

    void drawLines(QLineF const* lines, int count) override {
        SetLineState();
        for (QLineF const& line : std::span(lines, static_cast<std::size_t>(count))) {
            calls_.emplace_back(DrawLine{line});
        }
    }

    void drawPolygon(QPointF const* points, int count, PolygonDrawMode mode) override {
        SetLineState();
        DrawPolyline curve;
        for (QPointF const& point : std::span(points, static_cast<std::size_t>(count))) {
            curve.Points.append(point);
        }
        calls_.emplace_back(std::move(curve));
        isIncomplete_ = isIncomplete_ || mode != PolylineMode;
    }

    void drawRects(QRect const* rectangles, int count) override { AddRectangles(rectangles, count); }

    void drawRects(QRectF const* rectangles, int count) override { AddRectangles(rectangles, count); }

    void drawTextItem(QPointF const& place, QTextItem const& item) override {
        Set(font_, painter()->font());
        Set(pen_, painter()->pen());
        calls_.emplace_back(DrawText{place, item.text()});
    }

    void drawPath(QPainterPath const&) override { isIncomplete_ = true; }

    void drawPoints(QPointF const*, int) override { isIncomplete_ = true; }

    void drawPixmap(QRectF const&, QPixmap const&, QRectF const&) override { isIncomplete_ = true; }

private:
    template <class Rectangle>
    void AddRectangles(Rectangle const* rectangles, int count) {
        bool const isFilled = painter()->pen().style() == Qt::NoPen;
        isIncomplete_ = isIncomplete_ || isFilled == (painter()->brush().style() == Qt::NoBrush);
        for (Rectangle const& rectangle : std::span(rectangles, static_cast<std::size_t>(count))) {
            if (isFilled) {
                calls_.emplace_back(FillRectangle<Rectangle>{rectangle, painter()->brush().color()});
            } else {
                SetLineState();
                calls_.emplace_back(DrawOutline{rectangle});
            }
        }
    }

    void SetLineState() {
        Set(pen_, painter()->pen());
        bool const isAntialiased = painter()->testRenderHint(QPainter::Antialiasing);
        if (isAntialiased_ != isAntialiased) {
            isAntialiased_ = isAntialiased;
            calls_.emplace_back(SetAntialiasing{isAntialiased});
        }
    }

    template <class Value>
    void Set(std::optional<Value>& current, Value const& wanted) {
        if (current != wanted) {
            current = wanted;
            calls_.emplace_back(wanted);
        }
    }

    std::vector<PaintCall> calls_;
    std::optional<QPen> pen_;
    std::optional<QFont> font_;
    bool isAntialiased_ = false;
    bool isIncomplete_ = false;
};

class RecordingDevice final : public QPaintDevice {
public:
    explicit RecordingDevice(QSize size) : likeThis_(size, QImage::Format_RGB32) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine_; }

    [[nodiscard]] std::vector<PaintCall> Calls() const { return engine_.Calls(); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric what) const override {
        switch (what) {
        case PdmWidth:
            return likeThis_.width();
        case PdmHeight:
            return likeThis_.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return likeThis_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return likeThis_.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        default:
            return QPaintDevice::metric(what);
        }
    }

private:
    QImage likeThis_;
    mutable RecordingEngine engine_;
};

// Makes one call again.
struct Repeat {
    QPainter& Painter;

    void operator()(QPen const& pen) const { Painter.setPen(pen); }

    void operator()(QFont const& font) const { Painter.setFont(font); }

    void operator()(SetAntialiasing call) const { Painter.setRenderHint(QPainter::Antialiasing, call.IsOn); }

    void operator()(DrawLine const& call) const { Painter.drawLine(call.Line); }

    void operator()(DrawPolyline const& call) const { Painter.drawPolyline(call.Points); }

    void operator()(DrawOutline const& call) const { Painter.drawRect(call.Where); }

    template <class Rectangle>
    void operator()(FillRectangle<Rectangle> const& call) const {
        Painter.fillRect(call.Where, call.Colour);
    }

    void operator()(DrawText const& call) const { Painter.drawText(call.Where, call.Text); }
};

} // namespace

std::vector<PaintCall> RecordPainting(QSize size, std::function<void(QPainter&)> const& routine) {
    RecordingDevice device(size);
    QPainter painter(&device);
    routine(painter);
    painter.end();
    return device.Calls();
}

void RepeatPainting(QPainter& painter, std::vector<PaintCall> const& calls) {
    for (PaintCall const& call : calls) {
        std::visit(Repeat{painter}, call);
    }
}

} // namespace quorvex::bench
