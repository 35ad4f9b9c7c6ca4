// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables that come in by dropping and by pasting.
#pragma once

#include <QMimeData>
#include <string>
#include <vector>

namespace quorvex::app::ui {

// Files of this machine, or a text; one of the two is empty.
struct IncomingTables {
    std::vector<std::string> Paths;
    std::string Text;

    [[nodiscard]] bool IsNone() const { return Paths.empty() && Text.empty(); }
};

// What the data hold: files, else a text of several lines, as one line is no table.
[[nodiscard]] IncomingTables TablesIn(QMimeData const* data);

// Whether they hold any.
[[nodiscard]] bool HoldsTables(QMimeData const* data);

} // namespace quorvex::app::ui
