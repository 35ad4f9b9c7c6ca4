// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/PlainRows.h"

#include "import/RecordReader.h"
#include "import/basTableDates.h"
#include "text/Characters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace quorvex::imports {

namespace {

// So many digits a double holds exactly, and powers of ten up to there, too.
constexpr std::size_t MostExactDigits = 14;
constexpr std::array<double, MostExactDigits + 1> ExactPowers = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};

constexpr std::ptrdiff_t IsoLength = 10;

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

// Whether the cell could be other than what it looks like: quoted, or with blanks around it.
bool NeedsCare(std::string_view cell) {
    return !cell.empty() && (cell.front() == '"' || cell.front() == text::CtrlZ ||
                             text::IsBlank(cell.front()) || text::IsBlank(cell.back()));
}

// Takes digits with at most one mark between them, up to a character that is none of these. A count must not
// look like the end of one that a comma splits, as 086 does. Returns false for what is no such number.
bool TakePlainNumber(char const*& at, char mark, bool isCount, double& number) {
    char const* const first = at;
    std::uint64_t digits = 0;
    for (; text::IsDigit(*at); ++at) {
        digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    auto const length = static_cast<std::size_t>(at - first);
    bool const isHalf = isCount && length == 3 && *first == '0';
    if (*at != mark) {
        number = static_cast<double>(digits);
        return length > 0 && length <= MostExactDigits && !isHalf;
    }
    char const* const behindMark = ++at;
    for (; text::IsDigit(*at); ++at) {
        digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    auto const decimals = static_cast<std::size_t>(at - behindMark);
    if (length == 0 || decimals == 0 || length + decimals > MostExactDigits) {
        return false;
    }
    number = static_cast<double>(digits) / ExactPowers[decimals];
    return true;
}

} // namespace

PlainRowReader::PlainRowReader(Plan const& plan, DateOrder order, DecimalMark mark)
    : lacksVolume_(!plan.Find(Role::Volume)),
      lacksOpenInterest_(!plan.Find(Role::OpenInterest)),
      order_(order),
      separator_(MarkOf(plan.SeparatedBy)),
      mark_(mark == DecimalMark::Point ? '.' : ',') {
    bool const canBePlain = plan.SeparatedBy != Separator::Blanks && separator_ != mark_ &&
                            !plan.Find(Role::Time) && !plan.Find(Role::Symbol);
    for (std::size_t column = 0; canBePlain && column < plan.Columns.size(); ++column) {
        Role const role = plan.Columns[column].Is;
        auto const figure = std::ranges::find(FigureRoles, role);
        columns_.push_back({role, static_cast<std::size_t>(figure - FigureRoles.begin())});
    }
}

// Where the cell ends.
char const* PlainRowReader::FindEnd(char const* at) const {
    while (*at != separator_ && !IsLineEnd(*at)) {
        ++at;
    }
    return at;
}

bool PlainRowReader::TakeDate(char const*& at, char const* end, PlainRow& row) const {
    bool const isIsoLong = end - at > IsoLength && at[IsoLength] == separator_;
    char const* const first = at;
    at = isIsoLong ? at + IsoLength : FindEnd(at);
    row.Date = {first, static_cast<std::size_t>(at - first)};
    if (auto const day = isIsoLong ? ReadIsoDay(row.Date) : std::nullopt) {
        row.Quote.Day = *day;
        return true;
    }
    at = FindEnd(first);
    row.Date = {first, static_cast<std::size_t>(at - first)};
    auto const day = NeedsCare(row.Date) ? std::nullopt : ReadTableDay(row.Date, order_);
    if (!day || !day->Time.empty()) {
        return false;
    }
    row.Quote.Day = day->Day;
    return true;
}

bool PlainRowReader::Read(std::string_view text, PlainRow& row) const {
    if (columns_.empty()) {
        return false;
    }
    char const* at = text.data();
    char const* const end = at + text.size();
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        PlainColumn const& is = columns_[column];
        if (column > 0 && *at++ != separator_) {
            return false;
        }
        if (is.Figure < FigureCount) {
            if (!TakePlainNumber(at, mark_, is.Figure >= PriceCount, row.Quote.Figures[is.Figure])) {
                return false;
            }
        } else if (is.Is == Role::Date) {
            if (!TakeDate(at, end, row)) {
                return false;
            }
        } else {
            char const* const first = at;
            at = FindEnd(at);
            if (NeedsCare({first, static_cast<std::size_t>(at - first)})) {
                return false;
            }
        }
    }
    at += *at == '\r' && at < end ? 1 : 0;
    if (*at != '\n' || at >= end) {
        return false;
    }
    row.Length = static_cast<std::size_t>(at + 1 - text.data());
    row.Quote.LacksVolume = lacksVolume_;
    row.Quote.LacksOpenInterest = lacksOpenInterest_;
    return true;
}

} // namespace quorvex::imports
