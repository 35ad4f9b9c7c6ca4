// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PdfPrintQueue.h"
#include "platform/fake/RecordingPrinter.h"

#include <memory>
#include <string>

namespace quorvex::tests {

// Prints on pages in memory; what goes into the file only tells that it came from here.
class RecordingPdfQueue final : public platform::PdfPrintQueue {
public:
    [[nodiscard]] std::unique_ptr<platform::Printer> Start(std::string_view documentName) override {
        return Recorded.Start(documentName);
    }

    [[nodiscard]] std::string const& Pdf() const override {
        return Recorded.Documents.back().IsEnded ? bytes_ : none_;
    }

    platform::fake::RecordingPrintQueue Recorded;

private:
    std::string bytes_ = "%PDF-of-a-test";
    std::string none_;
};

} // namespace quorvex::tests
