// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basDoubts.h"

#include "import/basBars.h"
#include "import/basTableDates.h"
#include "import/basTableNumbers.h"
#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basNumbers.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>

namespace quorvex::imports {

namespace {

std::string The(Role role) {
    return "the " + std::string(NameOf(role));
}

std::string_view CellOf(RowCells const& cells, Role role) {
    if (role == Role::Date) {
        return cells.Date;
    }
    auto const found = std::ranges::find(FigureRoles, role);
    return found == FigureRoles.end()
               ? std::string_view()
               : cells.Figures.at(static_cast<std::size_t>(found - FigureRoles.begin()));
}

// A letter behind a price is a mark of the vendor's.
std::string WhyNoNumber(std::string_view cell, Role role) {
    bool const isPrice = std::find(FigureRoles.begin(), FigureRoles.begin() + PriceCount, role) !=
                         FigureRoles.begin() + PriceCount;
    char const mark = cell.empty() ? ' ' : text::UpperCase(cell.back());
    bool const isMarked =
        isPrice && cell.size() > 1 && text::IsDigit(cell[cell.size() - 2]) && mark >= 'A' && mark <= 'Z';
    return isMarked ? std::string(": of the marks behind a price only the s of a settlement is known") : "";
}

// Whether no day is a Friday or Saturday, but some are Sundays and Mondays.
bool AreShifted(std::vector<DayQuote> const& days) {
    std::array<std::size_t, 8> weekdays{}; // from Monday, 1, on
    for (DayQuote const& quote : days) {
        ++weekdays.at(std::chrono::weekday(quote.Day).iso_encoding());
    }
    return weekdays[5] == 0 && weekdays[6] == 0 && weekdays[7] > 0 && weekdays[1] > 0;
}

} // namespace

std::string Quoted(std::string_view cell) {
    constexpr std::size_t MostShown = 40;
    return "\"" + Shown(cell, MostShown) + "\"";
}

std::string WhyLeftOut(RowResult const& result, RowCells const& cells) {
    std::string const cell = Quoted(CellOf(cells, result.Of));
    switch (result.Kind) {
    case RowKind::NoDay:
        return cell + " is no date";
    case RowKind::NoYear:
        return cell + " is no day of 1950 to 2049";
    case RowKind::NoFigure:
        return The(result.Of) + " " + cell + " is no number" +
               WhyNoNumber(CellOf(cells, result.Of), result.Of);
    case RowKind::NoPrice:
        return The(result.Of) + " is missing";
    case RowKind::NotPositive:
        return The(result.Of) + " " + cell + " is not above zero";
    case RowKind::Negative:
        return The(result.Of) + " " + cell + " is below zero";
    case RowKind::OutOfRange:
        return result.Of == Role::High ? "the high is below the low"
                                       : The(result.Of) + " " + cell + " lies outside of high and low";
    case RowKind::Unsuited:
        return "the prices are beyond what a quote file can hold";
    default:
        return {};
    }
}

std::optional<Refusal> RefuseRow(RowResult const& result, RowCells const& cells) {
    if (result.NeedsFraction) {
        return Refusal{
            {cells.Line, Quoted(CellOf(cells, result.Of)) + " is a fraction of a kind that is not told"},
            Choice::Fraction};
    }
    std::string const again = "The day of line " + std::to_string(result.OtherLine) + " again ";
    if (result.Kind == RowKind::Intraday) {
        return Refusal{{cells.Line, again + "at another time: rows of less than a day. Download daily ones"},
                       Choice::None};
    }
    if (result.Kind == RowKind::Conflict) {
        return Refusal{{cells.Line, again + "with other figures: take one of both rows out"}, Choice::None};
    }
    return std::nullopt;
}

std::optional<Refusal> RefuseContradiction(Plan const& plan, Reading const& reading, RowResult const& result,
                                           RowCells const& cells) {
    std::string_view const cell = CellOf(cells, result.Of);
    if (result.Kind == RowKind::NoDay && !plan.IsDateChosen && HasDayBeforeMonth(cell)) {
        return Refusal{{cells.Line, Quoted(cell) + " has the day in front of the month, behind the year"},
                       Choice::DateOrder};
    }
    if (result.Kind == RowKind::NoDay && !plan.IsDateChosen && IsTableDay(cell)) {
        return Refusal{{cells.Line, Quoted(cell) + " does not have the order of the other dates: " +
                                        std::string(NameOf(reading.Order()))},
                       Choice::DateOrder};
    }
    if (result.Kind == RowKind::NoFigure && !plan.IsDecimalChosen) {
        FigureForm other;
        other.Decimal = reading.Mark() == DecimalMark::Point ? DecimalMark::Comma : DecimalMark::Point;
        if (ReadFigure(cell, other).State == FigureState::Number) {
            return Refusal{{cells.Line, Quoted(cell) +
                                            " does not have the decimal mark of the other numbers: " +
                                            std::string(NameOf(reading.Mark()))},
                           Choice::Decimal};
        }
    }
    return std::nullopt;
}

std::optional<Refusal> RefuseTurn(text::CalendarDay before, text::CalendarDay day, RowCells const& cells) {
    // Nobody has such a gap in his quotes.
    constexpr std::chrono::days Turn{90 * 365};
    if (std::chrono::abs(day - before) <= Turn) {
        return std::nullopt;
    }
    return Refusal{{cells.Line, Quoted(cells.Date) +
                                    " is a century away from the day before: years of two digits "
                                    "are 1950 to 2049. Take the days of one side alone"},
                   Choice::None};
}

Refusal RefuseDoubt(Reading const& left, Reading const& right, DateExample const& date) {
    if (left.Order() != right.Order()) {
        return {{date.Line, Quoted(date.Cell) + " and all other dates can be " +
                                std::string(NameOf(left.Order())) + " or " +
                                std::string(NameOf(right.Order()))},
                Choice::DateOrder};
    }
    auto const days = left.Days();
    auto const others = right.Days();
    for (std::size_t day = 0; day < std::min(days.size(), others.size()); ++day) {
        for (std::size_t index = 0; index < FigureCount; ++index) {
            double const one = days[day].Figures.at(index);
            double const other = others[day].Figures.at(index);
            if (one != other) {
                return {{days[day].Line, The(FigureRoles.at(index)) + " can be " + text::PlainNumber(one) +
                                             " or " + text::PlainNumber(other)},
                        Choice::Decimal};
            }
        }
    }
    return {{0, "The decimal mark can be a point or a comma"}, Choice::Decimal};
}

std::optional<Refusal> RefuseDays(Plan const& plan, Reading const& reading, std::vector<DayQuote> const& days,
                                  int daysApart) {
    if (reading.AreAllTimed() && AreShifted(days)) {
        return Refusal{
            {days.front().Line,
             "The dates with their times are Sundays to Thursdays: in the zone of the market each of "
             "them is the day behind. Download dates without times"},
            Choice::None};
    }
    if (std::uint64_t const line = reading.OpenTicksLine(); line > 0 && !plan.Fraction) {
        return Refusal{{line, "The price can have a thousands mark or a fraction"}, Choice::Fraction};
    }
    if (daysApart > MostOfDaily && !plan.TakesAnyBars) {
        return Refusal{{0, DescribeBars(daysApart)}, Choice::Bars};
    }
    return std::nullopt;
}

} // namespace quorvex::imports
