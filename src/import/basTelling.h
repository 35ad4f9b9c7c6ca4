// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What an import has to tell, in words.
#pragma once

#include "import/basImport.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

// What is to be said of a line: "Line 3: text", or the text alone.
[[nodiscard]] std::string FindingText(Finding const& finding);

[[nodiscard]] std::string_view NameOf(RowOrder order); // "oldest first"

// A day whose figures differ: "01/05/04: 1, 2, 1, 2, 0, 0 in the file, 1, 3, 1, 2, 0, 0 at line 7".
[[nodiscard]] std::string ChangeText(DayChange const& change);

// A column of the plan, for a table of them.
struct PlanRow {
    std::string Is;     // what it holds
    std::string Column; // its number with its heading; empty when there is none
    std::string Why;
};

// The columns that are used, by what they hold, those that a quote needs and that are missing included; then
// the others, as they stand.
[[nodiscard]] std::vector<PlanRow> PlanRows(Plan const& plan);

// What was read, in a sentence or two, or why nothing can be imported.
[[nodiscard]] std::string DescribeConversion(Conversion const& conversion);

// What the quote file of these days will be, or why there is none: "500 days, 01/02/19 to 12/30/20."
[[nodiscard]] std::string DescribeQuoteFile(QuoteFile const& file);

// What an update does to the file of this name.
[[nodiscard]] std::string DescribeUpdate(QuoteFile const& file, std::string_view name, bool replaces);

// Which prices of the quote file the program rounds when it opens it with this currency format; empty when it
// rounds none.
[[nodiscard]] std::string DescribeRounding(QuoteFile const& file, std::string_view currencyFormat);

// What there is to look at, a line each: why rows are left out, lines that are no rows, and what is odd.
[[nodiscard]] std::vector<std::string> FindingLines(Conversion const& conversion);

} // namespace quorvex::imports
