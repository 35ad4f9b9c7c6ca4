// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/layout/basLayout.h"
#include "chart/basCharts.h"
#include "platform/PictureEncoder.h"
#include "platform/RecordingCanvas.h"

#include <array>
#include <string>

namespace quorvex::cli {

// The outer size of a window in twips.
struct WindowSize {
    double Width = 16'500;
    double Height = 12'000;

    // Whether the window leaves room for charts.
    [[nodiscard]] bool HasCharts() const;
};

// The four charts as a window of this size stacks them. They are empty until somebody draws on the boxes.
class ChartSheet {
public:
    // The window must have charts.
    explicit ChartSheet(WindowSize const& window);

    [[nodiscard]] chart::ChartBoxes Boxes();

    [[nodiscard]] std::array<platform::RecordingCanvas const*, 4> Drawings() const;

    // Why there can be no picture of this kind in this size; empty when there can.
    [[nodiscard]] std::string RefusalOf(platform::PictureKind kind) const;

    // The bytes of an image file with the charts in an even margin and nothing else of the window.
    [[nodiscard]] std::string Encode(platform::PictureEncoder& encoder, platform::PictureKind kind) const;

private:
    std::array<app::layout::Rectangle, 4> places_; // on the sheet
    double width_;
    double height_;
    std::array<platform::RecordingCanvas, 4> drawings_;
};

} // namespace quorvex::cli
