// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What charts are drawn on: a box on the screen, a page, or a list of operations.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvex::platform {

inline constexpr double TwipsPerInch = 1440;
inline constexpr double TwipsPerPixel = 15;
inline constexpr double TwipsPerPoint = 20;

// 24-bit RGB, 0xRRGGBB.
using Colour = std::uint32_t;

inline constexpr Colour Black = 0x000000;
inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour Magenta = 0xFF00FF;

enum class Fill { Outline, Filled };

// Coordinates are in twips from the top left corner, y growing
// downward. Lines are hairlines unless the canvas says otherwise. What was drawn stays until the next Clear.
class Canvas {
public:
    Canvas() = default;
    Canvas(Canvas const&) = delete;
    Canvas& operator=(Canvas const&) = delete;
    virtual ~Canvas() = default;

    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;

    virtual void Clear() = 0;

    // The colour of the text that follows.
    virtual void SetForeColour(Colour colour) = 0;

    // Sets one point, which becomes the current point.
    virtual void Point(double x, double y, Colour colour) = 0;

    // Draws a line, whose end becomes the current point.
    virtual void Line(double x1, double y1, double x2, double y2, Colour colour) = 0;

    // Draws a line from the current point, as above.
    virtual void LineTo(double x, double y, Colour colour) = 0;

    // Draws a rectangle between two opposite corners, in whatever order.
    virtual void Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) = 0;

    // Where the next text has its top left corner.
    virtual void SetTextPosition(double x, double y) = 0;

    // The size is in points.
    virtual void SetFont(std::string_view name, int size, bool bold) = 0;

    virtual void Print(std::string_view text) = 0;

    // How wide the text and how high a line is in the font that is set. Measuring draws nothing.
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextHeight() const = 0;
};

} // namespace quorvex::platform
