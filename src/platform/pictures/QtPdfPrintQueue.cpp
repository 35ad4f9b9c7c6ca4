// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/QtPdfPrintQueue.h"

#include "platform/pictures/HeadlessApplication.h"
#include "platform/pictures/QtPrinter.h"

#include <utility>

namespace quorvex::platform::pictures {

QtPdfPrintQueue::QtPdfPrintQueue(std::optional<QPageSize> paper) : paper_(std::move(paper)) {}

std::unique_ptr<Printer> QtPdfPrintQueue::Start(std::string_view documentName) {
    if (QCoreApplication::instance() == nullptr) {
        application_ = StartApplicationWithoutDisplay();
    }
    PdfPage const page{paper_.value_or(UsualPageSize())};
    return std::make_unique<QtPrinter>(std::make_unique<PdfJob>(
        documentName, page, [this](QByteArray const& pdf) { pdf_ = pdf.toStdString(); }));
}

} // namespace quorvex::platform::pictures
