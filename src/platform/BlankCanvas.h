// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"
#include "platform/NominalFont.h"

namespace quorvex::platform {

// A canvas on which nothing shows, for runs whose figures alone matter.
class BlankCanvas final : public Canvas {
public:
    [[nodiscard]] double Width() const override { return Side; }

    [[nodiscard]] double Height() const override { return Side; }

    void Clear() override {}

    void SetForeColour(Colour) override {}

    void Point(double, double, Colour) override {}

    void Line(double, double, double, double, Colour) override {}

    void LineTo(double, double, Colour) override {}

    void Rectangle(double, double, double, double, Colour, Fill) override {}

    void SetTextPosition(double, double) override {}

    void SetFont(std::string_view, int size, bool) override { font_.Size = size; }

    void Print(std::string_view) override {}

    [[nodiscard]] double TextWidth(std::string_view text) const override { return font_.Width(text); }

    [[nodiscard]] double TextHeight() const override { return font_.Height(); }

private:
    static constexpr double Side = 1000;

    NominalFont font_;
};

} // namespace quorvex::platform
