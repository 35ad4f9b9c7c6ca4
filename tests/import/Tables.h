// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables and what they are made of.
#pragma once

#include "import/basImport.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {

// Imports the text.
[[nodiscard]] imports::Conversion ImportText(std::string_view table, imports::Choices const& choices = {},
                                             imports::Limits const& limits = {});

// One thing that the user settled.
template <class Member, class Value>
[[nodiscard]] imports::Choices Chosen(Member imports::Choices::*member, Value const& value) {
    imports::Choices choices;
    choices.*member = value;
    return choices;
}

[[nodiscard]] inline imports::Choices ChosenColumns(std::vector<imports::ColumnChoice> const& columns) {
    return Chosen(&imports::Choices::Columns, columns);
}

// Why the text is refused: "3: text"; empty when it is not.
[[nodiscard]] std::string RefusalOf(imports::Conversion const& conversion);

// So many weekdays from a day of 2018 on, each opening near the close of the one before. Prices are multiples
// of a quarter with so many decimals.
[[nodiscard]] std::vector<imports::DayQuote> RandomSeries(std::mt19937& random, std::size_t count,
                                                          double price);

// Whether days and figures are the same.
[[nodiscard]] bool AreSameDays(std::vector<imports::DayQuote> const& left,
                               std::vector<imports::DayQuote> const& right);

// A number below the limit, the same with every standard library.
[[nodiscard]] std::size_t Below(std::mt19937& random, std::size_t limit);

} // namespace quorvex::tests
