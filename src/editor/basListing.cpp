// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basListing.h"

#include "editor/basSave.h"
#include "editor/basSpread.h"

#include <algorithm>
#include <array>
#include <string>

namespace quorvex::editor {

namespace {

constexpr std::string_view FontName = "Times New Roman";
constexpr int NameSize = 14;
constexpr int DatesSize = 12;
constexpr int TableSize = 10;

constexpr double FirstStop = 1.2; // in inches, like all that follow
constexpr double StopDistance = 0.85;
constexpr double PageWidth = 8.5;

constexpr std::size_t TableColumns = 8;
using TableRow = std::array<std::string, TableColumns>;

// Prints each text with its right edge at the stop of its column.
void PrintRow(platform::Printer& printer, TableRow const& texts) {
    double stop = FirstStop;
    for (std::string const& text : texts) {
        printer.SetTextPosition(stop - printer.TextWidth(text), printer.TextY());
        printer.Print(text);
        stop += StopDistance;
    }
}

void PrintCentred(platform::Printer& printer, std::string_view text) {
    printer.SetTextPosition((PageWidth - printer.TextWidth(text)) / 2, printer.TextY());
    platform::PrintLine(printer, text);
}

TableRow TextsOf(std::int16_t row, quotes::QuoteRecord const& record, ShownNumbers const& shown) {
    TableRow texts = {std::to_string(row), ShownDate(record.Date)};
    auto next = texts.begin() + 2;
    for (NumberColumn const& number : NumberColumns) {
        *next++ = shown.Of(number.Style).Format(record.*number.Field);
    }
    return texts;
}

// Ends the page with its number, which only a page that another one follows has.
void TurnPage(platform::Printer& printer, int page) {
    platform::PrintLine(printer);
    PrintCentred(printer, "Page " + std::to_string(page));
    printer.NewPage();
}

void PrintListing(platform::Printer& printer, Editor const& editor, std::string_view quoteFileName,
                  settings::Settings const& settings) {
    ShownNumbers const shown(settings);
    platform::PrintLine(printer);
    PrintHeader(printer, editor, quoteFileName);
    for (std::int16_t row = 1; row <= editor.EditCount; ++row) {
        PrintRow(printer, TextsOf(row, editor.EditQuotes[row], shown));
        printer.EndLine();
        if (row % RowsPerPage == 0 && row < editor.EditCount) {
            TurnPage(printer, row / RowsPerPage);
            PrintHeader(printer, editor, quoteFileName);
        }
    }
    printer.EndDocument();
}

std::string DocumentName(std::string_view quoteFileName) {
    std::string_view const name = quoteFileName.substr(0, quoteFileName.rfind('.'));
    return (name.empty() ? "Quorvex" : std::string(name)) + " listing";
}

} // namespace

void PrintQuotes(Editor& editor, std::string_view quoteFileName, settings::Settings const& settings,
                 platform::PrintQueue& queue, platform::MousePointer& pointer) {
    platform::Hourglass const hourglass(pointer);
    CopySpreadToArray(editor);
    auto const printer = queue.Start(DocumentName(quoteFileName));
    PrintListing(*printer, editor, quoteFileName, settings);
}

void PrintHeader(platform::Printer& printer, Editor const& editor, std::string_view quoteFileName) {
    // Trailing blanks move a head to the left of its stop.
    static TableRow const heads = {"Day",    "Date  ",  "Open  ",  "High  ",
                                   "Low   ", "Close  ", "Volume ", "Open Interest"};
    constexpr int LinesAbove = 3;
    // Without rows the dates are those of the record that is never filled.
    auto const first = std::min<std::int16_t>(1, editor.EditCount);
    printer.SetScaleMode(platform::ScaleMode::Inches);
    printer.SetFont(FontName, NameSize, true);
    for (int line = 0; line < LinesAbove; ++line) {
        platform::PrintLine(printer);
    }
    PrintCentred(printer, quoteFileName);
    printer.SetFont(FontName, DatesSize, true);
    PrintCentred(printer, ShownDate(editor.EditQuotes[first].Date) + " to " +
                              ShownDate(editor.EditQuotes[editor.EditCount].Date));
    platform::PrintLine(printer);
    printer.SetFont(FontName, TableSize, true);
    PrintRow(printer, heads);
    printer.SetFont(FontName, TableSize, false);
    printer.EndLine();
    platform::PrintLine(printer);
}

} // namespace quorvex::editor
