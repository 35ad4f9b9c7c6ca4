// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/RecordingCanvas.h"

namespace quorvex::platform {

using Kind = DrawingOperation::Kind;

void RecordingCanvas::Resize(double width, double height) {
    width_ = width;
    height_ = height;
}

void RecordingCanvas::Clear() {
    ++clearCount_;
    if (kept_ == Keep::SinceClear) {
        operations_.clear();
    }
    operations_.push_back({Kind::Clear, {}, Black, false, {}});
}

void RecordingCanvas::SetForeColour(Colour colour) {
    operations_.push_back({Kind::ForeColour, {}, colour, false, {}});
}

void RecordingCanvas::Point(double x, double y, Colour colour) {
    operations_.push_back({Kind::Point, {x, y}, colour, false, {}});
    x_ = x;
    y_ = y;
}

void RecordingCanvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
    operations_.push_back({Kind::Line, {x1, y1, x2, y2}, colour, false, {}});
    x_ = x2;
    y_ = y2;
}

void RecordingCanvas::LineTo(double x, double y, Colour colour) {
    Line(x_, y_, x, y, colour);
}

void RecordingCanvas::Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) {
    operations_.push_back({Kind::Rectangle, {x1, y1, x2, y2}, colour, fill == Fill::Filled, {}});
}

void RecordingCanvas::SetTextPosition(double x, double y) {
    operations_.push_back({Kind::TextPosition, {x, y}, Black, false, {}});
}

void RecordingCanvas::SetFont(std::string_view name, int size, bool bold) {
    operations_.push_back({Kind::Font, {static_cast<double>(size)}, Black, bold, std::string(name)});
    font_.Size = size;
}

void RecordingCanvas::Print(std::string_view text) {
    operations_.push_back({Kind::Print, {}, Black, false, std::string(text)});
}

} // namespace quorvex::platform
