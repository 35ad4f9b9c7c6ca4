// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Telling quote files from tables that are still to be imported.
#pragma once

#include "text/basFields.h"

namespace quorvex::imports {

// Whether the text is a quote file that opens as it is: as many lines of quotes as the program reads and
// nothing else, every number a plain one, the days in order, no price outside of high and low. A head, other
// columns, another order of dates or more days make it a table; decimals beyond the currency format do not.
// Raises the faults of the source.
[[nodiscard]] bool IsQuoteFile(text::ByteSource& source);

} // namespace quorvex::imports
