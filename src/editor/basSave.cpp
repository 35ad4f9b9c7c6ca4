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
Refusal RequireReadablePrices(Editor& editor, settings::Settings const& settings,
                              platform::Dialogs& dialogs) {
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
                return CellName(row, column) + " does not fit the currency format " + settings.CurrencyFormat;
            }
            ++column;
        }
    }
    return std::nullopt;
}

// Nothing when every number cell holds one.
Refusal FindCellWithoutNumber(Sheet const& sheet) {
    for (std::int16_t row = 1; row <= sheet.RowCount(); ++row) {
        for (std::int16_t column = FirstNumberColumn; column <= Sheet::Columns; ++column) {
            auto const fault =
                text::Trap([&] { static_cast<void>(text::StrictNumber(sheet.Text(row, column))); });
            if (fault) {
                bool const isTooLarge = fault->Kind() == text::Fault::Overflow;
                return CellName(row, column) + (isTooLarge ? " is too large" : " is not a number");
            }
        }
    }
    return std::nullopt;
}

SaveResult NotSaved(std::string const& cause) {
    return {false, "Not saved: " + cause};
}

SaveResult Saved(std::int16_t rows, std::string const& fileName) {
    return {true, std::to_string(rows) + (rows == 1 ? " row" : " rows") + " saved to " + fileName};
}

void TellPlace(SaveResult& result, quotes::QuoteSeries const& series, settings::Settings const& settings,
               platform::Files const& files) {
    if (result.IsSaved && !IsOpenFileSaved(series, settings, files)) {
        result.Status += " in the current folder of the program, and not to " +
                         OpenFilePath(series, settings) + "; Save As takes a whole path";
    }
}

SaveResult CheckAndSave(std::string const& fileName, Editor& editor, quotes::QuoteRecords const& master,
                        settings::Settings const& settings, platform::Files& files,
                        platform::Dialogs& dialogs) {
    Refusal refusal = ValidateQuotes(editor, dialogs);
    if (!refusal) {
        refusal = RequireReadablePrices(editor, settings, dialogs);
    }
    if (refusal) {
        return NotSaved(*refusal);
    }
    if (auto const error = text::Trap([&] { SaveEditData(fileName, editor, master, settings, files); })) {
        // "Type mismatch" alone would not tell where.
        return NotSaved(FindCellWithoutNumber(editor.Cells).value_or(std::string(error->Description())));
    }
    return Saved(editor.EditCount, fileName);
}

} // namespace

std::string OpenFilePath(quotes::QuoteSeries const& series, settings::Settings const& settings) {
    std::string const& name = series.QuoteFileName;
    return name.find_first_of("/\\") == std::string::npos ? settings.DataPath + name : name;
}

bool IsOpenFileSaved(quotes::QuoteSeries const& series, settings::Settings const& settings,
                     platform::Files const& files) {
    std::string const path = OpenFilePath(series, settings);
    return path == series.QuoteFileName || files.AreSame(path, series.QuoteFileName);
}

void CopySpreadToArray(Editor& editor) {
    CopyRows(editor, editor.Cells.RowCount());
}

void SaveEditData(std::string const& fileName, Editor& editor, quotes::QuoteRecords const& master,
                  settings::Settings const& settings, platform::Files& files) {
    CopyRows(editor, editor.EditCount);
    files.Replace(fileName, EditFileText(editor, master, settings));
}

SaveResult SaveEdits(Editor& editor, quotes::QuoteSeries const& series, settings::Settings const& settings,
                     platform::Files& files, platform::Dialogs& dialogs) {
    SaveResult result = CheckAndSave(series.QuoteFileName, editor, series.Master, settings, files, dialogs);
    TellPlace(result, series, settings, files);
    return result;
}

SaveResult SaveEditsAs(Editor& editor, quotes::QuoteSeries& series, settings::Settings const& settings,
                       platform::Files& files, platform::Dialogs& dialogs) {
    std::string const name = quotes::AskQuoteFileName(series, dialogs);
    if (name.empty()) {
        return {};
    }
    if (!quotes::RequireQuoteFileName(name, dialogs)) {
        return NotSaved("Invalid data file name");
    }
    SaveResult result = CheckAndSave(name, editor, series.Master, settings, files, dialogs);
    if (result.IsSaved) {
        series.QuoteFileName = name;
        RebuildGrid(editor, settings);
    }
    TellPlace(result, series, settings, files);
    return result;
}

} // namespace quorvex::editor
