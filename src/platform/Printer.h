// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Paper, and how a document gets onto it.
#pragma once

#include "platform/Canvas.h"
#include "text/RunTimeError.h"

#include <memory>
#include <string_view>

namespace quorvex::platform {

enum class ScaleMode { Twips, Inches };

// A canvas of pages that follow each other. The origin is the top left corner of the area that the printer
// can print on; Width and Height are those of that area. Texts advance the text position by their width;
// lines and rectangles leave it alone. Every operation raises "Printer error" when the printer fails.
class Printer : public Canvas {
public:
    // The unit of all coordinates and measures from now on; a document starts in twips. Font sizes stay
    // points.
    virtual void SetScaleMode(ScaleMode mode) = 0;

    // Where the next text has its top left corner.
    [[nodiscard]] virtual double TextX() const = 0;
    [[nodiscard]] virtual double TextY() const = 0;

    // The next text starts at the left edge, the height of a line below.
    virtual void EndLine() = 0;

    // The text position is the top left corner of the new page; the font stays.
    virtual void NewPage() = 0;

    // Sends the document to the printer; nothing can be printed afterwards. A document that goes without this
    // was never printed.
    virtual void EndDocument() = 0;
};

// Prints the text and ends the line; the empty text is an empty line.
inline void PrintLine(Printer& printer, std::string_view text = {}) {
    printer.Print(text);
    printer.EndLine();
}

// The printer that the system prints on, or what stands in where none is installed.
class PrintQueue {
public:
    PrintQueue() = default;
    PrintQueue(PrintQueue const&) = delete;
    PrintQueue& operator=(PrintQueue const&) = delete;
    virtual ~PrintQueue() = default;

    // Starts a document. Raises "Printer error" when there is nothing to print on.
    [[nodiscard]] virtual std::unique_ptr<Printer> Start(std::string_view documentName) = 0;
};

// For runs that do not print.
class NoPrintQueue final : public PrintQueue {
public:
    [[nodiscard]] std::unique_ptr<Printer> Start(std::string_view) override {
        throw text::RunTimeError(text::Fault::PrinterError);
    }
};

} // namespace quorvex::platform
