// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The kinds of quote chart that the preferences offer.
#pragma once

#include <array>
#include <string_view>

namespace quorvex::settings {

enum class QuoteStyle { Bars, Candles, Line };

struct ChartTypeRow {
    QuoteStyle Style;
    std::string_view Name;     // as the preferences offer it and the INI file keeps it
    std::string_view InSpeech; // as a sentence begins with it
};

// In the order in which they are offered. The last one stands for every text that is none of them.
inline constexpr std::array<ChartTypeRow, 3> ChartTypeTable = {{
    {QuoteStyle::Bars, "Daily Bar Chart", "Daily bar chart"},
    {QuoteStyle::Candles, "Candlestick Chart", "Candlestick chart"},
    {QuoteStyle::Line, "Line Chart", "Line chart"},
}};

// The row of a chart type as a user may have typed it.
[[nodiscard]] ChartTypeRow const& ChartTypeOf(std::string_view chartType);

} // namespace quorvex::settings
