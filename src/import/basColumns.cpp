// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basColumns.h"

#include "import/ColumnNames.h"
#include "import/basTableDates.h"
#include "import/basTableNumbers.h"
#include "import/basWords.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace quorvex::imports {

namespace {

constexpr std::array<Role, 4> Prices = {Role::Open, Role::High, Role::Low, Role::Close};

// What stands in a column.
struct ColumnFacts {
    std::size_t Filled = 0;
    std::size_t Days = 0;      // that are not digits alone
    std::size_t DigitDays = 0; // that are
    std::size_t Times = 0;
    std::size_t DigitTimes = 0;
    std::size_t Weekdays = 0;
    std::size_t Numbers = 0;
    std::size_t Digits = 0;   // numbers of digits alone
    std::size_t Distinct = 0; // different texts

    [[nodiscard]] bool AreMost(std::size_t count) const { return Filled > 0 && count * 5 >= Filled * 4; }

    [[nodiscard]] bool HoldsNumbers() const { return AreMost(Numbers); }

    // Whether each text stands in several rows, as the name of a contract does.
    [[nodiscard]] bool AreRepeated() const { return Distinct == 1 || Distinct * 4 <= Filled; }
};

bool IsMissingCell(std::string_view cell) {
    return ReadFigure(cell, {}).State == FigureState::Missing;
}

ColumnFacts FactsOf(std::span<SampleRow const> rows, std::size_t column) {
    ColumnFacts facts;
    std::set<std::string_view> texts;
    for (SampleRow const& row : rows) {
        if (column >= row.Cells.size() || IsMissingCell(row.Cells[column])) {
            continue;
        }
        std::string const& cell = row.Cells[column];
        ++facts.Filled;
        if (IsTableDay(cell)) {
            ++(AreDigits(cell) ? facts.DigitDays : facts.Days);
        }
        facts.Times += IsTimeOfDay(cell) ? 1U : 0U;
        facts.DigitTimes += IsTimeInDigits(cell) ? 1U : 0U;
        facts.Weekdays += IsWeekday(cell) ? 1U : 0U;
        facts.Numbers += LooksLikeNumber(cell) ? 1U : 0U;
        facts.Digits += AreDigits(cell) ? 1U : 0U;
        texts.insert(cell);
    }
    facts.Distinct = texts.size();
    return facts;
}

// What the heads say above the column.
std::vector<std::string> FoldedLevels(std::span<SampleRow const> head, std::size_t column) {
    std::vector<std::string> levels;
    for (SampleRow const& row : head) {
        if (column < row.Cells.size()) {
            levels.push_back(FoldWords(row.Cells[column]));
        }
    }
    return levels;
}

// Works on one plan.
class RoleFinder {
public:
    RoleFinder(Plan& plan, std::span<SampleRow const> head, std::span<SampleRow const> rows)
        : plan_(plan),
          rows_(rows) {
        for (std::size_t column = 0; column < plan.Columns.size(); ++column) {
            facts_.push_back(FactsOf(rows, column));
            levels_.push_back(FoldedLevels(head, column));
        }
    }

    std::optional<Refusal> TakeChosen(Choices const& choices);
    std::optional<Refusal> FindDay();
    std::optional<Refusal> FindByHeadings();
    std::optional<Refusal> FindByContent();
    void FindNames(bool hasHead);
    [[nodiscard]] std::optional<Refusal> RequireAll() const;

private:
    [[nodiscard]] std::optional<Refusal> FindOpenFraction() const;

    [[nodiscard]] ColumnPlan& Column(std::size_t index) { return plan_.Columns[index]; }

    [[nodiscard]] bool IsFree(std::size_t column) const {
        return plan_.Columns[column].Is == Role::Unused && plan_.Columns[column].Reason.empty();
    }

    void Give(std::size_t column, Role role, std::string reason) {
        Column(column).Is = role;
        Column(column).Reason = std::move(reason);
    }

    // The column as a user counts it, with its heading.
    [[nodiscard]] std::string NumberedColumn(std::size_t column) const {
        std::string text = std::to_string(column + 1);
        std::string const& heading = plan_.Columns[column].Heading;
        return heading.empty() ? text : text.append(" (").append(heading).append(")");
    }

    [[nodiscard]] int RankOf(std::size_t column, Role role) const;
    [[nodiscard]] bool Fits(std::size_t column, Role role) const;
    [[nodiscard]] std::vector<std::size_t> ColumnsNamed(std::string_view name) const;
    [[nodiscard]] static Refusal TwoCandidates(Role role, std::string const& first,
                                               std::string const& second);

    std::optional<Refusal> FindByHeading(Role role);
    void TellOthers(std::size_t taken, Role role);
    std::optional<Refusal> FindDayByContent();
    std::optional<Refusal> FindPricesByContent(std::size_t day);
    std::optional<Refusal> FindCountsByContent(std::size_t close);
    [[nodiscard]] bool ArePrices(std::size_t first, DecimalMark mark) const;

    struct DayPrices {
        text::CalendarDay Day;
        double First = 0;
        double Fourth = 0;
    };

    [[nodiscard]] bool ClosesLookLikeOpens(std::size_t first) const;
    [[nodiscard]] std::vector<DayPrices> PricesByDay(std::size_t first) const;
    [[nodiscard]] bool AreCounts(std::size_t column, DecimalMark mark) const;
    [[nodiscard]] bool AreTotals(std::size_t whole, std::size_t part) const;
    [[nodiscard]] std::optional<double> NumberAt(SampleRow const& row, std::size_t column,
                                                 DecimalMark mark) const;

    // Whether it holds under a decimal mark that is still possible.
    template <class Test>
    [[nodiscard]] bool UnderAnyMark(Test test) const {
        return std::ranges::any_of(plan_.Decimals, test);
    }

    Plan& plan_;
    std::span<SampleRow const> rows_;
    std::vector<ColumnFacts> facts_;
    std::vector<std::vector<std::string>> levels_; // of the heading of each column
};

Refusal RoleFinder::TwoCandidates(Role role, std::string const& first, std::string const& second) {
    return {
        {0, "Column " + first + " and column " + second + " can both be the " + std::string(NameOf(role))},
        Choice::Columns};
}

std::vector<std::size_t> RoleFinder::ColumnsNamed(std::string_view name) const {
    std::vector<std::size_t> found;
    std::string const folded = FoldWords(name);
    bool const isNumber = !name.empty() && name.size() < 4 && AreDigits(name);
    for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
        auto const& levels = levels_[column];
        if (isNumber ? name == std::to_string(column + 1)
                     : std::ranges::find(levels, folded) != levels.end() ||
                           FoldWords(plan_.Columns[column].Heading) == folded) {
            found.push_back(column);
        }
    }
    return found;
}

std::optional<Refusal> RoleFinder::TakeChosen(Choices const& choices) {
    for (ColumnChoice const& choice : choices.Columns) {
        auto const found = ColumnsNamed(choice.Column);
        if (found.size() != 1) {
            return Refusal{
                {0, (found.empty() ? "There is no column " : "There are several columns ") + choice.Column},
                Choice::Columns};
        }
        auto const holder =
            choice.Is == Role::Unused || choice.Is == Role::Symbol ? std::nullopt : plan_.Find(choice.Is);
        if (holder && *holder != found.front()) {
            return TwoCandidates(choice.Is, NumberedColumn(*holder), NumberedColumn(found.front()));
        }
        Give(found.front(), choice.Is, std::string(ReasonChosen));
    }
    for (std::size_t column = 0; choices.OnlyChosenColumns && column < plan_.Columns.size(); ++column) {
        if (IsFree(column)) {
            Give(column, Role::Unused, "not chosen");
        }
    }
    return std::nullopt;
}

// The rank of the column's heading for the role; 0 when it says nothing of it.
int RoleFinder::RankOf(std::size_t column, Role role) const {
    int rank = 0;
    for (std::string const& level : levels_[column]) {
        for (ColumnName const& name : ColumnNames()) {
            if (name.Is == role && name.Heading == level && (rank == 0 || name.Rank < rank)) {
                rank = name.Rank;
            }
        }
    }
    return rank;
}

// Whether what stands in the column can have the role that the heading says; bad cells are told row by row.
bool RoleFinder::Fits(std::size_t column, Role role) const {
    ColumnFacts const& facts = facts_[column];
    switch (role) {
    case Role::Date:
        return facts.Days + facts.DigitDays > 0;
    case Role::Time:
        return !facts.AreMost(facts.Days);
    case Role::Symbol:
        return true;
    default:
        return facts.Filled == 0 || (facts.Numbers > 0 && !facts.AreMost(facts.Days));
    }
}

std::optional<Refusal> RoleFinder::FindByHeading(Role role) {
    if (plan_.Find(role) && role != Role::Symbol) {
        return std::nullopt;
    }
    std::vector<std::size_t> best; // those of the smallest rank
    for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
        int const rank = RankOf(column, role);
        if (rank == 0 || !IsFree(column) || !Fits(column, role)) {
            continue;
        }
        if (role == Role::Symbol) {
            Give(column, role, "heading");
            continue;
        }
        if (!best.empty() && rank < RankOf(best.front(), role)) {
            best.clear();
        }
        if (best.empty() || rank == RankOf(best.front(), role)) {
            best.push_back(column);
        }
    }
    if (best.size() > 1) {
        return TwoCandidates(role, NumberedColumn(best[0]), NumberedColumn(best[1]));
    }
    if (!best.empty()) {
        Give(best.front(), role, "heading");
        TellOthers(best.front(), role);
    }
    return std::nullopt;
}

// Of those that could have the role as well.
void RoleFinder::TellOthers(std::size_t taken, Role role) {
    for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
        if (IsFree(column) && RankOf(column, role) > 0 && Fits(column, role) && role != Role::Date) {
            Give(column, Role::Unused,
                 "the " + std::string(NameOf(role)) + " is column " + NumberedColumn(taken));
        }
    }
}

std::optional<Refusal> RoleFinder::FindByHeadings() {
    for (Role const role : {Role::Open, Role::High, Role::Low, Role::Close, Role::Volume, Role::OpenInterest,
                            Role::Time, Role::Symbol}) {
        if (auto refusal = FindByHeading(role)) {
            return refusal;
        }
    }
    return std::nullopt;
}

std::optional<Refusal> RoleFinder::FindDay() {
    if (auto refusal = FindByHeading(Role::Date)) {
        return refusal;
    }
    return plan_.Find(Role::Date) ? std::nullopt : FindDayByContent();
}

// Dates with signs or names in them go before digits, which can be many things.
std::optional<Refusal> RoleFinder::FindDayByContent() {
    for (auto const kind : {&ColumnFacts::Days, &ColumnFacts::DigitDays}) {
        std::optional<std::size_t> found;
        for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
            if (!IsFree(column) || !facts_[column].AreMost(facts_[column].*kind)) {
                continue;
            }
            if (found) {
                return TwoCandidates(Role::Date, NumberedColumn(*found), NumberedColumn(column));
            }
            found = column;
        }
        if (found) {
            Give(*found, Role::Date, "dates");
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<double> RoleFinder::NumberAt(SampleRow const& row, std::size_t column, DecimalMark mark) const {
    if (column >= row.Cells.size()) {
        return std::nullopt;
    }
    FigureForm form;
    form.Decimal = mark;
    form.IsPrice = true;
    form.Fraction = plan_.Fraction.value_or(form.Fraction);
    Figure const figure = ReadFigure(row.Cells[column], form);
    return figure.State == FigureState::Number ? std::optional(figure.Value) : std::nullopt;
}

// Whether the four columns are open, high, low and close on nearly all rows.
bool RoleFinder::ArePrices(std::size_t first, DecimalMark mark) const {
    std::size_t seen = 0;
    std::size_t good = 0;
    for (SampleRow const& row : rows_) {
        auto const open = NumberAt(row, first, mark);
        auto const high = NumberAt(row, first + 1, mark);
        auto const low = NumberAt(row, first + 2, mark);
        auto const close = NumberAt(row, first + 3, mark);
        if (open && high && low && close) {
            ++seen;
            // A bar is never twice as high as it is low: volume and open interest are no prices.
            bool const isBar = *high >= std::max(*open, *close) && *low <= std::min(*open, *close);
            good += isBar && *low > 0 && *high < 2 * *low ? 1U : 0U;
        }
    }
    return seen > 0 && good * 20 >= seen * 19;
}

// A day opens near the close of the day before. Where the fourth column opens and the first one closes, that
// holds the other way round. While the order of the dates is open the days may stand in disorder.
bool RoleFinder::ClosesLookLikeOpens(std::size_t first) const {
    constexpr std::size_t FewestDays = 11;
    auto const days = PricesByDay(first);
    double asNamed = 0;
    double exchanged = 0;
    for (std::size_t day = 1; day < days.size(); ++day) {
        asNamed += std::fabs(days[day].First - days[day - 1].Fourth);
        exchanged += std::fabs(days[day].Fourth - days[day - 1].First);
    }
    double const margin = plan_.DateOrders.size() == 1 ? 1 : 2;
    return days.size() >= FewestDays && exchanged * margin < asNamed;
}

// The first and the fourth of these columns, oldest day first.
std::vector<RoleFinder::DayPrices> RoleFinder::PricesByDay(std::size_t first) const {
    auto const column = *plan_.Find(Role::Date);
    std::vector<DayPrices> days;
    for (SampleRow const& row : rows_) {
        auto const day = column < row.Cells.size() ? ReadTableDay(row.Cells[column], plan_.DateOrders.front())
                                                   : std::nullopt;
        auto const open = NumberAt(row, first, plan_.Decimals.front());
        auto const close = NumberAt(row, first + 3, plan_.Decimals.front());
        if (day && open && close) {
            days.push_back({day->Day, *open, *close});
        }
    }
    std::ranges::stable_sort(days, {}, &DayPrices::Day);
    return days;
}

std::optional<Refusal> RoleFinder::FindPricesByContent(std::size_t day) {
    std::optional<std::size_t> found;
    for (std::size_t first = day + 1; first + 3 < plan_.Columns.size(); ++first) {
        bool const isCandidate = IsFree(first) && IsFree(first + 1) && IsFree(first + 2) &&
                                 IsFree(first + 3) &&
                                 UnderAnyMark([&](DecimalMark mark) { return ArePrices(first, mark); });
        if (isCandidate && found) {
            return TwoCandidates(Role::Open, NumberedColumn(*found), NumberedColumn(first));
        }
        found = isCandidate ? std::optional(first) : found;
    }
    if (!found) {
        return std::nullopt;
    }
    if (ClosesLookLikeOpens(*found)) {
        return TwoCandidates(Role::Open, NumberedColumn(*found), NumberedColumn(*found + 3));
    }
    for (std::size_t index = 0; index < Prices.size(); ++index) {
        Give(*found + index, Prices.at(index), "high and low enclose open and close");
    }
    return std::nullopt;
}

// Whether nearly all numbers of the column are whole and none is below zero.
bool RoleFinder::AreCounts(std::size_t column, DecimalMark mark) const {
    std::size_t seen = 0;
    std::size_t whole = 0;
    for (SampleRow const& row : rows_) {
        if (auto const number = NumberAt(row, column, mark)) {
            ++seen;
            whole += *number >= 0 && *number == std::floor(*number) ? 1U : 0U;
        }
    }
    return seen == 0 ? facts_[column].Filled == 0 : whole * 20 >= seen * 19;
}

bool RoleFinder::AreTotals(std::size_t whole, std::size_t part) const {
    return std::ranges::all_of(rows_, [&](SampleRow const& row) {
        auto const total = NumberAt(row, whole, plan_.Decimals.front());
        auto const one = NumberAt(row, part, plan_.Decimals.front());
        return !total || !one || *total >= *one;
    });
}

// Volume and open interest stand behind the close; behind them may be the totals of all contracts.
std::optional<Refusal> RoleFinder::FindCountsByContent(std::size_t close) {
    std::vector<std::size_t> behind;
    for (std::size_t column = close + 1; column < plan_.Columns.size(); ++column) {
        if (IsFree(column) && facts_[column].HoldsNumbers()) {
            behind.push_back(column);
        }
    }
    bool const isUsual = behind.size() <= 2;
    bool const hasTotals =
        behind.size() == 4 && AreTotals(behind[2], behind[0]) && AreTotals(behind[3], behind[1]);
    if (!(isUsual || hasTotals) || !std::ranges::all_of(behind, [&](std::size_t column) {
            return UnderAnyMark([&](DecimalMark mark) { return AreCounts(column, mark); });
        })) {
        return Refusal{{0, "The columns behind the close are not just volume and open interest"},
                       Choice::Columns};
    }
    if (!behind.empty()) {
        Give(behind[0], Role::Volume, "whole numbers behind the close");
    }
    for (std::size_t index = 2; index < behind.size(); ++index) {
        Give(behind[index], Role::Unused, "never less than column " + std::to_string(behind[index - 2] + 1));
    }
    if (behind.size() > 1) {
        Give(behind[1], Role::OpenInterest, "whole numbers behind the volume");
    }
    return std::nullopt;
}

std::optional<Refusal> RoleFinder::FindByContent() {
    auto const day = plan_.Find(Role::Date);
    if (!day) {
        return std::nullopt;
    }
    for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
        ColumnFacts const& facts = facts_[column];
        if (IsFree(column) && facts.AreMost(facts.Times)) {
            Give(column, Role::Time, "times of day");
        } else if (IsFree(column) && facts.AreMost(facts.Weekdays)) {
            Give(column, Role::Unused, "names of weekdays");
        } else if (IsFree(column) && column < *day && facts.Filled > 0 && !facts.HoldsNumbers()) {
            Give(column, Role::Symbol, "texts in front of the date");
        }
    }
    bool const isNoneChosen =
        std::ranges::none_of(Prices, [&](Role role) { return plan_.Find(role).has_value(); });
    if (isNoneChosen) {
        if (auto refusal = FindPricesByContent(*day)) {
            return refusal;
        }
    }
    auto const close = plan_.Find(Role::Close);
    bool const needCounts = close && !plan_.Find(Role::Volume) && !plan_.Find(Role::OpenInterest);
    return needCounts ? FindCountsByContent(*close) : std::nullopt;
}

// What is left over: texts that repeat can name contracts, and without a head so can digits.
void RoleFinder::FindNames(bool hasHead) {
    for (std::size_t column = 0; column < plan_.Columns.size(); ++column) {
        ColumnFacts const& facts = facts_[column];
        bool const isFilled = facts.Filled > 0 && facts.Filled * 5 >= rows_.size() * 4;
        if (!IsFree(column) || !isFilled || facts.AreMost(facts.Times) || facts.AreMost(facts.Weekdays)) {
            continue;
        }
        bool const isText = !facts.HoldsNumbers() && !facts.AreMost(facts.Days);
        if (facts.AreRepeated() && (isText || (!hasHead && facts.AreMost(facts.Digits)))) {
            Give(column, Role::Symbol, isText ? "texts that repeat" : "numbers that repeat");
        } else if (!hasHead && facts.AreMost(facts.DigitTimes) && !plan_.Find(Role::Time)) {
            Give(column, Role::Time, "times of day");
        }
    }
}

// As long as it is not told what 118-16 is, its column looks like none of prices.
std::optional<Refusal> RoleFinder::FindOpenFraction() const {
    FigureForm form;
    form.IsPrice = true;
    form.Fraction = plan_.Fraction.value_or(form.Fraction);
    for (SampleRow const& row : rows_) {
        auto const found = std::ranges::find_if(
            row.Cells, [&](std::string const& cell) { return ReadFigure(cell, form).NeedsFraction; });
        if (found != row.Cells.end()) {
            constexpr std::size_t MostShown = 40;
            return Refusal{
                {row.Line, "\"" + Shown(*found, MostShown) + "\" is a fraction of a kind that is not told"},
                Choice::Fraction};
        }
    }
    return std::nullopt;
}

std::optional<Refusal> RoleFinder::RequireAll() const {
    for (Role const role : {Role::Date, Role::Open, Role::High, Role::Low, Role::Close}) {
        if (!plan_.Find(role)) {
            if (auto refusal = FindOpenFraction()) {
                return refusal;
            }
            return Refusal{{0, "No column is the " + std::string(NameOf(role))}, Choice::Columns};
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<Refusal> AssignRoles(Plan& plan, std::span<SampleRow const> head,
                                   std::span<SampleRow const> rows, Choices const& choices,
                                   DateSettler const& settleDates) {
    RoleFinder finder(plan, head, rows);
    if (auto refusal = finder.TakeChosen(choices)) {
        return refusal;
    }
    if (auto refusal = finder.FindDay()) {
        return refusal;
    }
    if (auto const day = plan.Find(Role::Date)) {
        if (auto refusal = settleDates(*day)) {
            return refusal;
        }
    }
    if (auto refusal = head.empty() ? finder.FindByContent() : finder.FindByHeadings()) {
        return refusal;
    }
    finder.FindNames(!head.empty());
    return finder.RequireAll();
}

bool IsKnownHeading(std::string_view heading) {
    std::string const folded = FoldWords(heading);
    return std::ranges::any_of(ColumnNames(), [&](ColumnName const& name) { return name.Heading == folded; });
}

} // namespace quorvex::imports
