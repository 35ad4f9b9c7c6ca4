// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MousePointer.h"
#include "platform/NominalFont.h"
#include "platform/Printer.h"
#include "platform/RecordingCanvas.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvex::platform::fake {

// One text on paper. X and Y are its top left corner, all measures in the unit that was set then.
struct PrintedText {
    std::string Text;
    double X = 0;
    double Y = 0;
    double Width = 0;
    std::string Font;
    int Size = 0;
    bool IsBold = false;
};

struct PrintedPage {
    std::vector<PrintedText> Texts; // those that are not empty
    std::vector<DrawingOperation> Shapes;
};

struct PrintedDocument {
    std::string Name;
    std::vector<PrintedPage> Pages;
    bool IsEnded = false;
};

// What the paper of a test is like.
struct Paper {
    double Width = 12240; // in twips
    double Height = 15840;
    std::optional<double> CharacterWidth; // of every font, in twips; else that of the nominal font
    std::optional<double> LineHeight;     // likewise
    // Printing this text or drawing this shape, counted from 1, or ending the document raises "Printer
    // error".
    std::optional<int> FailingText;
    std::optional<int> FailingShape;
    bool IsEndFailing = false;
};

// Keeps the documents that were printed; the hourglass shows while it counts above zero.
class RecordingPrintQueue final : public PrintQueue, public MousePointer {
public:
    [[nodiscard]] std::unique_ptr<Printer> Start(std::string_view documentName) override;

    void ShowHourglass() override { ++HourglassCount; }

    void ShowDefault() override { --HourglassCount; }

    Paper Sheet;
    std::vector<PrintedDocument> Documents;
    int HourglassCount = 0;
    std::vector<int> HourglassAtStart; // its count when each document was started
};

} // namespace quorvex::platform::fake
