// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// From layout to screen.
#pragma once

#include "app/layout/basLayout.h"

#include <QRect>

namespace quorvex::app::ui {

// The rectangle in whole logical pixels. Neighbours in twips are neighbours in pixels.
[[nodiscard]] QRect PixelsOf(layout::Rectangle const& rectangle);

} // namespace quorvex::app::ui
