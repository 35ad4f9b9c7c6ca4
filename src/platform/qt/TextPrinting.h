// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"

#include <QPrintDialog>
#include <QTextEdit>
#include <string_view>

namespace quorvex::platform::qt {

// What the dialog offers to print of a text: the selection when there is one, else everything, and never a
// range of pages.
void OfferRanges(QPrintDialog& dialog, bool hasSelection);

// Prints what is selected of the text or, with no selection, all of it, on numbered pages, after a print
// dialog; cancelling that prints nothing. Where no printer is installed there is no dialog, and the pages
// become a PDF file named after the document in the folder, never over an existing one, and a message names
// it. Raises "Printer error" when the pages cannot be printed or written.
void PrintText(QTextEdit& text, std::string_view documentName, std::string_view folder, Dialogs& dialogs);

} // namespace quorvex::platform::qt
