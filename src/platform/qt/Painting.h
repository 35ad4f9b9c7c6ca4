// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Recorded drawings on whatever Qt paints on.
#pragma once

#include "platform/RecordingCanvas.h"

#include <QColor>
#include <QPainter>

namespace quorvex::platform::qt {

// Twips to the logical pixel.
inline constexpr double TwipsPerPixel = 15;

// Of boxes and pictures.
inline constexpr Colour BorderColour = 0x808080;

// How twips become units of the painter. On pixels, a unit is one device pixel: upright and level lines fill
// whole ones, so that they are sharp, and only curves are antialiased. Elsewhere, as in a file for any
// resolution, lines stand exactly where they were drawn.
struct PaintScale {
    double UnitsPerTwip = 1 / TwipsPerPixel;
    bool OnPixels = true;
};

[[nodiscard]] QColor ToQt(Colour colour);

// Paints the drawing with its top left corner at the painter's origin, on white.
void PaintDrawing(QPainter& painter, RecordingCanvas const& drawing, PaintScale scale);

} // namespace quorvex::platform::qt
