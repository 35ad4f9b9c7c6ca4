// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Plan.h"

#include "import/basBars.h"
#include "import/basColumns.h"
#include "import/basTableDates.h"
#include "import/basTableNumbers.h"
#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <utility>

namespace quorvex::imports {

namespace {

using Rows = std::span<SampleRow const>;

constexpr std::array<DateOrder, 3> AllOrders = {DateOrder::YearMonthDay, DateOrder::MonthDayYear,
                                                DateOrder::DayMonthYear};
constexpr std::size_t MostOfHeading = 200; // bytes that are told
constexpr std::array<Role, 4> PriceRoles = {Role::Open, Role::High, Role::Low, Role::Close};
constexpr std::array<DecimalMark, 2> AllMarks = {DecimalMark::Point, DecimalMark::Comma};

// The parts that a sample has from top to bottom, each possibly empty.
struct Parts {
    Rows Notes;
    Rows Head;
    Rows Quotes;
};

bool HasDay(SampleRow const& row) {
    return std::ranges::any_of(row.Cells, [](std::string const& cell) { return IsTableDay(cell); });
}

// Single letters count where there are enough of them for open, high, low and close.
std::ptrdiff_t CountKnownHeadings(SampleRow const& row) {
    auto const known = std::ranges::count_if(row.Cells, IsKnownHeading);
    auto const letters = std::ranges::count_if(
        row.Cells, [](std::string const& cell) { return cell.size() == 1 && IsKnownHeading(cell); });
    return letters >= 4 ? known : known - letters;
}

// The first line of two headings above the first quotes begins the head.
Parts FindParts(Rows rows) {
    auto const isQuotes = [](SampleRow const& row) { return row.Cells.size() >= FewestCells && HasDay(row); };
    auto const firstGood = std::ranges::find_if(rows, LooksLikeQuotes);
    auto const head = std::find_if(rows.begin(), firstGood,
                                   [](SampleRow const& row) { return CountKnownHeadings(row) >= 2; });
    auto const quotes = std::find_if(head == firstGood ? rows.begin() : head, firstGood, isQuotes);
    auto const before = static_cast<std::size_t>(std::min(head, quotes) - rows.begin());
    auto const above = static_cast<std::size_t>(quotes - rows.begin());
    return {rows.first(before), rows.subspan(before, above - before), rows.subspan(above)};
}

std::size_t FilledWidth(SampleRow const& row) {
    auto const last = std::find_if_not(row.Cells.rbegin(), row.Cells.rend(),
                                       [](std::string const& cell) { return cell.empty(); });
    return static_cast<std::size_t>(row.Cells.rend() - last);
}

std::size_t WidthOf(Rows rows) {
    std::size_t width = 0;
    for (SampleRow const& row : rows) {
        width = std::max(width, FilledWidth(row));
    }
    return width;
}

std::string HeadingOf(Rows head, std::size_t column) {
    std::string heading;
    for (SampleRow const& row : head) {
        if (column < row.Cells.size() && !row.Cells[column].empty()) {
            heading.append(heading.empty() ? "" : " ").append(Shown(row.Cells[column], MostOfHeading));
        }
    }
    return heading;
}

// When most rows are wider than the head, they would be read under the wrong headings.
std::optional<Refusal> TakeColumns(Plan& plan, Parts const& parts) {
    std::size_t const headWidth = WidthOf(parts.Head);
    auto const isWide = [&](SampleRow const& row) {
        return headWidth > 0 && LooksLikeQuotes(row) && FilledWidth(row) > headWidth;
    };
    auto const wideCount = static_cast<std::size_t>(std::ranges::count_if(parts.Quotes, isWide));
    plan.Columns.resize(headWidth > 0 ? headWidth : WidthOf(parts.Quotes));
    for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
        plan.Columns[column].Heading = HeadingOf(parts.Head, column);
    }
    if (wideCount * 2 > parts.Quotes.size()) {
        auto const wide = std::ranges::find_if(parts.Quotes, isWide);
        return Refusal{{wide->Line, "The row has " + std::to_string(FilledWidth(*wide)) + " cells under " +
                                        std::to_string(headWidth) + " headings"},
                       Choice::Separator};
    }
    return std::nullopt;
}

std::string At(std::string_view cell, std::uint64_t line) {
    return Shown(cell, MostOfHeading) + " at line " + std::to_string(line);
}

// A cell that only one of two readings allows.
struct Witness {
    std::string Cell;
    std::uint64_t Line = 0;

    [[nodiscard]] bool IsSet() const { return Line > 0; }
};

void TestifyOnce(Witness& witness, SampleRow const& row, std::string const& cell) {
    if (!witness.IsSet()) {
        witness = {cell, row.Line};
    }
}

Figure FigureOf(std::string const& cell, DecimalMark mark, std::optional<int> fraction) {
    FigureForm form;
    form.Decimal = mark;
    form.IsPrice = true;
    form.Fraction = fraction.value_or(form.Fraction);
    return ReadFigure(cell, form);
}

// Columns whose cells are numbers, whichever the mark, and are no dates.
std::vector<std::size_t> NumberColumns(Rows rows, std::size_t width) {
    std::vector<std::size_t> columns;
    for (std::size_t column = 0; column < width; ++column) {
        std::size_t filled = 0;
        std::size_t numbers = 0;
        for (SampleRow const& row : rows) {
            if (column < row.Cells.size() && !row.Cells[column].empty()) {
                ++filled;
                std::string const& cell = row.Cells[column];
                bool const isDay = cell.find_first_of("/-.") != std::string::npos && IsTableDay(cell);
                numbers += !isDay && LooksLikeNumber(cell) ? 1U : 0U;
            }
        }
        if (numbers > 0 && numbers * 2 >= filled) {
            columns.push_back(column);
        }
    }
    return columns;
}

// All number columns testify, those that are not used too: a change of +0.5 tells how prices are written.
std::optional<Refusal> FindDecimalMark(Plan& plan, Rows rows, Choices const& choices) {
    plan.Decimals.assign(AllMarks.begin(), AllMarks.end());
    if (choices.Decimal) {
        plan.Decimals = {*choices.Decimal};
        plan.DecimalReason = ReasonChosen;
        plan.IsDecimalChosen = true;
        return std::nullopt;
    }
    std::array<Witness, 2> only;
    auto const columns = NumberColumns(rows, WidthOf(rows));
    for (SampleRow const& row : rows) {
        for (std::size_t const column : columns) {
            if (column >= row.Cells.size()) {
                continue;
            }
            std::string const& cell = row.Cells[column];
            bool const byPoint =
                FigureOf(cell, DecimalMark::Point, choices.Fraction).State == FigureState::Number;
            bool const byComma =
                FigureOf(cell, DecimalMark::Comma, choices.Fraction).State == FigureState::Number;
            if (byPoint != byComma) {
                TestifyOnce(only.at(byPoint ? 0 : 1), row, cell);
            }
        }
    }
    if (only[0].IsSet() && only[1].IsSet()) {
        return Refusal{{0, "The decimal mark is a point in " + At(only[0].Cell, only[0].Line) +
                               " and a comma in " + At(only[1].Cell, only[1].Line)},
                       Choice::Decimal};
    }
    for (std::size_t mark = 0; mark < only.size(); ++mark) {
        if (only.at(mark).IsSet()) {
            plan.Decimals = {AllMarks.at(mark)};
            plan.DecimalReason = At(only.at(mark).Cell, only.at(mark).Line);
        }
    }
    return std::nullopt;
}

// The cells of the column that are days in any order.
std::vector<std::string_view> DaysOf(Rows rows, std::size_t column) {
    std::vector<std::string_view> cells;
    for (SampleRow const& row : rows) {
        if (column < row.Cells.size() && IsTableDay(row.Cells[column])) {
            cells.push_back(row.Cells[column]);
        }
    }
    return cells;
}

bool AllAllow(std::vector<std::string_view> const& cells, DateOrder order) {
    return std::ranges::all_of(cells,
                               [&](std::string_view cell) { return ReadTableDay(cell, order).has_value(); });
}

bool MeanTheSame(std::vector<std::string_view> const& cells, DateOrder left, DateOrder right) {
    return std::ranges::all_of(cells, [&](std::string_view cell) {
        return ReadTableDay(cell, left)->Day == ReadTableDay(cell, right)->Day;
    });
}

bool AreInOrder(std::vector<std::string_view> const& cells, DateOrder order) {
    bool rises = true;
    bool falls = true;
    for (std::size_t index = 1; index < cells.size(); ++index) {
        auto const before = ReadTableDay(cells[index - 1], order)->Day;
        auto const day = ReadTableDay(cells[index], order)->Day;
        rises = rises && day >= before;
        falls = falls && day <= before;
    }
    return rises || falls;
}

bool AreOfEachDay(std::vector<std::string_view> const& cells, DateOrder order) {
    std::vector<text::CalendarDay> days;
    std::ranges::transform(cells, std::back_inserter(days),
                           [&](std::string_view cell) { return ReadTableDay(cell, order)->Day; });
    int const apart = MedianDistance(std::move(days));
    return apart > 0 && apart <= MostOfDaily;
}

using OrderTest = bool (*)(std::vector<std::string_view> const&, DateOrder);

// Drops the orders with the year on the side of which none passes the test. Returns whether there was one.
bool SettleYearBy(OrderTest test, std::vector<DateOrder>& orders,
                  std::vector<std::string_view> const& cells) {
    bool const yearFirst = test(cells, orders.front());
    bool const yearLast =
        std::any_of(orders.begin() + 1, orders.end(), [&](DateOrder order) { return test(cells, order); });
    if (yearFirst != yearLast) {
        orders.erase(orders.begin() + (yearFirst ? 1 : 0), yearFirst ? orders.end() : orders.begin() + 1);
    }
    return yearFirst != yearLast;
}

// With two digits for the year 19/11/05 can be three days, and 19-Nov-05 two. Whether the year comes first is
// told by the order of the rows, or because the days are years apart otherwise; month and day are never told
// by that. Returns by what it was told.
std::string SettleYearFirst(std::vector<DateOrder>& orders, std::vector<std::string_view> const& cells) {
    constexpr std::size_t FewestRows = 10;
    if (orders.size() < 2 || orders.front() != DateOrder::YearMonthDay) {
        return {};
    }
    if (cells.size() >= FewestRows && SettleYearBy(AreInOrder, orders, cells)) {
        return "the rows are in order";
    }
    return SettleYearBy(AreOfEachDay, orders, cells) ? "the days follow each other" : "";
}

// Of orders in which all dates mean the same one is enough: that in which they are written.
void DropEqualOrders(std::vector<DateOrder>& orders, std::vector<std::string_view> const& cells) {
    if (auto const written = cells.empty() ? std::nullopt : OrderAsWritten(cells.front())) {
        std::stable_partition(orders.begin(), orders.end(),
                              [&](DateOrder order) { return order == *written; });
    }
    for (std::size_t kept = 0; kept < orders.size(); ++kept) {
        auto const isSame = [&](DateOrder order) { return MeanTheSame(cells, orders[kept], order); };
        orders.erase(
            std::remove_if(orders.begin() + static_cast<std::ptrdiff_t>(kept) + 1, orders.end(), isSame),
            orders.end());
    }
}

Refusal MixedOrders(std::vector<std::string_view> const& cells) {
    auto const except = [&](DateOrder order) {
        return *std::ranges::find_if(cells,
                                     [&](std::string_view cell) { return !ReadTableDay(cell, order); });
    };
    return {{0, "The dates have no common order: " + std::string(except(DateOrder::DayMonthYear)) + " and " +
                    std::string(except(DateOrder::MonthDayYear))},
            Choice::DateOrder};
}

std::optional<Refusal> FindDateOrder(Plan& plan, Rows rows, std::size_t column) {
    auto const cells = DaysOf(rows, column);
    std::vector<DateOrder> allowed;
    std::ranges::copy_if(plan.DateOrders, std::back_inserter(allowed),
                         [&](DateOrder order) { return AllAllow(cells, order); });
    if (plan.IsDateChosen) {
        return std::nullopt;
    }
    if (allowed.empty()) {
        return MixedOrders(cells);
    }
    bool const areSame = allowed.size() > 1 && std::ranges::all_of(allowed, [&](DateOrder order) {
                             return MeanTheSame(cells, allowed.front(), order);
                         });
    std::string const reason = areSame ? "the dates tell it themselves" : SettleYearFirst(allowed, cells);
    DropEqualOrders(allowed, cells);
    plan.DateOrders = allowed;
    if (allowed.size() == 1) {
        plan.DateReason = reason.empty() ? "no other order fits all rows" : reason;
    }
    return std::nullopt;
}

// One of the two forms of a contract's month: Z2003 has prices, z2003 the volume of the day before.
bool IsVolumeContract(std::string_view cell) {
    constexpr std::string_view Months = "fghjkmnquvxz";
    constexpr std::size_t Length = 5;
    return cell.size() == Length && Months.find(cell.front()) != std::string_view::npos &&
           std::ranges::all_of(cell.substr(1), text::IsDigit);
}

void FindVolumeLines(Plan& plan, Rows rows) {
    for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
        plan.HasVolumeLines =
            plan.HasVolumeLines ||
            (plan.Columns[column].Is == Role::Symbol && std::ranges::any_of(rows, [&](SampleRow const& row) {
                 return column < row.Cells.size() && IsVolumeContract(row.Cells[column]);
             }));
    }
}

// A price such as 411'2s is read without its mark, which the plan has to tell.
void TellSettlementMarks(Plan& plan, Rows rows) {
    for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
        ColumnPlan& there = plan.Columns[column];
        bool const isPrice = std::ranges::find(PriceRoles, there.Is) != PriceRoles.end();
        if (isPrice && std::ranges::any_of(rows, [&](SampleRow const& row) {
                return column < row.Cells.size() &&
                       FigureOf(row.Cells[column], plan.Decimals.front(), plan.Fraction).HasSettlementMark;
            })) {
            there.Reason += ", without the mark s of settlements";
        }
    }
}

void TakeOrders(Plan& plan, Choices const& choices) {
    plan.DateOrders.assign(AllOrders.begin(), AllOrders.end());
    if (choices.DateOrder) {
        plan.DateOrders = {*choices.DateOrder};
        plan.DateReason = ReasonChosen;
        plan.IsDateChosen = true;
    }
}

// What is settled first is needed by what follows.
std::optional<Refusal> FindOut(Plan& plan, Sample const& sample, Choices const& choices) {
    Parts const parts = FindParts(sample.Rows);
    for (SampleRow const& note : parts.Notes) {
        plan.Notes.push_back({note.Line, note.Cells.front()});
    }
    for (SampleRow const& row : parts.Head) {
        plan.HeadLines.push_back(row.Line);
    }
    plan.FirstLine = parts.Quotes.empty() ? 0 : parts.Quotes.front().Line;
    TakeOrders(plan, choices);
    if (auto refusal = TakeColumns(plan, parts)) {
        return refusal;
    }
    if (auto refusal = FindDecimalMark(plan, parts.Quotes, choices)) {
        return refusal;
    }
    auto refusal = AssignRoles(plan, parts.Head, parts.Quotes, choices,
                               [&](std::size_t column) { return FindDateOrder(plan, parts.Quotes, column); });
    FindVolumeLines(plan, parts.Quotes);
    TellSettlementMarks(plan, parts.Quotes);
    return refusal;
}

} // namespace

std::optional<std::size_t> Plan::Find(Role role) const {
    auto const found = std::ranges::find(Columns, role, &ColumnPlan::Is);
    return found == Columns.end() ? std::nullopt
                                  : std::optional(static_cast<std::size_t>(found - Columns.begin()));
}

Plan MakePlan(Sample const& sample, Encoding encoding, Choices const& choices) {
    Plan plan;
    plan.EncodedIn = encoding;
    plan.SeparatedBy = sample.SeparatedBy;
    plan.Fraction = choices.Fraction;
    plan.TakesAnyBars = choices.TakesAnyBars;
    if (choices.Symbol) {
        plan.Symbol = text::UpperCase(*choices.Symbol);
    }
    plan.Refused = sample.Refused;
    if (!plan.Refused) {
        plan.Refused = FindOut(plan, sample, choices);
    }
    return plan;
}

} // namespace quorvex::imports
