// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basEdit.h"

#include "editor/basSpread.h"
#include "text/basNumbers.h"

namespace quorvex::editor {

namespace {

using quotes::MaxQuotes;

// Raises "Overflow" outside of 16 bits.
std::int16_t Changed(std::int16_t count, int by) {
    return text::WholeNumber(count + by);
}

// Whether the grid can have one more row; when not, tells the user.
bool RequireRoom(Spread const& spread, platform::Dialogs& dialogs) {
    if (spread.RowCount() != MaxQuotes) {
        return true;
    }
    dialogs.Show({"Maximum number of daily quotes (" + std::to_string(MaxQuotes) + ") has been reached.",
                  "Edit", platform::Icon::Exclamation});
    return false;
}

quotes::QuoteRecord EmptyDay(settings::Settings const& settings) {
    double const price = text::NumberFormat(settings.CurrencyFormat).Round(0);
    double const count = text::NumberFormat("#####0").Round(0);
    return {"", price, price, price, price, count, count};
}

void FillRow(Spread& spread, std::int16_t row, quotes::QuoteRecord const& record, ShownNumbers const& shown) {
    PutText(spread, row, DateColumn, ShownDate(record.Date));
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        PutText(spread, row, column++, shown.Of(number.Style).Format(record.*number.Field));
    }
}

} // namespace

std::string EditorCaption(quotes::QuoteSeries const& series) {
    std::string const caption = "Quorvex - Edit";
    return series.HasQuotes() ? caption + " - [" + series.QuoteFileName + "]" : caption;
}

void OpenEditor(Editor& editor, quotes::QuoteSeries const& series) {
    constexpr double WidthShares = 7.9; // a column's share of the grid, which has its row numbers as well
    Spread& spread = editor.Grid;
    spread.SetVisible(false);
    editor.EditCount = series.QuoteCount;
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        editor.EditQuotes[row] = series.Master[row];
    }
    spread.SetRowCount(editor.EditCount);
    double const columnWidth = spread.Width() / WidthShares;
    for (std::int16_t column = 1; column <= spread.ColumnCount(); ++column) {
        spread.SetColumnWidth(column, columnWidth);
    }
    PutText(spread, 0, DateColumn, DateHead);
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        PutText(spread, 0, column++, number.Head);
    }
    spread.SetVisible(true);
}

void SizeGrid(Spread& spread, double windowWidth, double windowHeight) {
    constexpr double Border = 100;
    constexpr double HeightShare = 0.88;
    spread.SetWidth(windowWidth - Border);
    spread.SetHeight(windowHeight * HeightShare);
}

void RebuildGrid(Editor& editor, settings::Settings const& settings) {
    Spread& spread = editor.Grid;
    ShownNumbers const shown(settings);
    spread.SetVisible(false);
    std::int16_t const rows = spread.RowCount();
    spread.SetCellKind({1, DateColumn, rows, DateColumn}, CellKind::Date);
    spread.SetCellKind({1, FirstNumberColumn, rows, spread.ColumnCount()}, CellKind::Number);
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        FillRow(spread, row, editor.EditQuotes[row], shown);
    }
    StripeRows(spread);
    spread.SetVisible(true);
}

void AppendRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Spread& spread = editor.Grid;
    if (!RequireRoom(spread, dialogs)) {
        return;
    }
    editor.EditQuotes[editor.EditCount + 1] = EmptyDay(settings);
    editor.EditCount = Changed(editor.EditCount, 1);
    spread.SetRowCount(editor.EditCount);
    GotoCell(spread, spread.RowCount(), DateColumn);
    RebuildGrid(editor, settings);
}

void InsertRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Spread& spread = editor.Grid;
    std::int16_t const row = spread.ActiveRow();
    if (row == 0 || !RequireRoom(spread, dialogs)) {
        return;
    }
    spread.SetRowCount(Changed(spread.RowCount(), 1));
    for (int from = spread.RowCount() - 1; from >= row; --from) {
        editor.EditQuotes[from + 1] = editor.EditQuotes[from];
    }
    editor.EditCount = Changed(editor.EditCount, 1);
    editor.EditQuotes[row] = {};
    RebuildGrid(editor, settings);
}

void DeleteRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Spread& spread = editor.Grid;
    std::int16_t const row = spread.ActiveRow();
    if (row == 0) {
        return;
    }
    auto const answer = dialogs.Show({"Delete row no. " + std::to_string(row) + "?", "Delete Row",
                                      platform::Icon::Question, platform::Buttons::YesNo});
    if (answer != platform::Answer::Yes) {
        return;
    }
    for (int to = row; to < spread.RowCount(); ++to) {
        editor.EditQuotes[to] = editor.EditQuotes[to + 1];
    }
    editor.EditCount = Changed(editor.EditCount, -1);
    spread.SetRowCount(Changed(spread.RowCount(), -1));
    RebuildGrid(editor, settings);
}

void ShowEditHelp(platform::Dialogs& dialogs) {
    dialogs.Show({"\n\n\n"
                  "Quorvex uses industry standard text files to load and save the   \n"
                  "daily quotes raw data. The required format is:\n\n"
                  "    Date, Open, High, Low, Close, Volume, Open Interest [Return]\n\n"
                  "Date format is mm/dd/yy\n\n"
                  "Dates must be entered in ascending order\n\n"
                  "Individual data fields must be separated by a comma\n\n"
                  "Each record (one day) must be followed by pressing the Return key\n\n"
                  "The optional Volume and Open Interest fields must be represented by a zero\n\n"
                  "\n\n",
                  "Quorvex - Edit Help", platform::Icon::Information});
}

} // namespace quorvex::editor
