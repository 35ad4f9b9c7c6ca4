// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/WindowPrinting.h"

#include "platform/basMessages.h"
#include "platform/qt/QtTexts.h"

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <algorithm>

namespace quorvex::platform::qt {

namespace {

void Require(bool printed) {
    if (!printed) {
        throw text::RunTimeError(text::Fault::PrinterError);
    }
}

// Fits the window onto the page, no larger than on the screen, and in the middle of its width.
void RenderOnPage(QWidget& window, QPrinter& printer) {
    QPainter painter;
    Require(painter.begin(&printer));
    QRectF const page = printer.pageRect(QPrinter::DevicePixel);
    double const screenScale = static_cast<double>(printer.logicalDpiX()) / window.logicalDpiX();
    double const scale =
        std::min({screenScale, page.width() / window.width(), page.height() / window.height()});
    painter.translate((page.width() - window.width() * scale) / 2, 0);
    painter.scale(scale, scale);
    window.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
    Require(painter.end() && printer.printerState() != QPrinter::Error);
}

// Takes the name for the page: from now on nobody else gets it, and a folder that cannot be written is
// noticed before anything is painted.
void Reserve(QString const& path) {
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly | QIODevice::NewOnly));
}

} // namespace

std::string NewPdfPath(std::string_view folder, std::string_view documentName) {
    static QRegularExpression const notInFileNames(QStringLiteral(R"([<>:"/\\|?*\x00-\x1f])"));
    QString const start = ToQt(folder).replace(u'\\', u'/') + ToQt(documentName).remove(notInFileNames);
    QString path = start + QStringLiteral(".pdf");
    for (int copy = 2; QFileInfo::exists(path); ++copy) {
        path = QStringLiteral("%1 (%2).pdf").arg(start).arg(copy);
    }
    return FromQt(path);
}

void PrintWindow(QWidget& window, std::string_view documentName, std::string_view folder, Dialogs& dialogs) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(documentName));
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        RenderOnPage(window, printer);
        return;
    }
    std::string const path = NewPdfPath(folder, documentName);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt(path));
    Reserve(ToQt(path));
    auto removal = qScopeGuard([&path] { QFile::remove(ToQt(path)); });
    RenderOnPage(window, printer);
    removal.dismiss();
    dialogs.Show({"No printer is installed. The page was saved as\n" + path, std::string(ApplicationTitle),
                  Icon::Information});
}

} // namespace quorvex::platform::qt
