// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Printer.h"

#include <string>

namespace quorvex::platform {

// A queue whose documents become PDF files instead of paper.
class PdfPrintQueue : public PrintQueue {
public:
    // The bytes of the document that was ended last; none before that.
    [[nodiscard]] virtual std::string const& Pdf() const = 0;
};

} // namespace quorvex::platform
