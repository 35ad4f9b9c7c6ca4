// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basValidate.h"

#include "editor/basSpread.h"
#include "text/basDates.h"
#include "text/basNumbers.h"

namespace quorvex::editor {

namespace {

bool IsPrice(std::string_view cell) {
    bool isPrice = false;
    // A number beyond a double is no price.
    static_cast<void>(text::Trap([&] { isPrice = text::LeadingNumber(cell) > 0; }));
    return isPrice;
}

bool IsGood(Sheet const& sheet, std::int16_t row, std::int16_t column) {
    std::string const& cell = sheet.Text(row, column);
    return column == DateColumn ? text::ParseDate(cell).has_value() : IsPrice(cell);
}

// The first column of the row that fails, 0 when none does.
std::int16_t FindBadColumn(Sheet const& sheet, std::int16_t row) {
    if (!IsGood(sheet, row, DateColumn)) {
        return DateColumn;
    }
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        if (number.Style == NumberStyle::Price && !IsGood(sheet, row, column)) {
            return column;
        }
        ++column;
    }
    return 0;
}

Refusal RequireGoodCells(Editor& editor, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row <= editor.Cells.RowCount(); ++row) {
        if (std::int16_t const column = FindBadColumn(editor.Cells, row); column != 0) {
            dialogs.Show({"Invalid data entry on row " + std::to_string(row), "Edit - Invalid Data Entry",
                          platform::Icon::Exclamation});
            editor.Grid.GotoCell(row, column);
            return CellName(row, column) +
                   (column == DateColumn ? " is not a date" : " is not a price above 0");
        }
    }
    return std::nullopt;
}

Refusal RequireAscendingDates(Editor& editor, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row < editor.Cells.RowCount(); ++row) {
        auto const nextRow = static_cast<std::int16_t>(row + 1);
        auto const day = text::RequireDate(editor.Cells.Text(row, DateColumn));
        auto const next = text::RequireDate(editor.Cells.Text(nextRow, DateColumn));
        if (next <= day) {
            dialogs.Show({"Invalid date entry on row " + std::to_string(row), "Edit - Invalid Date Entry",
                          platform::Icon::Exclamation});
            editor.Grid.GotoCell(row, DateColumn);
            return "rows " + std::to_string(row) + " and " + std::to_string(nextRow) + " have the same date";
        }
    }
    return std::nullopt;
}

} // namespace

Refusal ValidateQuotes(Editor& editor, platform::Dialogs& dialogs) {
    if (Refusal refusal = RequireGoodCells(editor, dialogs)) {
        return refusal;
    }
    {
        HiddenSpread const hidden(editor.Grid);
        editor.Cells.SortByDate({1, 1, editor.Cells.RowCount(), Sheet::Columns}, DateColumn);
    }
    return RequireAscendingDates(editor, dialogs);
}

} // namespace quorvex::editor
