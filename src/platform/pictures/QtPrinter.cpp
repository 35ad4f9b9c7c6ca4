// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/QtPrinter.h"

#include "platform/pictures/Painting.h"
#include "platform/pictures/QtTexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <utility>

namespace quorvex::platform::pictures {

QtPrinter::QtPrinter(std::unique_ptr<PrintJob> job) : job_(std::move(job)) {
    NewPage();
}

double QtPrinter::UnitsPerTwip() const {
    return job_->Device().logicalDpiX() / TwipsPerInch;
}

double QtPrinter::Width() const {
    return job_->Device().width() / UnitsPerTwip() / unit_;
}

double QtPrinter::Height() const {
    return job_->Device().height() * TwipsPerInch / job_->Device().logicalDpiY() / unit_;
}

RecordingCanvas& QtPrinter::Page() {
    RequirePrinted(!isEnded_);
    return pages_.back();
}

void QtPrinter::Clear() {
    RequirePrinted(false);
}

void QtPrinter::SetForeColour(Colour colour) {
    foreColour_ = colour;
    Page().SetForeColour(colour);
}

void QtPrinter::Point(double x, double y, Colour colour) {
    Page().Point(x * unit_, y * unit_, colour);
}

void QtPrinter::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Page().Line(x1 * unit_, y1 * unit_, x2 * unit_, y2 * unit_, colour);
}

void QtPrinter::LineTo(double x, double y, Colour colour) {
    Page().LineTo(x * unit_, y * unit_, colour);
}

void QtPrinter::Rectangle(double x1, double y1, double x2, double y2, Colour colour, Fill fill) {
    Page().Rectangle(x1 * unit_, y1 * unit_, x2 * unit_, y2 * unit_, colour, fill);
}

void QtPrinter::SetTextPosition(double x, double y) {
    x_ = x * unit_;
    y_ = y * unit_;
}

void QtPrinter::SetFont(std::string_view name, int size, bool bold) {
    fontName_ = name;
    fontSize_ = size;
    isBold_ = bold;
    Page().SetFont(name, size, bold);
    font_ = FontOf(name, size, bold, UnitsPerTwip());
}

void QtPrinter::Print(std::string_view text) {
    if (!text.empty()) {
        Page().SetTextPosition(x_, y_);
        Page().Print(text);
    }
    x_ += TextWidth(text) * unit_;
}

double QtPrinter::TextWidth(std::string_view text) const {
    return QFontMetricsF(font_, &job_->Device()).horizontalAdvance(ToQt(text)) / UnitsPerTwip() / unit_;
}

double QtPrinter::TextHeight() const {
    return LineHeight() / unit_;
}

double QtPrinter::LineHeight() const {
    return QFontMetricsF(font_, &job_->Device()).height() / UnitsPerTwip();
}

void QtPrinter::SetScaleMode(ScaleMode mode) {
    unit_ = mode == ScaleMode::Inches ? TwipsPerInch : 1;
}

void QtPrinter::EndLine() {
    x_ = 0;
    y_ += LineHeight();
}

void QtPrinter::NewPage() {
    RequirePrinted(!isEnded_);
    pages_.emplace_back(Width() * unit_, Height() * unit_);
    x_ = 0;
    y_ = 0;
    Page().SetForeColour(foreColour_);
    SetFont(fontName_, fontSize_, isBold_);
}

void QtPrinter::EndDocument() {
    RequirePrinted(!isEnded_);
    isEnded_ = true;
    PaintPages();
    job_->Finish();
}

void QtPrinter::PaintPages() {
    QPainter painter;
    RequirePrinted(painter.begin(&job_->Device()));
    // Some printers have dots that are no squares.
    painter.scale(1, static_cast<double>(job_->Device().logicalDpiY()) / job_->Device().logicalDpiX());
    for (RecordingCanvas const& page : pages_) {
        RequirePrinted(&page == &pages_.front() || job_->Device().newPage());
        PaintDrawing(painter, page, {UnitsPerTwip(), Medium::Paper});
    }
    RequirePrinted(painter.end());
}

} // namespace quorvex::platform::pictures
