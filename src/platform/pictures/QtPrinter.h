// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Printer.h"
#include "platform/RecordingCanvas.h"
#include "platform/pictures/PrintJob.h"

#include <QFont>
#include <deque>
#include <memory>
#include <string>

namespace quorvex::platform::pictures {

// A document on whatever pages Qt paints on. The pages are kept until the document ends, then painted and
// sent, so that of a document that goes without its end nothing gets out.
class QtPrinter final : public Printer {
public:
    explicit QtPrinter(std::unique_ptr<PrintJob> job);

    [[nodiscard]] double Width() const override;
    [[nodiscard]] double Height() const override;

    // Raises "Printer error": a page cannot be emptied.
    void Clear() override;

    void SetForeColour(Colour colour) override;
    void Point(double x, double y, Colour colour) override;
    void Line(double x1, double y1, double x2, double y2, Colour colour) override;
    void LineTo(double x, double y, Colour colour) override;
    void Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) override;
    void SetTextPosition(double x, double y) override;
    void SetFont(std::string_view name, int size, bool bold) override;
    void Print(std::string_view text) override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight() const override;

    void SetScaleMode(ScaleMode mode) override;

    [[nodiscard]] double TextX() const override { return x_ / unit_; }

    [[nodiscard]] double TextY() const override { return y_ / unit_; }

    void EndLine() override;
    void NewPage() override;
    void EndDocument() override;

private:
    // The page that is being drawn; raises "Printer error" when the document has ended.
    [[nodiscard]] RecordingCanvas& Page();

    // In the painter's units.
    [[nodiscard]] double UnitsPerTwip() const;

    // In twips.
    [[nodiscard]] double LineHeight() const;

    void PaintPages();

    std::unique_ptr<PrintJob> job_;
    std::deque<RecordingCanvas> pages_; // in twips
    bool isEnded_ = false;
    double unit_ = 1; // of all measures that come and go, in twips
    double x_ = 0;    // of the next text, in twips
    double y_ = 0;
    Colour foreColour_ = Black;
    std::string fontName_ = "Arial";
    int fontSize_ = 10;
    bool isBold_ = false;
    QFont font_; // the same for the device
};

} // namespace quorvex::platform::pictures
