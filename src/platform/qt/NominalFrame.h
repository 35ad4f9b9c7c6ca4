// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The size of a window as layouts count it: the client area below the menu bar and, whatever the system's own
// is, a frame of one size.
#pragma once

#include "platform/qt/Painting.h"

#include <QWidget>

namespace quorvex::platform::qt {

// Of caption, menu bar and borders, in twips.
inline constexpr double NominalFrameWidth = 120;
inline constexpr double NominalFrameHeight = 690;

// In twips, of the window with this client area.
[[nodiscard]] inline double OuterWidth(QWidget const& client) {
    return client.width() * TwipsPerPixel + NominalFrameWidth;
}

[[nodiscard]] inline double OuterHeight(QWidget const& client) {
    return client.height() * TwipsPerPixel + NominalFrameHeight;
}

} // namespace quorvex::platform::qt
