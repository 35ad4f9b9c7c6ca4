// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The size of a window as layouts count it: the client area below the menu bar and, whatever the system's own
// is, a frame of one size.
#pragma once

#include "platform/pictures/Painting.h"

#include <QSize>

namespace quorvex::platform::qt {

// Of caption, menu bar and borders, in twips.
inline constexpr double NominalFrameWidth = 120;
inline constexpr double NominalFrameHeight = 690;

// In twips, of the window whose client area below the menu has this size in pixels.
[[nodiscard]] inline double OuterWidth(QSize client) {
    return client.width() * pictures::TwipsPerPixel + NominalFrameWidth;
}

[[nodiscard]] inline double OuterHeight(QSize client) {
    return client.height() * pictures::TwipsPerPixel + NominalFrameHeight;
}

} // namespace quorvex::platform::qt
