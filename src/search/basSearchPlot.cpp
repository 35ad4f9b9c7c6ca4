// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearchPlot.h"

#include "search/basSearch.h"
#include "search/basSearchReading.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace quorvex::search {

namespace {

using platform::Black;
using platform::Canvas;
using platform::Colour;
using platform::Fill;

// As the composite has it, of whose correlation it tells.
constexpr Colour CurveColour = 0x0000C0;
constexpr Colour LineColour = 0xDCDCDC;
constexpr Colour ChosenColour = 0x808080;
constexpr Colour Paper = 0xFFFFFF;

// All in twips: one pixel, the room around texts, a tick, half of a mark and of the chosen one.
constexpr double Pixel = 15;
constexpr double Gap = 45;
constexpr double Tick = 60;
constexpr double HalfMark = 30;
constexpr double HalfChosenMark = 60;

// Left of the frame stand the shares, as wide as "100%"; right of it half of a number.
constexpr double LeftMargin = 600;
constexpr double RightMargin = 150;

// The frame inside the box.
struct Frame {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
    double Lowest = 0; // the correlation at the bottom; 1 is at the top

    [[nodiscard]] bool IsThere() const { return Right > Left && Bottom > Top; }

    [[nodiscard]] double Y(double correlation) const {
        return Bottom - (correlation - Lowest) / (1 - Lowest) * (Bottom - Top);
    }
};

// Correlations grow with the number of cycles: the first one is the lowest, and has room below it.
double LowestShown(std::span<CycleModel const> models) {
    constexpr double Steps = 10;
    constexpr double Room = 0.05;
    constexpr double HighestLowest = 0.9;
    if (models.empty()) {
        return 0;
    }
    return std::clamp(std::floor((models.front().Correlation - Room) * Steps) / Steps, 0.0, HighestLowest);
}

void SetPlotFont(Canvas& box) {
    constexpr int FontSize = 8;
    box.SetFont("Arial", FontSize, false);
}

void PrintCentred(Canvas& box, double x, double y, std::string_view text) {
    box.SetTextPosition(x - box.TextWidth(text) / 2, y);
    box.Print(text);
}

// Lines of round shares, as many as have room.
void DrawShares(Canvas& box, Frame const& frame) {
    double const height = frame.Bottom - frame.Top;
    double step = 0.02;
    for (double const wider : {0.05, 0.1, 0.2, 0.5}) {
        if (height * step / (1 - frame.Lowest) < 2 * box.TextHeight()) {
            step = wider;
        }
    }
    int const first = static_cast<int>(std::ceil(frame.Lowest / step - Pixel / height));
    int const last = static_cast<int>(std::lround(1 / step));
    for (int line = first; line <= last; ++line) {
        double const share = line * step;
        double const y = frame.Y(share);
        if (y < frame.Bottom - Pixel && y > frame.Top + Pixel) {
            box.Line(frame.Left + Pixel, y, frame.Right - Pixel, y, LineColour);
        }
        box.Line(frame.Left - Tick, y, frame.Left, y, Black);
        std::string const text = std::to_string(std::lround(share * 100)) + "%";
        box.SetTextPosition(frame.Left - Tick - Gap - box.TextWidth(text), y - box.TextHeight() / 2);
        box.Print(text);
    }
}

void DrawCounts(Canvas& box, Frame const& frame) {
    for (int count = 1; count <= MostCycles; ++count) {
        double const x = PlaceOfCount(box.Width(), count);
        box.Line(x, frame.Bottom, x, frame.Bottom + Tick, Black);
        PrintCentred(box, x, frame.Bottom + Tick + Gap / 2, std::to_string(count));
    }
    PrintCentred(box, (frame.Left + frame.Right) / 2, frame.Bottom + Tick + Gap + box.TextHeight(),
                 "Number of cycles");
}

void DrawMark(Canvas& box, double x, double y, double half) {
    box.Rectangle(x - half, y - half, x + half, y + half, CurveColour, Fill::Filled);
}

// Right below the mark: a curve that never falls leaves that place free. At the right edge it moves to the
// left, where the last cycles add little; at the lower edge, above the mark.
void PrintChosen(Canvas& box, Frame const& frame, double x, double y, double correlation) {
    std::string const text = ShareText(correlation);
    double const left = std::min(x + HalfChosenMark, frame.Right - Gap - box.TextWidth(text));
    double const below = y + HalfChosenMark + Pixel;
    double const top =
        below + box.TextHeight() < frame.Bottom ? below : y - HalfChosenMark - box.TextHeight();
    box.Rectangle(left, top, left + box.TextWidth(text), top + box.TextHeight(), Paper, Fill::Filled);
    box.SetForeColour(CurveColour);
    box.SetTextPosition(left, top);
    box.Print(text);
}

void DrawModels(Canvas& box, Frame const& frame, std::span<CycleModel const> models, int chosen) {
    auto const x = [&](std::size_t index) { return PlaceOfCount(box.Width(), static_cast<int>(index) + 1); };
    auto const y = [&](std::size_t index) {
        return frame.Y(std::max(frame.Lowest, models[index].Correlation));
    };
    auto const marked = static_cast<std::size_t>(chosen - 1);
    if (marked < models.size()) {
        PrintChosen(box, frame, x(marked), y(marked), models[marked].Correlation);
    }
    for (std::size_t index = 1; index < models.size(); ++index) {
        box.Line(x(index - 1), y(index - 1), x(index), y(index), CurveColour);
    }
    for (std::size_t index = 0; index < models.size(); ++index) {
        DrawMark(box, x(index), y(index), index == marked ? HalfChosenMark : HalfMark);
    }
}

} // namespace

void DrawSearchPlot(platform::Canvas& box, std::span<CycleModel const> models, int chosen) {
    box.Clear();
    box.SetForeColour(Black);
    SetPlotFont(box);
    Frame const frame{LeftMargin, box.TextHeight() / 2 + Gap, box.Width() - RightMargin,
                      box.Height() - 2 * box.TextHeight() - Tick - 2 * Gap, LowestShown(models)};
    if (!frame.IsThere()) {
        return;
    }
    DrawShares(box, frame);
    DrawCounts(box, frame);
    double const x = PlaceOfCount(box.Width(), std::clamp(chosen, 1, MostCycles));
    box.Line(x, frame.Top + Pixel, x, frame.Bottom - Pixel, ChosenColour);
    box.Rectangle(frame.Left, frame.Top, frame.Right, frame.Bottom, Black, Fill::Outline);
    DrawModels(box, frame, models, chosen);
}

double PlaceOfCount(double width, int cycleCount) {
    double const step = (width - LeftMargin - RightMargin) / MostCycles;
    return LeftMargin + (cycleCount - 0.5) * step;
}

int CountAtPlace(double width, double place) {
    double const step = (width - LeftMargin - RightMargin) / MostCycles;
    if (!(step > 0) || place < LeftMargin || place > width - RightMargin) {
        return 0;
    }
    return std::min(MostCycles, static_cast<int>((place - LeftMargin) / step) + 1);
}

} // namespace quorvex::search
