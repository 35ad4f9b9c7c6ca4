// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"
#include "platform/NominalFont.h"

#include <array>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::platform {

// One drawing operation as it was asked for. A line to a point is a line from the point that was current. A
// chart has thousands: they are small, and cheap to forget.
struct DrawingOperation {
    enum class Kind : std::uint8_t { Clear, ForeColour, Point, Line, Rectangle, TextPosition, Font, Print };

    Kind What = Kind::Clear;
    bool Flag = false; // a rectangle is filled, a font is bold
    Colour Drawn = Black;
    std::array<double, 4> Coordinates{}; // of a point or a text position the first two, of a font its size
    std::string_view Text{};             // of a font its name; the canvas keeps it as long as the operation
};

// What of it a recording keeps.
enum class Keep { Everything, SinceClear };

// A canvas that keeps what it was asked to draw. Text has the measures of a nominal font.
class RecordingCanvas final : public Canvas {
public:
    RecordingCanvas(double width, double height, Keep kept = Keep::Everything)
        : kept_(kept),
          width_(width),
          height_(height) {}

    // The size for what is drawn from now on.
    void Resize(double width, double height);

    [[nodiscard]] double Width() const override { return width_; }

    [[nodiscard]] double Height() const override { return height_; }

    void Clear() override;
    void SetForeColour(Colour colour) override;
    void Point(double x, double y, Colour colour) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void LineTo(double x, double y, Colour colour) override;
    void Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) override;
    void SetTextPosition(double x, double y) override;
    void SetFont(std::string_view name, int size, bool bold) override;
    void Print(std::string_view text) override;

    // How often it was cleared: another number means another drawing.
    [[nodiscard]] int ClearCount() const { return clearCount_; }

    [[nodiscard]] double TextWidth(std::string_view text) const override { return font_.Width(text); }

    [[nodiscard]] double TextHeight() const override { return font_.Height(); }

    [[nodiscard]] std::vector<DrawingOperation> const& Operations() const { return operations_; }

private:
    void Add(DrawingOperation const& operation) { operations_.push_back(operation); }

    // The same, with a text.
    void Add(DrawingOperation operation, std::string_view text);

    Keep kept_;
    int clearCount_ = 0;
    double width_;
    double height_;
    double x_ = 0;
    double y_ = 0;
    NominalFont font_;
    std::vector<DrawingOperation> operations_;
    std::deque<std::string> texts_; // of the operations; they stay where they are
};

} // namespace quorvex::platform
