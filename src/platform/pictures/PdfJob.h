// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/pictures/PrintJob.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <functional>
#include <string_view>

namespace quorvex::platform::pictures {

// Letter or A4, whichever is usual where the user lives.
[[nodiscard]] QPageSize UsualPageSize();

// Takes the bytes of a PDF file.
using PdfReceiver = std::function<void(QByteArray const& pdf)>;

// The paper of a PDF file, and the margins that cannot be painted on, in points.
struct PdfPage {
    QPageSize Size = UsualPageSize();
    double Margin = 0;
};

// A document that becomes a PDF file, which the receiver gets whole when the job is finished.
class PdfJob final : public PrintJob {
public:
    PdfJob(std::string_view documentName, PdfPage const& page, PdfReceiver receive);

    [[nodiscard]] QPdfWriter& Device() override { return writer_; }

    void Finish() override { receive_(file_.data()); }

private:
    QBuffer file_;
    QPdfWriter writer_;
    PdfReceiver receive_;
};

} // namespace quorvex::platform::pictures
