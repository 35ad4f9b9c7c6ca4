// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/QtPrintQueue.h"

#include "platform/pictures/QtPrinter.h"

#include <utility>

namespace quorvex::platform::qt {

QtPrintQueue::QtPrintQueue(std::function<std::string()> folder, ShowMessage show)
    : folder_(std::move(folder)),
      show_(std::move(show)) {}

std::unique_ptr<Printer> QtPrintQueue::Start(std::string_view documentName) {
    return std::make_unique<pictures::QtPrinter>(
        StartSystemJob(documentName, folder_(), pictures::PdfPage(), show_));
}

} // namespace quorvex::platform::qt
