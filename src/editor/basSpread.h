// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What the columns of the grid are, and how they show dates and numbers.
#pragma once

#include "editor/Sheet.h"
#include "quotes/QuoteSeries.h"
#include "settings/Settings.h"
#include "text/basFormats.h"

#include <array>
#include <string>
#include <string_view>

namespace quorvex::editor {

inline constexpr std::int16_t DateColumn = 1;
inline constexpr std::int16_t FirstNumberColumn = 2;

// Which numbers a column shows, and how: prices in the currency format, the others as whole numbers.
enum class NumberStyle { Price, Count };

struct NumberColumn {
    std::string_view Head;
    double quotes::QuoteRecord::*Field;
    NumberStyle Style;
};

inline constexpr std::string_view DateHead = "Date";

// The columns from FirstNumberColumn on.
inline constexpr std::array<NumberColumn, 6> NumberColumns = {{
    {"Open", &quotes::QuoteRecord::Open, NumberStyle::Price},
    {"High", &quotes::QuoteRecord::High, NumberStyle::Price},
    {"Low", &quotes::QuoteRecord::Low, NumberStyle::Price},
    {"Close", &quotes::QuoteRecord::Close, NumberStyle::Price},
    {"Volume", &quotes::QuoteRecord::Volume, NumberStyle::Count},
    {"Open Interest", &quotes::QuoteRecord::OpenInterest, NumberStyle::Count},
}};

// The formats in which the editor shows and prints numbers.
struct ShownNumbers {
    explicit ShownNumbers(settings::Settings const& settings)
        : Price(settings.CurrencyFormat),
          Count("#######0") {}

    [[nodiscard]] text::NumberFormat const& Of(NumberStyle style) const {
        return style == NumberStyle::Price ? Price : Count;
    }

    text::NumberFormat Price;
    text::NumberFormat Count;
};

// The date as "mm/dd/yy"; a text that is no date as it stands.
[[nodiscard]] std::string ShownDate(std::string_view date);

// The cell in words, such as "row 12, Volume".
[[nodiscard]] std::string CellName(std::int16_t row, std::int16_t column);

// Paints every second row pale yellow.
void StripeRows(Sheet& sheet);

// Gives all rows the kinds of their columns and the stripes.
void DressRows(Sheet& sheet);

} // namespace quorvex::editor
