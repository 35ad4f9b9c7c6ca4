// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basInking.h"

#include <algorithm>
#include <vector>

namespace quorvex::platform {

namespace {

class Inking {
public:
    explicit Inking(Ink& ink) : ink_(ink) {}

    void Put(DrawingOperation const& operation) {
        if (operation.What == Kind::Line) {
            PutLine(operation);
            return;
        }
        PutCurve();
        switch (operation.What) {
        case Kind::Clear:
            ink_.PutBackground();
            break;
        case Kind::ForeColour:
            textColour_ = operation.Drawn;
            break;
        case Kind::Point:
            PutPoint(operation);
            break;
        case Kind::Rectangle:
            ink_.PutRectangle(First(operation), Second(operation), operation.Drawn, operation.Flag);
            break;
        case Kind::TextPosition:
            textPlace_ = First(operation);
            break;
        case Kind::Font:
            ink_.SetFont(operation.Text, operation.Coordinates[0], operation.Flag);
            break;
        case Kind::Print:
            ink_.PutText(textPlace_, operation.Text, textColour_);
            break;
        case Kind::Line:
            break;
        }
    }

    // Lines that join end to end are one curve, put when the next operation is none of it.
    void PutCurve() {
        if (curve_.size() > 1) {
            ink_.PutCurve(curve_, curveColour_);
        }
        curve_.clear();
    }

private:
    using Kind = DrawingOperation::Kind;

    static Place First(DrawingOperation const& operation) {
        return {operation.Coordinates[0], operation.Coordinates[1]};
    }

    static Place Second(DrawingOperation const& operation) {
        return {operation.Coordinates[2], operation.Coordinates[3]};
    }

    void PutPoint(DrawingOperation const& operation) {
        Place const at = First(operation);
        ink_.PutPoint(at, operation.Drawn);
        curveColour_ = operation.Drawn;
        curve_.push_back(at);
    }

    void PutLine(DrawingOperation const& operation) {
        Place const from = First(operation);
        Place const to = Second(operation);
        if (curve_.empty() || curve_.back() != from || operation.Drawn != curveColour_) {
            PutCurve();
            curveColour_ = operation.Drawn;
            curve_.push_back(from);
        }
        if (to != from) {
            curve_.push_back(to);
        }
    }

    Ink& ink_;
    Colour textColour_ = Black;
    Place textPlace_;
    std::vector<Place> curve_;
    Colour curveColour_ = Black;
};

} // namespace

bool BeginsWithClear(RecordingCanvas const& drawing) {
    auto const& operations = drawing.Operations();
    return !operations.empty() && operations.front().What == DrawingOperation::Kind::Clear;
}

void InkDrawing(RecordingCanvas const& drawing, Ink& ink) {
    Inking inking(ink);
    for (DrawingOperation const& operation : drawing.Operations()) {
        inking.Put(operation);
    }
    inking.PutCurve();
}

Place ClearOfBorder(Place place) {
    constexpr double Margin = 45; // in twips
    return {std::max(place.X, Margin), std::max(place.Y, Margin / 2)};
}

} // namespace quorvex::platform
