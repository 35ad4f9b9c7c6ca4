// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MenuTable.h"

#include <QMenuBar>
#include <functional>

namespace quorvex::app::ui {

using RunCommand = std::function<void(MenuRow const&)>;

// Fills the menu bar from the table: every item under its name, bound to its command.
void FillMenuBar(QMenuBar& bar, RunCommand const& run);

// The tool strip picIcon with its images, each bound to the command of its menu item.
[[nodiscard]] QWidget* MakeToolStrip(QWidget& client, RunCommand const& run);

} // namespace quorvex::app::ui
