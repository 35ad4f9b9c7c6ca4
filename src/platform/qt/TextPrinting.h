// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/pictures/PrintJob.h"
#include "platform/qt/SystemJob.h"

#include <QPrintDialog>
#include <QTextDocument>
#include <QTextEdit>
#include <memory>
#include <optional>
#include <string_view>

namespace quorvex::platform::qt {

// Lets the user choose the printer of a job. It offers to print the selection when there is one, or
// everything, and never a range of pages.
class TextPrintDialog final : public PrintDialog {
public:
    TextPrintDialog(PrinterJob& job, bool hasSelection, QWidget* parent);

    [[nodiscard]] PrintRange Offered() const override;
    [[nodiscard]] std::optional<PrintRange> Show() override;

private:
    QPrintDialog dialog_;
    bool hasSelection_;
};

// A text as it is when this is made, and what is selected of it.
class PrintedText {
public:
    explicit PrintedText(QTextEdit const& text);

    [[nodiscard]] bool HasSelection() const { return selection_ != nullptr; }

    // Prints one of both and finishes the job. A page that another one follows has its number. REQUIRES:
    // there is a selection when it is asked for.
    void Print(PrintRange range, pictures::PrintJob& job);

    // Prints what is chosen in a print dialog over the window, on the printer that is chosen there; nothing
    // when the dialog is cancelled.
    void PrintAsChosen(PrinterJob& job, Dialogs& dialogs, QWidget* parent);

private:
    std::unique_ptr<QTextDocument> whole_;
    std::unique_ptr<QTextDocument> selection_;
};

// Prints what is selected of the text or, with no selection, all of it, unless the print dialog before it
// says otherwise; cancelling that prints nothing. Where no printer is installed there is no dialog, and the
// pages become a PDF file named after the document in the folder, never over an existing one, and a message
// names it. Raises "Printer error" when the pages cannot be printed or written.
void PrintText(QTextEdit& text, std::string_view documentName, std::string_view folder, Dialogs& dialogs);

} // namespace quorvex::platform::qt
