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
bool RequireRoom(Sheet const& sheet, platform::Dialogs& dialogs) {
    if (sheet.RowCount() != MaxQuotes) {
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

void FillRow(Sheet& sheet, std::int16_t row, quotes::QuoteRecord const& record, ShownNumbers const& shown) {
    sheet.SetText(row, DateColumn, ShownDate(record.Date));
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        sheet.SetText(row, column++, shown.Of(number.Style).Format(record.*number.Field));
    }
}

} // namespace

std::string EditorCaption(quotes::QuoteSeries const& series) {
    std::string const caption = "Quorvex - Edit";
    return series.HasQuotes() ? caption + " - [" + series.QuoteFileName + "]" : caption;
}

void OpenEditor(Editor& editor, quotes::QuoteSeries const& series) {
    constexpr double WidthShares = 7.9; // a column's share of the grid, which has its row numbers as well
    Sheet& sheet = editor.Cells;
    HiddenSpread const hidden(editor.Grid);
    editor.EditCount = series.QuoteCount;
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        editor.EditQuotes[row] = series.Master[row];
    }
    sheet.SetRowCount(editor.EditCount);
    double const columnWidth = editor.Grid.Width() / WidthShares;
    for (std::int16_t column = 1; column <= Sheet::Columns; ++column) {
        editor.Grid.SetColumnWidth(column, columnWidth);
    }
    sheet.SetText(0, DateColumn, DateHead);
    std::int16_t column = FirstNumberColumn;
    for (NumberColumn const& number : NumberColumns) {
        sheet.SetText(0, column++, number.Head);
    }
}

void SizeGrid(Spread& spread, double windowWidth, double windowHeight) {
    constexpr double Border = 100;
    constexpr double HeightShare = 0.88;
    spread.SetSize(windowWidth - Border, windowHeight * HeightShare);
}

void RebuildGrid(Editor& editor, settings::Settings const& settings) {
    Sheet& sheet = editor.Cells;
    ShownNumbers const shown(settings);
    HiddenSpread const hidden(editor.Grid);
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        FillRow(sheet, row, editor.EditQuotes[row], shown);
    }
    DressRows(sheet);
}

void AppendRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Sheet& sheet = editor.Cells;
    if (!RequireRoom(sheet, dialogs)) {
        return;
    }
    editor.EditQuotes[editor.EditCount + 1] = EmptyDay(settings);
    editor.EditCount = Changed(editor.EditCount, 1);
    sheet.SetRowCount(editor.EditCount);
    editor.Grid.GotoCell(sheet.RowCount(), DateColumn);
    RebuildGrid(editor, settings);
}

void InsertRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Sheet& sheet = editor.Cells;
    std::int16_t const row = editor.Grid.ActiveRow();
    if (row == 0 || !RequireRoom(sheet, dialogs)) {
        return;
    }
    sheet.SetRowCount(Changed(sheet.RowCount(), 1));
    for (int from = sheet.RowCount() - 1; from >= row; --from) {
        editor.EditQuotes[from + 1] = editor.EditQuotes[from];
    }
    editor.EditCount = Changed(editor.EditCount, 1);
    editor.EditQuotes[row] = {};
    RebuildGrid(editor, settings);
}

void DeleteRow(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    Sheet& sheet = editor.Cells;
    std::int16_t const row = editor.Grid.ActiveRow();
    if (row == 0) {
        return;
    }
    auto const answer = dialogs.Show({"Delete row no. " + std::to_string(row) + "?", "Delete Row",
                                      platform::Icon::Question, platform::Buttons::YesNo});
    if (answer != platform::Answer::Yes) {
        return;
    }
    for (int to = row; to < sheet.RowCount(); ++to) {
        editor.EditQuotes[to] = editor.EditQuotes[to + 1];
    }
    editor.EditCount = Changed(editor.EditCount, -1);
    sheet.SetRowCount(Changed(sheet.RowCount(), -1));
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
