// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/pictures/PdfJob.h"

#include "platform/pictures/QtTexts.h"

#include <QLocale>
#include <utility>

namespace quorvex::platform::pictures {

QPageSize UsualPageSize() {
    bool const isImperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {isImperial ? QPageSize::Letter : QPageSize::A4};
}

PdfJob::PdfJob(std::string_view documentName, PdfPage const& page, PdfReceiver receive)
    : writer_(&file_),
      receive_(std::move(receive)) {
    static_cast<void>(file_.open(QIODevice::WriteOnly)); // of memory, which always opens
    writer_.setTitle(ToQt(documentName));
    writer_.setCreator(QStringLiteral("Quorvex"));
    writer_.setPageSize(page.Size);
    writer_.setPageMargins({page.Margin, page.Margin, page.Margin, page.Margin}, QPageLayout::Point);
}

} // namespace quorvex::platform::pictures
