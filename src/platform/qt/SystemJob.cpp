// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/SystemJob.h"

#include "platform/basMessages.h"
#include "platform/pictures/QtTexts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <utility>

namespace quorvex::platform::qt {

namespace {

// Only ever makes a file, and leaves none that is not whole.
void WriteNewFile(QString const& path, QByteArray const& content) {
    QFile file(path);
    pictures::RequirePrinted(file.open(QIODevice::WriteOnly | QIODevice::NewOnly));
    bool const isWritten = file.write(content) == content.size() && file.flush();
    file.close();
    if (!isWritten) {
        file.remove();
    }
    pictures::RequirePrinted(isWritten);
}

} // namespace

bool HasPrinter() {
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

PrinterJob::PrinterJob(std::string_view documentName) : printer_(QPrinter::HighResolution) {
    printer_.setDocName(pictures::ToQt(documentName));
}

void PrinterJob::Finish() {
    pictures::RequirePrinted(printer_.printerState() != QPrinter::Error);
}

std::unique_ptr<pictures::PrintJob> StartSystemJob(std::string_view documentName, std::string_view folder,
                                                   pictures::PdfPage const& page, ShowMessage show) {
    if (HasPrinter()) {
        return std::make_unique<PrinterJob>(documentName);
    }
    auto save = [name = std::string(documentName), folder = std::string(folder),
                 show = std::move(show)](QByteArray const& pdf) {
        std::string const path = NewPdfPath(folder, name);
        WriteNewFile(pictures::ToQt(path), pdf);
        show({"No printer is installed. The page was saved as\n" +
                  pictures::FromQt(QDir::toNativeSeparators(pictures::ToQt(path))),
              std::string(ApplicationTitle), Icon::Information});
    };
    return std::make_unique<pictures::PdfJob>(documentName, page, std::move(save));
}

std::string NewPdfPath(std::string_view folder, std::string_view documentName) {
    static QRegularExpression const notInFileNames(QStringLiteral(R"([<>:"/\\|?*\x00-\x1f])"));
    QString const start =
        pictures::ToQt(folder).replace(u'\\', u'/') + pictures::ToQt(documentName).remove(notInFileNames);
    QString path = start + QStringLiteral(".pdf");
    for (int copy = 2; QFileInfo::exists(path); ++copy) {
        path = QStringLiteral("%1 (%2).pdf").arg(start).arg(copy);
    }
    return pictures::FromQt(QDir::toNativeSeparators(path));
}

} // namespace quorvex::platform::qt
