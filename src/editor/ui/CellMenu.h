// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

namespace quorvex::editor::ui {

struct CellCommand {
    QString Name;      // of the action; empty for a line between two groups
    QString Caption;   // "&" marks the access key
    QKeySequence Keys; // shown beside it; whoever has the keyboard answers to them
    bool IsEnabled = true;
    std::function<void()> Run;
};

// Shows the commands as the context menu of the cells, and runs the chosen one once the menu is closed.
void ShowCellMenu(QWidget& window, QPoint place, std::vector<CellCommand> const& commands);

} // namespace quorvex::editor::ui
