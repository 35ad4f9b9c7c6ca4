// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The menu of the main window and what each of its items does, the images of the tool strip, and what the
// context menus of the charts add.
#pragma once

#include "app/Program.h"

#include <span>
#include <string_view>

namespace quorvex::app {

using Command = void (*)(Program&, Services&);

inline constexpr std::string_view SeparatorCaption = "-";

// One item of the menu. A row without a command is a menu of its own, which others name as their parent,
// or a separator.
struct MenuRow {
    std::string_view Name;
    std::string_view Caption; // "&" marks the access key; of several marks the last one counts
    std::string_view Parent;  // name of the menu it stands in; empty on the menu bar
    Command Run = nullptr;
};

// In the order of the menu, every parent before its items.
[[nodiscard]] std::span<MenuRow const> MenuTable();

// The row of this name. REQUIRES: there is one.
[[nodiscard]] MenuRow const& MenuRowNamed(std::string_view name);

// What the context menus of the charts have besides Copy and Save, in order. The parent is the chart's box.
[[nodiscard]] std::span<MenuRow const> ChartMenuTable();

// The first row of this name. REQUIRES: there is one.
[[nodiscard]] MenuRow const& ChartMenuRowNamed(std::string_view name);

// One image of the tool strip: it does what its menu item does.
struct ToolRow {
    std::string_view Name;
    std::string_view ToolTip;
    std::string_view MenuName;
};

// From left to right.
[[nodiscard]] std::span<ToolRow const> ToolTable();

} // namespace quorvex::app
