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

bool IsGood(Spread& spread, std::int16_t row, std::int16_t column) {
    std::string const cell = TextAt(spread, row, column);
    return column == DateColumn ? text::ParseDate(cell).has_value() : IsPrice(cell);
}

// The first column of the row that fails, 0 when none does.
std::int16_t FindBadColumn(Spread& spread, std::int16_t row) {
    if (!IsGood(spread, row, DateColumn)) {
        return DateColumn;
    }
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        if (number.Style == NumberStyle::Price && !IsGood(spread, row, column)) {
            return column;
        }
        ++column;
    }
    return 0;
}

bool AreRowsGood(Spread& spread, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row <= spread.RowCount(); ++row) {
        if (std::int16_t const column = FindBadColumn(spread, row); column != 0) {
            dialogs.Show({"Invalid data entry on row " + std::to_string(row), "Edit - Invalid Data Entry",
                          platform::Icon::Exclamation});
            GotoCell(spread, row, column);
            return false;
        }
    }
    return true;
}

bool AreDatesAscending(Spread& spread, platform::Dialogs& dialogs) {
    for (std::int16_t row = 1; row < spread.RowCount(); ++row) {
        auto const day = text::RequireDate(TextAt(spread, row, DateColumn));
        auto const next = text::RequireDate(TextAt(spread, static_cast<std::int16_t>(row + 1), DateColumn));
        if (next <= day) {
            dialogs.Show({"Invalid date entry on row " + std::to_string(row), "Edit - Invalid Date Entry",
                          platform::Icon::Exclamation});
            GotoCell(spread, row, DateColumn);
            return false;
        }
    }
    return true;
}

} // namespace

bool ValidateQuotes(Spread& spread, platform::Dialogs& dialogs) {
    if (!AreRowsGood(spread, dialogs)) {
        return false;
    }
    spread.SortByDate({1, 1, spread.RowCount(), spread.ColumnCount()}, DateColumn);
    return AreDatesAscending(spread, dialogs);
}

} // namespace quorvex::editor
