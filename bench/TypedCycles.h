// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace quorvex::bench {

// Types ten cycles of equal weight into the grid of the main window. They count from the next redraw on.
void TypeTenCycles(QWidget const& window);

} // namespace quorvex::bench
