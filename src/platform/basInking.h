// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a recorded drawing leaves behind, whatever it is drawn with: joined lines as one curve, each text with
// its place and its colour. Everything is in twips.
#pragma once

#include "platform/RecordingCanvas.h"

#include <span>
#include <string_view>

namespace quorvex::platform {

// Of boxes and pictures.
inline constexpr Colour BorderColour = 0x808080;

// The width of lines in a file that suits any resolution: three quarters of a logical pixel.
inline constexpr double VectorLine = 0.75 * TwipsPerPixel;

struct Place {
    double X = 0;
    double Y = 0;

    friend bool operator==(Place const&, Place const&) = default;
};

// Called in the order of the drawing.
class Ink {
public:
    Ink() = default;
    Ink(Ink const&) = delete;
    Ink& operator=(Ink const&) = delete;
    virtual ~Ink() = default;

    // White all over the drawing.
    virtual void PutBackground() = 0;

    virtual void PutPoint(Place at, Colour colour) = 0;

    // Two places or more, none the same as the one before it.
    virtual void PutCurve(std::span<Place const> places, Colour colour) = 0;

    // Between two opposite corners, in whatever order.
    virtual void PutRectangle(Place corner, Place opposite, Colour colour, bool isFilled) = 0;

    // The size is in points. Holds for the texts that follow.
    virtual void SetFont(std::string_view name, double size, bool isBold) = 0;

    // The place is where the text has its top left corner.
    virtual void PutText(Place place, std::string_view text, Colour colour) = 0;
};

// Whether the drawing begins with a background of its own.
[[nodiscard]] bool BeginsWithClear(RecordingCanvas const& drawing);

void InkDrawing(RecordingCanvas const& drawing, Ink& ink);

// Where a text is put in a box with a border: at the very edge it keeps clear of that.
[[nodiscard]] Place ClearOfBorder(Place place);

} // namespace quorvex::platform
