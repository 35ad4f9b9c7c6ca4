// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/PixelRows.h"

#include <algorithm>
#include <cstring>

namespace quorvex::platform::pictures {

PixelRows::PixelRows(QImage& image)
    : pixels_(reinterpret_cast<std::uint32_t*>(image.bits())), // NOLINT(*-reinterpret-cast)
      stride_(image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(std::uint32_t))),
      width_(image.width()),
      height_(image.height()) {
    Q_ASSERT(CanFill(image));
}

bool PixelRows::CanFill(QImage const& image) {
    return image.devicePixelRatio() == 1 &&
           (image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied);
}

// Byte by byte, for which the C library has the quickest way of the processor.
void PixelRows::Whiten(int width, int height) {
    constexpr int FullByte = 0xFF;
    auto const bytes = static_cast<std::size_t>(std::clamp(width, 0, width_)) * sizeof(std::uint32_t);
    for (int y = 0; y < std::min(height, height_); ++y) {
        std::memset(Row(y), FullByte, bytes);
    }
}

void PixelRows::Fill(int left, int top, int width, int height, Colour colour) {
    constexpr std::uint32_t Opaque = 0xFF000000;
    int const right = std::min(left + width, width_);
    int const bottom = std::min(top + height, height_);
    left = std::max(left, 0);
    top = std::max(top, 0);
    if (left >= right) {
        return;
    }
    std::uint32_t const pixel = Opaque | colour;
    if (right - left == 1) { // as ticks, bars and wicks are: not worth the start of a fill
        for (int y = top; y < bottom; ++y) {
            Row(y)[left] = pixel;
        }
        return;
    }
    for (int y = top; y < bottom; ++y) {
        std::uint32_t* const row = Row(y);
        std::fill(row + left, row + right, pixel);
    }
}

} // namespace quorvex::platform::pictures
