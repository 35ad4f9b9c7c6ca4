// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "import/basImport.h"

#include <string>

namespace quorvex::cli {

// What an import has come to.
struct ImportResult {
    std::string Source; // as it was named
    std::string Target; // likewise; empty when none was
    imports::Conversion Read;
    imports::QuoteFile File;
    std::string CurrencyFormat; // with which the program is to open the quote file
    bool IsReplacing = false;
    bool IsWritten = false;
};

// The result in words; of a refused one what was found out of the table, which may be nothing.
[[nodiscard]] std::string ImportReport(ImportResult const& result);

} // namespace quorvex::cli
