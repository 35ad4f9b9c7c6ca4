// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The summary of the quotes that are analysed. What looks odd in it is meant: docs/behaviour.md.
#pragma once

#include "quotes/QuoteSeries.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::auxiliary {

// What one label of the properties window shows.
struct PropertyCaption {
    std::string_view Label; // the label's name
    std::string_view Name;  // what it is, in words
    std::string Caption;    // two blanks and the value
};

// The captions in the order of the window, with prices in the currency format; the highest High and the
// lowest Low are plain numbers. Raises "Division by zero" without working days, "Overflow" for a range or
// mean beyond a double.
[[nodiscard]] std::vector<PropertyCaption> DescribeQuotes(quotes::QuoteSeries const& series,
                                                          std::string_view currencyFormat);

} // namespace quorvex::auxiliary
