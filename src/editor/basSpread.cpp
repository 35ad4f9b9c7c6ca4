// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basSpread.h"

#include "text/basDates.h"

namespace quorvex::editor {

std::string ShownDate(std::string_view date) {
    auto const day = text::ParseDate(date);
    return day ? text::FormatDate(*day) : std::string(date);
}

std::string TextAt(Spread& spread, std::int16_t row, std::int16_t column) {
    spread.SetRow(row);
    spread.SetColumn(column);
    return spread.Text();
}

void PutText(Spread& spread, std::int16_t row, std::int16_t column, std::string_view text) {
    spread.SetRow(row);
    spread.SetColumn(column);
    spread.SetText(text);
}

void GotoCell(Spread& spread, std::int16_t row, std::int16_t column) {
    spread.SetRow(row);
    spread.SetColumn(column);
    spread.MoveCursor(row, column);
}

void StripeRows(Spread& spread) {
    constexpr platform::Colour PaleYellow = 0xFFFF80;
    std::int16_t const columns = spread.ColumnCount();
    for (int even = 2; even <= spread.RowCount(); even += 2) {
        auto const row = static_cast<std::int16_t>(even);
        spread.SetBackColour({row, 1, row, columns}, PaleYellow);
    }
}

} // namespace quorvex::editor
