// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/pictures/PrintJob.h"

#include <QPrintDialog>
#include <QTextDocument>
#include <QTextEdit>
#include <memory>
#include <string_view>

namespace quorvex::platform::qt {

// What the dialog offers to print of a text: the selection when there is one, else everything, and never a
// range of pages.
void OfferRanges(QPrintDialog& dialog, bool hasSelection);

// A text as it is when this is made, and what is selected of it.
class PrintedText {
public:
    explicit PrintedText(QTextEdit const& text);

    [[nodiscard]] bool HasSelection() const { return selection_ != nullptr; }

    // Prints one of both on numbered pages and finishes the job. REQUIRES: there is a selection when it is
    // asked for.
    void Print(bool isSelection, pictures::PrintJob& job);

private:
    std::unique_ptr<QTextDocument> whole_;
    std::unique_ptr<QTextDocument> selection_;
};

// Prints what is selected of the text or, with no selection, all of it, on numbered pages, after a print
// dialog; cancelling that prints nothing. Where no printer is installed there is no dialog, and the pages
// become a PDF file named after the document in the folder, never over an existing one, and a message names
// it. Raises "Printer error" when the pages cannot be printed or written.
void PrintText(QTextEdit& text, std::string_view documentName, std::string_view folder, Dialogs& dialogs);

} // namespace quorvex::platform::qt
