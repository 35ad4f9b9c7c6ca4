// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ChartSheet.h"

#include <algorithm>
#include <cstddef>

namespace quorvex::cli {

namespace {

using app::layout::Rectangle;
using platform::PictureKind;
using platform::TwipsPerPixel;
using platform::TwipsPerPoint;

// Ten pixels around the charts.
constexpr double Margin = 10 * TwipsPerPixel;

std::array<Rectangle, 4> PlacesInWindow(WindowSize const& window) {
    return app::layout::LayoutMainWindow(window.Width, window.Height, app::layout::IconStripHeight).Charts;
}

// The same, moved so that the margin is all that is left of the window above and to the left.
std::array<Rectangle, 4> PlacesOnSheet(WindowSize const& window) {
    auto places = PlacesInWindow(window);
    Rectangle const first = places.front();
    for (Rectangle& place : places) {
        place.Left += Margin - first.Left;
        place.Top += Margin - first.Top;
    }
    return places;
}

} // namespace

bool WindowSize::HasCharts() const {
    return PlacesInWindow(*this).back().Height > 0;
}

ChartSheet::ChartSheet(WindowSize const& window)
    : places_(PlacesOnSheet(window)),
      width_(places_.front().Left + places_.front().Width + Margin),
      height_(places_.back().Top + places_.back().Height + Margin),
      drawings_{{{places_[0].Width, places_[0].Height},
                 {places_[1].Width, places_[1].Height},
                 {places_[2].Width, places_[2].Height},
                 {places_[3].Width, places_[3].Height}}} {}

chart::ChartBoxes ChartSheet::Boxes() {
    return {drawings_[0], drawings_[1], drawings_[2], drawings_[3]};
}

std::array<platform::RecordingCanvas const*, 4> ChartSheet::Drawings() const {
    return {drawings_.data(), &drawings_[1], &drawings_[2], &drawings_[3]};
}

std::string ChartSheet::RefusalOf(PictureKind kind) const {
    constexpr double MostPixels = 100e6;     // a picture of 400 MB while it is painted
    constexpr double LongestPngSide = 32767; // in pixels, what can be painted
    constexpr double LongestPdfSide = 14400; // in points, what readers show
    double const side = std::max(width_, height_);
    double const pixels = width_ / TwipsPerPixel * (height_ / TwipsPerPixel);
    if (kind == PictureKind::Png && pixels > MostPixels) {
        return "too large for .png, which takes 100 million pixels";
    }
    if (kind == PictureKind::Png && side / TwipsPerPixel > LongestPngSide) {
        return "too large for .png, which takes 32767 pixels to a side";
    }
    if (kind == PictureKind::Pdf && side / TwipsPerPoint > LongestPdfSide) {
        return "too large for .pdf, which takes 200 inches to a side";
    }
    return {};
}

std::string ChartSheet::Encode(platform::PictureEncoder& encoder, PictureKind kind) const {
    std::array<platform::PlacedDrawing, 4> placed;
    for (std::size_t index = 0; index < placed.size(); ++index) {
        placed.at(index) = {places_.at(index).Left, places_.at(index).Top, &drawings_.at(index)};
    }
    return encoder.Encode({width_, height_, placed}, kind);
}

} // namespace quorvex::cli
