// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basSave.h"

#include "editor/basEdit.h"
#include "editor/basSpread.h"
#include "editor/basValidate.h"
#include "quotes/basDisk.h"
#include "quotes/basQuotes.h"
#include "text/basNumbers.h"

#include <memory>
#include <optional>
#include <utility>

namespace quorvex::editor {

namespace {

// The copy changes as a whole or not at all.
void CopyRows(Editor& editor, std::int16_t count) {
    auto copied = std::make_unique<quotes::QuoteRecords>(editor.EditQuotes); // too large for some stacks
    for (std::int16_t row = 1; row <= count; ++row) {
        quotes::QuoteRecord& record = (*copied)[row];
        record.Date = editor.Cells.Text(row, DateColumn);
        std::int16_t column = FirstNumberColumn;
        for (NumberColumn const& number : NumberColumns) {
            record.*number.Field = text::StrictNumber(editor.Cells.Text(row, column++));
        }
    }
    editor.EditQuotes = std::move(*copied);
}

std::string EditFileText(Editor const& editor, quotes::QuoteRecords const& master,
                         settings::Settings const& settings) {
    text::NumberFormat const priceFormat(settings.CurrencyFormat);
    text::NumberFormat const countFormat("######0");
    std::string text;
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        text += ShownDate(editor.EditQuotes[row].Date);
        for (NumberColumn const& number : NumberColumns) {
            text += ", ";
            if (number.Style == NumberStyle::Price) {
                quotes::AppendReadableNumber(text, editor.EditQuotes[row].*number.Field, priceFormat);
            } else {
                countFormat.AppendTo(text, master[row].*number.Field);
            }
        }
        text += "\r\n";
    }
    return text;
}

// Whether the file would give the price back. A text that is no number is not for the format to judge.
bool IsReadable(std::string_view cellText, text::NumberFormat const& format) {
    std::optional<double> price;
    if (text::Trap([&] { price = text::StrictNumber(cellText); })) {
        return true;
    }
    std::string field;
    bool const isSpelt = !text::Trap([&] { quotes::AppendReadableNumber(field, *price, format); });
    return isSpelt && format.Round(*price) > 0;
}

// The loader would refuse such a day, or read another price. Tells which row it is, with the cursor on the
// cell.
bool RequireReadablePrices(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    text::NumberFormat const format(settings.CurrencyFormat);
    for (std::int16_t row = 1; row <= editor.Cells.RowCount(); ++row) {
        std::int16_t column = FirstNumberColumn;
        for (NumberColumn const& number : NumberColumns) {
            if (number.Style == NumberStyle::Price && !IsReadable(editor.Cells.Text(row, column), format)) {
                dialogs.Show({"The currency format " + settings.CurrencyFormat +
                                  " cannot hold the price on row " + std::to_string(row) +
                                  ". Nothing was saved.",
                              "Edit", platform::Icon::Exclamation});
                editor.Grid.GotoCell(row, column);
                return false;
            }
            ++column;
        }
    }
    return true;
}

bool RequireGoodRows(Editor& editor, settings::Settings const& settings, platform::Dialogs& dialogs) {
    return ValidateQuotes(editor, dialogs) && RequireReadablePrices(editor, settings, dialogs);
}

} // namespace

void CopySpreadToArray(Editor& editor) {
    CopyRows(editor, editor.Cells.RowCount());
}

bool SaveEditData(std::string const& fileName, Editor& editor, quotes::QuoteRecords const& master,
                  settings::Settings const& settings, platform::Files& files) {
    return !text::Trap([&] {
        CopyRows(editor, editor.EditCount);
        files.Replace(fileName, EditFileText(editor, master, settings));
    });
}

bool SaveEdits(Editor& editor, quotes::QuoteSeries const& series, settings::Settings const& settings,
               platform::Files& files, platform::Dialogs& dialogs) {
    return RequireGoodRows(editor, settings, dialogs) &&
           SaveEditData(series.QuoteFileName, editor, series.Master, settings, files);
}

bool SaveEditsAs(Editor& editor, quotes::QuoteSeries& series, settings::Settings const& settings,
                 platform::Files& files, platform::Dialogs& dialogs) {
    std::string const name = quotes::AskQuoteFileName(series, dialogs);
    if (name.empty() || !quotes::RequireQuoteFileName(name, dialogs)) {
        return false;
    }
    if (!RequireGoodRows(editor, settings, dialogs) ||
        !SaveEditData(name, editor, series.Master, settings, files)) {
        return false;
    }
    series.QuoteFileName = name;
    RebuildGrid(editor, settings);
    return true;
}

} // namespace quorvex::editor
