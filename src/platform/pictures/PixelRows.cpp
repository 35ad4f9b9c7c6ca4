// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/PixelRows.h"

#include <algorithm>

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

void PixelRows::Fill(int left, int top, int width, int height, Colour colour) {
    constexpr std::uint32_t Opaque = 0xFF000000;
    int const right = std::min(left + width, width_);
    int const bottom = std::min(top + height, height_);
    left = std::max(left, 0);
    top = std::max(top, 0);
    if (left >= right) {
        return;
    }
    for (int y = top; y < bottom; ++y) {
        std::uint32_t* const row = Row(y);
        std::fill(row + left, row + right, Opaque | colour);
    }
}

} // namespace quorvex::platform::pictures
