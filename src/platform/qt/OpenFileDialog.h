// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>
#include <string>
#include <string_view>

namespace quorvex::platform::qt {

// What a dialog that opens a file starts with.
struct FileQuestion {
    std::string_view Folder; // the user's own folder stands in where there is none of this name
    std::string_view Name;   // in the name box, may be a pattern
    std::string_view Filter; // description|pattern, all joined by "|", first one chosen
};

// Lets the user choose an existing file in the host's own file dialog over the window. Returns its whole
// path, or the empty text when the user cancelled.
[[nodiscard]] std::string AskForFile(QWidget& window, FileQuestion const& question);

} // namespace quorvex::platform::qt
