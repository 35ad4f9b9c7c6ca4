// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Canvas.h"

#include <QImage>
#include <cstddef>
#include <cstdint>

namespace quorvex::platform::pictures {

// The rows of an image, to be filled without a painter: a chart has thousands of bars, ticks and dashes of a
// few pixels each, for which a painter takes several times as long to prepare as to fill. A painter may be
// at work on the same image; each paints at once.
class PixelRows {
public:
    // Whether the image has 32 bits a pixel, RGB32 or ARGB32 premultiplied, and a painter counts in its
    // pixels.
    [[nodiscard]] static bool CanFill(QImage const& image);

    // REQUIRES: CanFill(image); the image outlives the rows and is not copied meanwhile.
    explicit PixelRows(QImage& image);

    // Makes the first so many rows and columns white, as far as the image reaches.
    void Whiten(int width, int height);

    // Makes these pixels opaque and of this colour, as far as the image reaches.
    void Fill(int left, int top, int width, int height, Colour colour);

private:
    [[nodiscard]] std::uint32_t* Row(int y) const {
        return pixels_ + static_cast<std::ptrdiff_t>(y) * stride_;
    }

    std::uint32_t* pixels_;
    std::ptrdiff_t stride_; // in pixels
    int width_;
    int height_;
};

} // namespace quorvex::platform::pictures
