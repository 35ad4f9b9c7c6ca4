// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basValidate.h"

#include "editor/basSpread.h"
#include "text/basDates.h"
#include "text/basNumbers.h"

#include <string>

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

bool AreRowsGood(Editor& editor, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row <= editor.Cells.RowCount(); ++row) {
        if (std::int16_t const column = FindBadColumn(editor.Cells, row); column != 0) {
            dialogs.Show({"Invalid data entry on row " + std::to_string(row), "Edit - Invalid Data Entry",
                          platform::Icon::Exclamation});
            editor.Grid.GotoCell(row, column);
            return false;
        }
    }
    return true;
}

bool AreDatesAscending(Editor& editor, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row < editor.Cells.RowCount(); ++row) {
        auto const day = text::RequireDate(editor.Cells.Text(row, DateColumn));
        auto const next =
            text::RequireDate(editor.Cells.Text(static_cast<std::int16_t>(row + 1), DateColumn));
        if (next <= day) {
            dialogs.Show({"Invalid date entry on row " + std::to_string(row), "Edit - Invalid Date Entry",
                          platform::Icon::Exclamation});
            editor.Grid.GotoCell(row, DateColumn);
            return false;
        }
    }
    return true;
}

} // namespace

bool ValidateQuotes(Editor& editor, platform::Dialogs& dialogs) {
    if (!AreRowsGood(editor, dialogs)) {
        return false;
    }
    {
        HiddenSpread const hidden(editor.Grid);
        editor.Cells.SortByDate({1, 1, editor.Cells.RowCount(), Sheet::Columns}, DateColumn);
    }
    return AreDatesAscending(editor, dialogs);
}

} // namespace quorvex::editor
