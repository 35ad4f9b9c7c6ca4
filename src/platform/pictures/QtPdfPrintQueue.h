// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PdfPrintQueue.h"
#include "platform/pictures/PdfJob.h"

#include <QGuiApplication>
#include <memory>
#include <optional>

namespace quorvex::platform::pictures {

// PDF files by Qt. Works without a display: where no application runs yet, it starts one that has none. The
// queue must outlive its documents.
class QtPdfPrintQueue final : public PdfPrintQueue {
public:
    // On the paper that is usual where the user lives, unless one is given.
    explicit QtPdfPrintQueue(std::optional<QPageSize> paper = std::nullopt);

    [[nodiscard]] std::unique_ptr<Printer> Start(std::string_view documentName) override;

    [[nodiscard]] std::string const& Pdf() const override { return pdf_; }

private:
    std::optional<QPageSize> paper_;
    std::unique_ptr<QGuiApplication> application_;
    std::string pdf_;
};

} // namespace quorvex::platform::pictures
