// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basSpread.h"

#include "text/basDates.h"

namespace quorvex::editor {

std::string ShownDate(std::string_view date) {
    auto const day = text::ParseDate(date);
    return day ? text::FormatDate(*day) : std::string(date);
}

std::string CellName(std::int16_t row, std::int16_t column) {
    bool const isDate = column == DateColumn;
    std::string_view const head =
        isDate ? DateHead : NumberColumns.at(static_cast<std::size_t>(column - FirstNumberColumn)).Head;
    return "row " + std::to_string(row) + ", " + std::string(head);
}

void StripeRows(Sheet& sheet) {
    constexpr platform::Colour PaleYellow = 0xFFFF80;
    for (int even = 2; even <= sheet.RowCount(); even += 2) {
        auto const row = static_cast<std::int16_t>(even);
        sheet.SetBackColour({row, 1, row, Sheet::Columns}, PaleYellow);
    }
}

void DressRows(Sheet& sheet) {
    std::int16_t const rows = sheet.RowCount();
    sheet.SetCellKind({1, DateColumn, rows, DateColumn}, CellKind::Date);
    sheet.SetCellKind({1, FirstNumberColumn, rows, Sheet::Columns}, CellKind::Number);
    StripeRows(sheet);
}

} // namespace quorvex::editor
