// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowPrinting.h"

#include "platform/qt/SystemJob.h"

#include <QPainter>
#include <algorithm>

namespace quorvex::platform::qt {

namespace {

// Fits the window onto the page, no larger than on the screen, and in the middle of its width.
void RenderOnPage(QWidget& window, QPagedPaintDevice& page) {
    QPainter painter;
    pictures::RequirePrinted(painter.begin(&page));
    double const screenScale = static_cast<double>(page.logicalDpiX()) / window.logicalDpiX();
    double const scale = std::min({screenScale, static_cast<double>(page.width()) / window.width(),
                                   static_cast<double>(page.height()) / window.height()});
    painter.translate((page.width() - window.width() * scale) / 2, 0);
    painter.scale(scale, scale);
    window.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    pictures::RequirePrinted(painter.end());
}

} // namespace

void PrintWindow(QWidget& window, std::string_view documentName, std::string_view folder, Dialogs& dialogs) {
    pictures::PdfPage page;
    page.Margin = 10;
    auto const job = StartSystemJob(documentName, folder, page,
                                    [&dialogs](Message const& message) { dialogs.Show(message); });
    RenderOnPage(window, job->Device());
    job->Finish();
}

} // namespace quorvex::platform::qt
