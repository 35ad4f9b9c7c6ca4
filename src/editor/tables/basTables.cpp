// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/tables/basTables.h"

#include "editor/Change.h"
#include "editor/basSpread.h"
#include "import/Plan.h"
#include "import/Sample.h"
#include "import/basConversion.h"
#include "import/basTelling.h"
#include "quotes/QuoteSeries.h"
#include "text/basDates.h"
#include "text/basFields.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace quorvex::editor::tables {

namespace {

constexpr std::size_t MostTold = 10;

imports::Sample SampleOf(imports::TableText const& table) {
    return imports::ReadSample(table.FirstPart(), table.IsWhole(), std::nullopt);
}

void TellRefusal(std::string const& cause, platform::Dialogs& dialogs) {
    dialogs.Show(
        {"The table was not pasted.\n" + cause +
             "\nImport... in the context menu of the first chart lets you choose how a table is read.",
         "Edit", platform::Icon::Exclamation});
}

void TellLeftOut(imports::Findings const& leftOut, platform::Dialogs& dialogs) {
    std::string text =
        std::to_string(leftOut.Count) +
        (leftOut.Count == 1 ? " row of the table was left out.\n" : " rows of the table were left out.\n");
    std::size_t const told = std::min(MostTold, leftOut.Kept.size());
    for (std::size_t finding = 0; finding < told; ++finding) {
        text += imports::FindingText(leftOut.Kept[finding]) + '\n';
    }
    text.append(told < leftOut.Count ? "..." : "");
    dialogs.Show(
        {text.ends_with('\n') ? text.substr(0, text.size() - 1) : text, "Edit", platform::Icon::Exclamation});
}

EditRow RowOf(imports::DayQuote const& day, ShownNumbers const& shown) {
    EditRow row;
    row.Copy.Date = text::FormatDate(day.Day);
    row.Texts.front() = row.Copy.Date;
    std::size_t at = 0;
    for (NumberColumn const& number : NumberColumns) {
        text::NumberFormat const& format = shown.Of(number.Style);
        double const figure = day.Figures.at(at);
        row.Copy.*number.Field = format.Round(figure);
        row.Texts.at(++at) = format.Format(figure);
    }
    return row;
}

// Why the table cannot be pasted from the row on; empty when it can.
std::string FindRefusal(imports::Conversion const& table, std::int16_t row) {
    if (table.Refused) {
        return imports::FindingText(table.Refused->Told);
    }
    if (table.Days.empty()) {
        return table.LeftOut.Kept.empty() ? "It has no day with four prices"
                                          : imports::FindingText(table.LeftOut.Kept.front());
    }
    auto const room = static_cast<std::size_t>(quotes::MaxQuotes) + 1 - static_cast<std::size_t>(row);
    if (table.Days.size() > room) {
        return "It has " + std::to_string(table.Days.size()) + " days, and from row " + std::to_string(row) +
               " on there is room for " + std::to_string(room);
    }
    return {};
}

imports::Conversion Read(std::string_view text) {
    text::TextSource source(text);
    imports::TableText table(source, imports::Encoding::Utf8);
    imports::Choices scattered; // days that are corrected may lie weeks apart
    scattered.TakesAnyBars = true;
    imports::Plan const plan = imports::MakePlan(SampleOf(table), imports::Encoding::Utf8, scattered);
    return imports::ConvertTable(table.Whole(), plan, {});
}

// What became of the rows from this one on. The old ones are those that were there, which may be fewer.
std::string PasteStatus(std::int16_t row, std::span<EditRow const> pasted, std::span<EditRow const> old,
                        quotes::QuoteRecords const& master) {
    auto const isLost = [](EditRow const& before, EditRow const& after) {
        std::string const& day = before.Texts.front();
        return !day.empty() && text::ParseDate(day) != text::ParseDate(after.Texts.front());
    };
    int lost = 0;
    bool isSavedAsShown = true;
    for (std::size_t index = 0; index < pasted.size(); ++index) {
        EditRow const& now = pasted[index];
        quotes::QuoteRecord const& saved = master[row + static_cast<std::int16_t>(index)];
        lost += index < old.size() && isLost(old[index], now) ? 1 : 0;
        isSavedAsShown =
            isSavedAsShown && now.Copy.Volume == saved.Volume && now.Copy.OpenInterest == saved.OpenInterest;
    }
    std::string const first = std::to_string(row);
    std::string status = pasted.size() == 1
                             ? "1 day pasted into row " + first
                             : std::to_string(pasted.size()) + " days pasted into rows " + first + " to " +
                                   std::to_string(static_cast<std::size_t>(row) + pasted.size() - 1);
    if (lost > 0) {
        status += " over " + std::to_string(lost) + (lost == 1 ? " other day" : " other days") +
                  "; Undo brings " + (lost == 1 ? "it" : "them") + " back";
    }
    if (!isSavedAsShown) {
        status += ". Their volume and open interest are not saved, those of the loaded rows are; Import... "
                  "takes them into the file";
    }
    return status;
}

// A number in which the comma may be a decimal one.
bool IsDoubtfulNumber(std::string_view cell) {
    return cell.find(',') != std::string_view::npos && cell.find('.') == std::string_view::npos &&
           !text::Trap([&] { static_cast<void>(text::StrictNumber(cell)); });
}

// A date whose first two numbers may be the month and the day, or the other way round.
bool IsDoubtfulDate(std::string_view cell, std::chrono::year_month_day date) {
    constexpr unsigned Months = 12;
    auto const month = static_cast<unsigned>(date.month());
    auto const day = static_cast<unsigned>(date.day());
    bool const isYearFirst = cell.find_first_of("/-") >= 4;
    bool const isOfNumbers = cell.find_first_not_of("0123456789/- ") == std::string_view::npos;
    return isOfNumbers && !isYearFirst && day <= Months && day != month;
}

std::string FindCellReading(std::string_view cell) {
    if (IsDoubtfulNumber(cell)) {
        return std::string(cell) + " is read as " + text::PlainNumber(text::StrictNumber(cell));
    }
    auto const day = text::ParseDate(cell);
    if (!day || !IsDoubtfulDate(cell, *day)) {
        return {};
    }
    std::chrono::year_month_day const date = *day;
    return std::string(cell) + " is read as month " + std::to_string(static_cast<unsigned>(date.month())) +
           ", day " + std::to_string(static_cast<unsigned>(date.day()));
}

} // namespace

bool IsTable(std::string_view text) {
    text::TextSource source(text);
    imports::TableText const table(source, imports::Encoding::Utf8);
    return std::ranges::any_of(SampleOf(table).Rows, imports::LooksLikeQuotes);
}

std::string PasteTable(Editor& editor, std::int16_t row, std::string_view text,
                       quotes::QuoteRecords const& master, settings::Settings const& settings,
                       platform::Dialogs& dialogs) {
    imports::Conversion const table = Read(text);
    if (std::string const refusal = FindRefusal(table, row); !refusal.empty()) {
        TellRefusal(refusal, dialogs);
        return {};
    }
    ShownNumbers const shown(settings);
    EditRows pasted;
    for (imports::DayQuote const& day : table.Days) {
        pasted.push_back(RowOf(day, shown));
    }
    EditRows const before = RowsOf(editor);
    EditRows rows = before;
    auto const at = static_cast<std::size_t>(row - 1);
    rows.resize(std::max(rows.size(), at + pasted.size()));
    std::ranges::copy(pasted, rows.begin() + (row - 1));
    SetRows(editor, rows);
    editor.Grid.GotoCell(row, DateColumn);
    if (table.LeftOut.Count > 0) {
        TellLeftOut(table.LeftOut, dialogs);
    }
    return PasteStatus(row, pasted, std::span(before).subspan(at), master);
}

std::string FindReading(std::string_view text) {
    while (!text.empty()) {
        std::string_view const cell = text.substr(0, text.find_first_of("\t\r\n"));
        if (std::string reading = FindCellReading(cell); !reading.empty()) {
            return reading;
        }
        text.remove_prefix(std::min(cell.size() + 1, text.size()));
    }
    return {};
}

} // namespace quorvex::editor::tables
