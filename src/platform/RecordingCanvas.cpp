// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/RecordingCanvas.h"

namespace quorvex::platform {

using Kind = DrawingOperation::Kind;

void RecordingCanvas::Resize(double width, double height) {
    width_ = width;
    height_ = height;
}

void RecordingCanvas::Add(DrawingOperation operation, std::string_view text) {
    operation.Text = texts_.emplace_back(text);
    Add(operation);
}

void RecordingCanvas::Clear() {
    ++clearCount_;
    if (kept_ == Keep::SinceClear) {
        operations_.clear();
        texts_.clear();
    }
    Add({.What = Kind::Clear});
}

void RecordingCanvas::SetForeColour(Colour colour) {
    Add({.What = Kind::ForeColour, .Drawn = colour});
}

void RecordingCanvas::Point(double x, double y, Colour colour) {
    Add({.What = Kind::Point, .Drawn = colour, .Coordinates = {x, y}});
    x_ = x;
    y_ = y;
}

void RecordingCanvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Add({.What = Kind::Line, .Drawn = colour, .Coordinates = {x1, y1, x2, y2}});
    x_ = x2;
    y_ = y2;
}

void RecordingCanvas::LineTo(double x, double y, Colour colour) {
    Line(x_, y_, x, y, colour);
}

void RecordingCanvas::Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) {
    Add({.What = Kind::Rectangle,
         .Flag = fill == Fill::Filled,
         .Drawn = colour,
         .Coordinates = {x1, y1, x2, y2}});
}

void RecordingCanvas::SetTextPosition(double x, double y) {
    Add({.What = Kind::TextPosition, .Coordinates = {x, y}});
}

void RecordingCanvas::SetFont(std::string_view name, int size, bool bold) {
    Add({.What = Kind::Font, .Flag = bold, .Coordinates = {static_cast<double>(size)}}, name);
    font_.Size = size;
}

void RecordingCanvas::Print(std::string_view text) {
    Add({.What = Kind::Print}, text);
}

} // namespace quorvex::platform
