// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// A whole import: from the bytes of a vendor's table to the text of a quote file.
#pragma once

#include "import/basConversion.h"
#include "import/basMerge.h"
#include "text/basFields.h"
#include "text/basFormats.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quorvex::imports {

// Reads a table from its first byte to its last, by the choices where it leaves anything open. Raises the
// faults of the source.
[[nodiscard]] Conversion ImportTable(text::ByteSource& bytes, Choices const& choices, Limits const& limits);

// What shall be written.
struct QuoteFile {
    std::vector<DayQuote> Days;
    std::optional<Merge> Merged;      // of an update
    std::optional<QuoteFileDays> Old; // the file before an update
    std::optional<Refusal> Refused;   // then there is nothing to write

    // Whether there is anything to write: an update may bring nothing new.
    [[nodiscard]] bool HasNews() const;
};

// The latest so many days of the table, 25 at the least.
[[nodiscard]] QuoteFile MakeQuoteFile(Conversion const& conversion, std::size_t most);

// The days of a quote file with those of the table. Raises the faults of ReadQuoteFileDays.
[[nodiscard]] QuoteFile UpdateQuoteFile(text::ByteSource& source, Conversion const& conversion, bool replaces,
                                        std::size_t most);

// The days of the table with a price that the program rounds when it opens their quote file, as this format
// keeps fewer decimals.
[[nodiscard]] Occurrences CountRounded(std::span<DayQuote const> days, text::NumberFormat const& format);

} // namespace quorvex::imports
