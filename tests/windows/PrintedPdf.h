// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Reads back what was printed, with the tools of Poppler.
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <string>
#include <vector>

namespace quorvex::tests {

// A word and the box that its letters take, in inches from the top left corner of the page.
struct PrintedWord {
    QString Text;
    QRectF Box;
};

struct PrintedPage {
    QSizeF Size; // in inches
    std::vector<PrintedWord> Words;
    QImage Picture;

    // Whether ink is at this place, in inches.
    [[nodiscard]] bool IsDark(double x, double y) const;

    // The box of everything that is not white, in inches.
    [[nodiscard]] QRectF Ink() const;
};

// Dots to the inch of the pictures.
inline constexpr double PictureResolution = 300;

// The pages of the file; a test whose file cannot be read cannot go on.
[[nodiscard]] std::vector<PrintedPage> ReadPdf(std::string const& pdf);

// All words of the file in order, joined by blanks.
[[nodiscard]] QString WordsOf(std::string const& pdf);

} // namespace quorvex::tests
