// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <QPagedPaintDevice>

namespace quorvex::platform::pictures {

// One document on its way out. Nothing gets out of a job that goes without being finished, as far as its
// printer allows.
class PrintJob {
public:
    PrintJob() = default;
    PrintJob(PrintJob const&) = delete;
    PrintJob& operator=(PrintJob const&) = delete;
    virtual ~PrintJob() = default;

    // What the pages are painted on.
    [[nodiscard]] virtual QPagedPaintDevice& Device() = 0;

    // To be called when the last page is painted. Raises "Printer error" when they did not get out.
    virtual void Finish() = 0;
};

// Raises "Printer error" when a step of printing did not succeed.
inline void RequirePrinted(bool isPrinted) {
    if (!isPrinted) {
        throw text::RunTimeError(text::Fault::PrinterError);
    }
}

} // namespace quorvex::platform::pictures
