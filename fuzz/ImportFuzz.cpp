// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the user's choices on a line of their own and behind it a table. A choice is a letter: y, m or
// d for what comes first in dates, "." or "," for the decimal mark, 0, 8 or 3 for the fraction (3 being
// 32nds), and t, s, b, c or w for tabs, semicolons, bars, commas and blanks. The days must be quotes, the
// same however the bytes arrive, and come back from the text of the quote file that is made of them.

#include "ChunkSource.h"
#include "Require.h"
#include "import/basImport.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace quorvex;
using fuzz::Require;
using imports::Choices;
using imports::Conversion;
using imports::DateOrder;
using imports::DayQuote;
using imports::DecimalMark;
using imports::Role;
using imports::Separator;

constexpr std::size_t Most = 500;

Choices ChoicesOf(std::string_view letters) {
    Choices choices;
    for (char const letter : letters) {
        switch (letter) {
        case 'y':
            choices.DateOrder = DateOrder::YearMonthDay;
            break;
        case 'm':
            choices.DateOrder = DateOrder::MonthDayYear;
            break;
        case 'd':
            choices.DateOrder = DateOrder::DayMonthYear;
            break;
        case '.':
            choices.Decimal = DecimalMark::Point;
            break;
        case ',':
            choices.Decimal = DecimalMark::Comma;
            break;
        case '0':
            choices.Fraction = imports::NoFraction;
            break;
        case '8':
            choices.Fraction = 8;
            break;
        case '3':
            choices.Fraction = 32;
            break;
        case 't':
            choices.Separator = Separator::Tab;
            break;
        case 's':
            choices.Separator = Separator::Semicolon;
            break;
        case 'b':
            choices.Separator = Separator::Bar;
            break;
        case 'c':
            choices.Separator = Separator::Comma;
            break;
        case 'w':
            choices.Separator = Separator::Blanks;
            break;
        default:
            break;
        }
    }
    return choices;
}

// What tells a quote file.
Choices QuoteFileChoices() {
    Choices choices = ChoicesOf("m.0c");
    choices.Columns = {{"1", Role::Date},  {"2", Role::Open},   {"3", Role::High},        {"4", Role::Low},
                       {"5", Role::Close}, {"6", Role::Volume}, {"7", Role::OpenInterest}};
    return choices;
}

Conversion Import(std::string_view table, Choices const& choices, std::size_t chunk) {
    fuzz::ChunkSource source(table, chunk);
    return imports::ImportTable(source, choices, {});
}

bool AreSame(std::vector<DayQuote> const& left, std::vector<DayQuote> const& right) {
    return std::ranges::equal(left, right,
                              [](DayQuote const& one, DayQuote const& other) { return one.IsSameAs(other); });
}

void CheckQuote(DayQuote const& quote) {
    auto const year = std::chrono::year_month_day(quote.Day).year();
    Require(year >= std::chrono::year{1950} && year <= std::chrono::year{2049});
    Require(std::ranges::all_of(quote.Figures, [](double figure) { return std::isfinite(figure); }));
    auto const [open, high, low, close, volume, openInterest] = quote.Figures;
    Require(low > 0 && low <= open && low <= close && open <= high && close <= high);
    Require(volume >= 0 && openInterest >= 0);
}

bool HasTurnOfCenturies(std::vector<DayQuote> const& days) {
    return std::ranges::adjacent_find(days, [](DayQuote const& one, DayQuote const& next) {
               return next.Day - one.Day > std::chrono::days(90 * 365);
           }) != days.end();
}

// The text of a quote file holds the days, for the program and for whoever imports it.
void CheckQuoteText(std::vector<DayQuote> const& days) {
    std::string const text = imports::QuoteText(days);
    fuzz::ChunkSource source(text, text.size());
    auto const file = imports::ReadQuoteFileDays(source);
    Require(!file.Refused && file.PassedCount == 0 && AreSame(file.Days, days));
    auto const again = Import(text, QuoteFileChoices(), text.size());
    Require(again.Refused ? HasTurnOfCenturies(days) : AreSame(again.Days, days));
}

// What is in a file already brings nothing new.
void CheckUpdate(Conversion const& conversion) {
    auto const merge = imports::MergeDays(conversion.Days, conversion.Days, true, conversion.Days.size());
    Require(AreSame(merge.Days, conversion.Days) && merge.EqualCount == conversion.Days.size());
    auto const file = imports::MakeQuoteFile(conversion, Most);
    Require(file.Refused.has_value() == (conversion.Days.size() < 25));
    Require(file.Days.size() == std::min(conversion.Days.size(), Most));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    std::size_t const lineEnd = std::min(input.find('\n'), size);
    Choices const choices = ChoicesOf(input.substr(0, lineEnd));
    std::string_view const table = input.substr(std::min(lineEnd + 1, size));
    Conversion const conversion = Import(table, choices, size);
    Conversion const inPieces = Import(table, choices, 61);
    Require(conversion.Refused.has_value() == inPieces.Refused.has_value());
    Require(AreSame(conversion.Days, inPieces.Days) && conversion.RowCount == inPieces.RowCount);
    if (conversion.Refused) {
        Require(!conversion.Refused->Told.Text.empty());
        return 0;
    }
    for (std::size_t day = 0; day < conversion.Days.size(); ++day) {
        CheckQuote(conversion.Days[day]);
        Require(day == 0 || conversion.Days[day - 1].Day < conversion.Days[day].Day);
    }
    if (!conversion.Days.empty()) {
        CheckQuoteText(conversion.Days);
        CheckUpdate(conversion);
    }
    return 0;
}
