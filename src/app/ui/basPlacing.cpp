// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/ui/basPlacing.h"

#include "platform/pictures/Painting.h"

#include <QPoint>
#include <algorithm>
#include <cmath>

namespace quorvex::app::ui {

namespace {

int PixelOf(double twips) {
    return static_cast<int>(std::lround(twips / platform::pictures::TwipsPerPixel));
}

} // namespace

QRect PixelsOf(layout::Rectangle const& rectangle) {
    int const left = PixelOf(rectangle.Left);
    int const top = PixelOf(rectangle.Top);
    return {left, top, std::max(0, PixelOf(rectangle.Left + rectangle.Width) - left),
            std::max(0, PixelOf(rectangle.Top + rectangle.Height) - top)};
}

} // namespace quorvex::app::ui
