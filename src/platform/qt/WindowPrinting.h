// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <QWidget>
#include <string_view>

namespace quorvex::platform::qt {

// Prints the window's content on one page of the default printer. Where no printer is installed the page
// becomes a PDF file named after the document in the folder, never over an existing one, and a message names
// it. Raises "Printer error" when the page cannot be printed or written.
void PrintWindow(QWidget& window, std::string_view documentName, std::string_view folder, Dialogs& dialogs);

} // namespace quorvex::platform::qt
