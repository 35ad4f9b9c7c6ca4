// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Recorded drawings on whatever Qt paints on.
#pragma once

#include "platform/RecordingCanvas.h"
#include "platform/basInking.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <string_view>

namespace quorvex::platform::pictures {

using platform::BorderColour;
using platform::TwipsPerPixel;

enum class Medium {
    Pixels,  // upright and level lines fill whole ones, so that they are sharp; only curves are antialiased
    Vectors, // a file for any resolution: lines stand exactly where they were drawn
    Paper,   // likewise, and texts do, too
};

// How twips become units of the painter. On pixels, a unit is one device pixel.
struct PaintScale {
    double UnitsPerTwip = 1 / TwipsPerPixel;
    Medium On = Medium::Pixels;
};

[[nodiscard]] QColor ToQt(Colour colour);

// The font of this size in points, for a device where twips are so many units.
[[nodiscard]] QFont FontOf(std::string_view name, double size, bool isBold, double unitsPerTwip);

// Paints the drawing with its top left corner at the painter's origin; on white, unless it is paper.
void PaintDrawing(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale);

// Paints the drawing on a whole picture, pixel by pixel what PaintDrawing paints there with Medium::Pixels,
// in a fraction of the time where PixelRows can fill it: what is filled and not antialiased is written into
// the rows of the picture. REQUIRES: no painter is at work on the picture.
void PaintPicture(QImage& picture, RecordingCanvas const& drawing, double unitsPerTwip);

} // namespace quorvex::platform::pictures
