// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/ui/CellMenu.h"

#include <QMenu>
#include <cstddef>

namespace quorvex::editor::ui {

void ShowCellMenu(QWidget& window, QPoint place, std::vector<CellCommand> const& commands) {
    QMenu menu(&window);
    menu.setObjectName(QStringLiteral("mnuCells"));
    for (std::size_t index = 0; index < commands.size(); ++index) {
        CellCommand const& command = commands[index];
        if (command.Name.isEmpty()) {
            menu.addSeparator();
            continue;
        }
        QAction* const item = menu.addAction(command.Caption);
        item->setObjectName(command.Name);
        item->setShortcut(command.Keys);
        item->setShortcutVisibleInContextMenu(true);
        item->setEnabled(command.IsEnabled);
        item->setData(static_cast<qulonglong>(index));
    }
    if (QAction const* const chosen = menu.exec(place)) {
        commands[chosen->data().toULongLong()].Run();
    }
}

} // namespace quorvex::editor::ui
