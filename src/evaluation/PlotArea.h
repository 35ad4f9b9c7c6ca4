// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the parts of the plot of a test are drawn in and with.
#pragma once

#include "evaluation/Models.h"
#include "platform/Canvas.h"

#include <string_view>

namespace quorvex::evaluation {

// In twips.
struct PlotArea {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;

    [[nodiscard]] double Width() const { return Right - Left; }

    [[nodiscard]] double Height() const { return Bottom - Top; }

    [[nodiscard]] bool HasRoom() const { return Right > Left && Bottom > Top; }
};

// The room around texts, in twips.
inline constexpr double TextGap = 60;

inline constexpr platform::Colour CloseColour = platform::Black;
inline constexpr platform::Colour PlotGridColour = 0xDCDCDC;
inline constexpr platform::Colour PlotFrameColour = 0x808080;

// Grey, blue and orange: people with any kind of colour vision tell them apart.
[[nodiscard]] inline platform::Colour KindColour(ForecastKind kind) {
    switch (kind) {
    case ForecastKind::Window:
        return 0x808080;
    case ForecastKind::Composite:
        return 0x0000C0;
    case ForecastKind::Scaled:
        return 0xD55E00;
    }
    return platform::Black;
}

inline void SetPlotFont(platform::Canvas& canvas, bool bold) {
    constexpr int FontSize = 8;
    canvas.SetFont("Arial", FontSize, bold);
}

inline void PrintOnPlot(platform::Canvas& canvas, double x, double y, std::string_view text) {
    canvas.SetTextPosition(x, y);
    canvas.Print(text);
}

inline void PrintCentred(platform::Canvas& canvas, double x, double y, std::string_view text) {
    PrintOnPlot(canvas, x - canvas.TextWidth(text) / 2, y, text);
}

} // namespace quorvex::evaluation
