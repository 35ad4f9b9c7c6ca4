// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Printer.h"
#include "platform/qt/SystemJob.h"

namespace quorvex::platform::qt {

// The default printer; without one, PDF files in the folder of the moment, each named by a message.
class QtPrintQueue final : public PrintQueue {
public:
    // The folder's text ends with a separator.
    QtPrintQueue(std::function<std::string()> folder, ShowMessage show);

    [[nodiscard]] std::unique_ptr<Printer> Start(std::string_view documentName) override;

private:
    std::function<std::string()> folder_;
    ShowMessage show_;
};

} // namespace quorvex::platform::qt
