// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Dialogs.h"
#include "platform/pictures/PdfJob.h"

#include <QPrinter>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace quorvex::platform::qt {

using ShowMessage = std::function<void(Message const&)>;

[[nodiscard]] bool HasPrinter();

// A job for the default printer, or another one that the user chooses before the first page.
class PrinterJob final : public pictures::PrintJob {
public:
    explicit PrinterJob(std::string_view documentName);

    [[nodiscard]] QPrinter& Device() override { return printer_; }

    void Finish() override;

private:
    QPrinter printer_;
};

// Starts a job for the default printer. Where no printer is installed, finishing the job saves it as a PDF
// file of such pages named after the document in the folder, never over an existing one, and a message names
// it.
[[nodiscard]] std::unique_ptr<pictures::PrintJob> StartSystemJob(std::string_view documentName,
                                                                 std::string_view folder,
                                                                 pictures::PdfPage const& page,
                                                                 ShowMessage show);

// A path in the folder, which ends with a separator, for a PDF file named after the document, such that no
// file has it yet. What no file name can hold is left out.
[[nodiscard]] std::string NewPdfPath(std::string_view folder, std::string_view documentName);

} // namespace quorvex::platform::qt
