// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"

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

    void SetFont(std::string_view, int, bool) override {}

    void Print(std::string_view) override {}

private:
    static constexpr double Side = 1000;
};

} // namespace quorvex::platform
