// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <QFileDialog>
#include <QString>
#include <QWidget>
#include <string>

namespace quorvex::platform::qt {

// Lets the user choose an existing file in the host's own file dialog, over the window that the user is in,
// which is the given one or a dialog of it. Returns its whole path, or the empty text when the user
// cancelled.
[[nodiscard]] std::string AskForFile(QWidget& window, FileQuestion const& question);

// Lets the user name a file to write, likewise. An existing one is not asked about.
[[nodiscard]] std::string AskWhereToSave(QWidget& window, SaveQuestion const& question);

// Lets the dialog itself complete names by the ending of the chosen filter, or by this one where the filter
// has none: what is asked and told then is about the file that will be written.
void CompleteByFilter(QFileDialog& dialog, QString const& otherwise);

} // namespace quorvex::platform::qt
