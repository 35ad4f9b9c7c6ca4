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
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::editor::tables {

namespace {

constexpr std::size_t MostTold = 10;

imports::Sample SampleOf(imports::TableText const& table) {
    return imports::ReadSample(table.FirstPart(), table.IsWhole(), std::nullopt);
}

std::vector<std::string_view> SplitAt(char mark, std::string_view text) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(mark); end != std::string_view::npos; end = text.find(mark)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

// A decimal comma would be read as a mark of thousands.
bool HasOddComma(std::string_view cell) {
    constexpr std::size_t Group = 3;
    auto const parts = SplitAt(',', cell.substr(0, cell.find('.')));
    return std::any_of(parts.begin() + 1, parts.end(),
                       [](std::string_view part) { return part.size() != Group; });
}

bool IsOwnNumber(std::string_view cell) {
    return !HasOddComma(cell) && !text::Trap([&] { static_cast<void>(text::StrictNumber(cell)); });
}

// Whether the grid takes the cells of a row of quotes as they stand. A remark in place of a number is one of
// the grid's own.
bool IsOwnRow(imports::SampleRow const& row, std::string_view line) {
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    auto const cells = SplitAt('\t', line);
    if (cells.size() > static_cast<std::size_t>(Sheet::Columns) || cells.size() != row.Cells.size() ||
        !text::ParseDate(cells.front())) {
        return false;
    }
    bool isOwn = true;
    for (std::size_t cell = 1; cell < cells.size(); ++cell) {
        isOwn = isOwn && (!imports::LooksLikeNumber(row.Cells[cell]) || IsOwnNumber(cells[cell]));
    }
    return isOwn;
}

bool IsOwnBlock(imports::Sample const& sample, std::string_view text) {
    auto const lines = SplitAt('\n', text);
    return sample.SeparatedBy == imports::Separator::Tab &&
           imports::MakePlan(sample, imports::Encoding::Utf8, {}).HeadLines.empty() &&
           std::ranges::all_of(sample.Rows, [&](imports::SampleRow const& row) {
               return !imports::LooksLikeQuotes(row) ||
                      (row.Line <= lines.size() && IsOwnRow(row, lines[row.Line - 1]));
           });
}

void TellRefusal(std::string const& cause, platform::Dialogs& dialogs) {
    dialogs.Show({"The table was not pasted.\n" + cause, "Edit", platform::Icon::Exclamation});
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
    imports::Plan const plan = imports::MakePlan(SampleOf(table), imports::Encoding::Utf8, {});
    return imports::ConvertTable(table.Whole(), plan, {});
}

} // namespace

bool IsTable(std::string_view text) {
    text::TextSource source(text);
    imports::TableText const table(source, imports::Encoding::Utf8);
    imports::Sample const sample = SampleOf(table);
    return std::ranges::any_of(sample.Rows, imports::LooksLikeQuotes) && !IsOwnBlock(sample, text);
}

bool PasteTable(Editor& editor, std::int16_t row, std::string_view text, settings::Settings const& settings,
                platform::Dialogs& dialogs) {
    imports::Conversion const table = Read(text);
    if (std::string const refusal = FindRefusal(table, row); !refusal.empty()) {
        TellRefusal(refusal, dialogs);
        return false;
    }
    ShownNumbers const shown(settings);
    EditRows rows = RowsOf(editor);
    auto at = static_cast<std::size_t>(row - 1);
    rows.resize(std::max(rows.size(), at + table.Days.size()));
    for (imports::DayQuote const& day : table.Days) {
        rows[at++] = RowOf(day, shown);
    }
    SetRows(editor, rows);
    editor.Grid.GotoCell(row, DateColumn);
    if (table.LeftOut.Count > 0) {
        TellLeftOut(table.LeftOut, dialogs);
    }
    return true;
}

} // namespace quorvex::editor::tables
