// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTableDates.h"

#include "import/basWords.h"
#include "text/Characters.h"
#include "text/basTexts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quorvex::imports {

namespace {

struct MonthName {
    std::string_view Name; // folded
    int Month;
};

constexpr auto MonthTable = std::to_array<MonthName>({
    {"jan", 1},       {"january", 1},    {"januar", 1},   {"janner", 1},     {"janv", 1},
    {"janvier", 1},   {"ene", 1},        {"enero", 1},    {"feb", 2},        {"february", 2},
    {"februar", 2},   {"fevr", 2},       {"fev", 2},      {"fevrier", 2},    {"febrero", 2},
    {"mar", 3},       {"march", 3},      {"marz", 3},     {"maerz", 3},      {"mrz", 3},
    {"mars", 3},      {"marzo", 3},      {"apr", 4},      {"april", 4},      {"avr", 4},
    {"avril", 4},     {"abr", 4},        {"abril", 4},    {"may", 5},        {"mai", 5},
    {"mayo", 5},      {"jun", 6},        {"june", 6},     {"juni", 6},       {"juin", 6},
    {"junio", 6},     {"jul", 7},        {"july", 7},     {"juli", 7},       {"juil", 7},
    {"juillet", 7},   {"julio", 7},      {"aug", 8},      {"august", 8},     {"aout", 8},
    {"ago", 8},       {"agosto", 8},     {"sep", 9},      {"sept", 9},       {"september", 9},
    {"septembre", 9}, {"septiembre", 9}, {"oct", 10},     {"october", 10},   {"okt", 10},
    {"oktober", 10},  {"octobre", 10},   {"octubre", 10}, {"nov", 11},       {"november", 11},
    {"novembre", 11}, {"noviembre", 11}, {"dec", 12},     {"december", 12},  {"dez", 12},
    {"dezember", 12}, {"decembre", 12},  {"dic", 12},     {"diciembre", 12},
});

constexpr auto WeekdayTable = std::to_array<std::string_view>({
    "mon",        "monday",    "tue",      "tues",   "tuesday",  "wed",       "wednesday", "thu",
    "thur",       "thurs",     "thursday", "fri",    "friday",   "sat",       "saturday",  "sun",
    "sunday",     "mo",        "montag",   "di",     "dienstag", "mi",        "mittwoch",  "do",
    "donnerstag", "fr",        "freitag",  "sa",     "samstag",  "sonnabend", "so",        "sonntag",
    "lun",        "lundi",     "mar",      "mardi",  "mer",      "mercredi",  "jeu",       "jeudi",
    "ven",        "vendredi",  "sam",      "samedi", "dim",      "dimanche",  "lunes",     "martes",
    "mie",        "miercoles", "jue",      "jueves", "vie",      "viernes",   "sab",       "sabado",
    "dom",        "domingo",
});

constexpr std::size_t MostDigits = 10;
constexpr std::size_t DigitsOfYear = 4;

// A run of digits.
struct Number {
    std::int64_t Value = 0;
    std::size_t Length = 0;
};

bool IsSign(char c) {
    return c == '/' || c == '-' || c == '.';
}

bool IsPartOfName(char c) {
    return static_cast<unsigned char>(c) >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Takes the pieces of a date from the front of a text.
class CellScanner {
public:
    explicit CellScanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] std::string_view Rest() const { return rest_; }

    [[nodiscard]] char Next() const { return rest_.empty() ? '\0' : rest_.front(); }

    Number TakeNumber() {
        Number number;
        while (number.Length < rest_.size() && number.Length <= MostDigits &&
               text::IsDigit(rest_[number.Length])) {
            number.Value = number.Value * 10 + (rest_[number.Length] - '0');
            ++number.Length;
        }
        rest_.remove_prefix(number.Length);
        return number;
    }

    std::string TakeName() {
        std::size_t length = 0;
        while (length < rest_.size() && IsPartOfName(rest_[length])) {
            ++length;
        }
        std::string name = FoldWords(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return name;
    }

    bool TakeSign(char sign) {
        if (Next() != sign) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    // What may stand between the pieces of a date with a name in it. Returns whether anything stood there.
    bool SkipJoints() {
        std::size_t const length = std::min(rest_.find_first_not_of(" \t,.-/"), rest_.size());
        rest_.remove_prefix(length);
        return length > 0;
    }

private:
    std::string_view rest_;
};

int MonthOf(std::string_view name) {
    auto const found = std::ranges::find(MonthTable, name, &MonthName::Name);
    return found == MonthTable.end() ? 0 : found->Month;
}

std::optional<int> YearOf(Number const& number) {
    if (number.Length == 2) {
        return text::FullYear(static_cast<int>(number.Value));
    }
    return number.Length == DigitsOfYear ? std::optional(static_cast<int>(number.Value)) : std::nullopt;
}

std::optional<text::CalendarDay> DayOfParts(Number const& year, Number const& month, Number const& day) {
    auto const fullYear = YearOf(year);
    bool const areParts =
        fullYear && month.Length >= 1 && month.Length <= 2 && day.Length >= 1 && day.Length <= 2;
    return areParts ? text::DayOf(*fullYear, static_cast<int>(month.Value), static_cast<int>(day.Value))
                    : std::nullopt;
}

std::optional<text::CalendarDay> DayInOrder(Number const& first, Number const& second, Number const& third,
                                            DateOrder order) {
    if (first.Length == DigitsOfYear || order == DateOrder::YearMonthDay) {
        return DayOfParts(first, second, third);
    }
    return order == DateOrder::MonthDayYear ? DayOfParts(third, first, second)
                                            : DayOfParts(third, second, first);
}

Number PartOf(std::string_view digits, std::size_t from, std::size_t length) {
    return CellScanner(digits.substr(from, length)).TakeNumber();
}

// yyyymmdd, yymmdd and so on.
std::optional<text::CalendarDay> DayOfDigits(std::string_view digits, Number const& number, DateOrder order) {
    constexpr std::size_t LongDate = 8;
    constexpr std::size_t ShortDate = 6;
    if (number.Length == LongDate || number.Length == ShortDate) {
        std::size_t const year = number.Length - 4;
        if (order == DateOrder::YearMonthDay) {
            return DayOfParts(PartOf(digits, 0, year), PartOf(digits, year, 2), PartOf(digits, year + 2, 2));
        }
        return DayInOrder(PartOf(digits, 0, 2), PartOf(digits, 2, 2), PartOf(digits, 4, year), order);
    }
    return std::nullopt;
}

TableDay DayOfSeconds(std::string_view digits, Number const& number) {
    std::chrono::sys_seconds const seconds{std::chrono::seconds(number.Value)};
    auto const day = std::chrono::floor<std::chrono::days>(seconds);
    return {day, day == seconds ? std::string_view() : digits};
}

// The time that stands behind a day; nothing when something else does.
std::optional<std::string_view> TimeBehind(std::string_view rest) {
    if (rest.empty()) {
        return rest;
    }
    if (rest.front() != 'T' && !text::IsBlank(rest.front()) && rest.front() != ',') {
        return std::nullopt;
    }
    rest.remove_prefix(1);
    rest = text::TrimBlanksAndTabs(rest);
    return IsTimeOfDay(rest) ? std::optional(rest) : std::nullopt;
}

std::optional<TableDay> WithTime(std::optional<text::CalendarDay> day, std::string_view rest) {
    auto const time = day ? TimeBehind(rest) : std::nullopt;
    return time ? std::optional(TableDay{*day, *time}) : std::nullopt;
}

// 5-Nov-19, 5. November 2019, 2019-Nov-05, 19-Nov-05
std::optional<TableDay> ReadNumberThenName(CellScanner scan, Number const& first, DateOrder order) {
    scan.SkipJoints();
    if (!IsPartOfName(scan.Next())) {
        return std::nullopt;
    }
    Number const month{MonthOf(scan.TakeName()), 2};
    scan.SkipJoints();
    Number const last = scan.TakeNumber();
    bool const isYearFirst =
        first.Length == DigitsOfYear || (order == DateOrder::YearMonthDay && last.Length != DigitsOfYear);
    return WithTime(isYearFirst ? DayOfParts(first, month, last) : DayOfParts(last, month, first),
                    scan.Rest());
}

std::optional<TableDay> ReadNumbers(CellScanner scan, DateOrder order) {
    std::string_view const digits = scan.Rest();
    Number const first = scan.TakeNumber();
    char const sign = scan.Next();
    if (sign == '\0') {
        bool const areSeconds = first.Length == MostDigits - 1 || first.Length == MostDigits;
        return areSeconds ? DayOfSeconds(digits, first) : WithTime(DayOfDigits(digits, first, order), {});
    }
    CellScanner behind = scan;
    if (IsSign(sign) && behind.TakeSign(sign) && text::IsDigit(behind.Next())) {
        Number const second = behind.TakeNumber();
        bool const hasThird = behind.TakeSign(sign);
        Number const third = behind.TakeNumber();
        return hasThird ? WithTime(DayInOrder(first, second, third, order), behind.Rest()) : std::nullopt;
    }
    if (first.Length == 8 || first.Length == 6) {
        if (auto const day = WithTime(DayOfDigits(digits, first, order), scan.Rest())) {
            return day;
        }
    }
    return ReadNumberThenName(scan, first, order);
}

// Nov 5, 2019
std::optional<TableDay> ReadMonthThenNumbers(CellScanner scan) {
    Number const month{MonthOf(scan.TakeName()), 2};
    scan.SkipJoints();
    Number const day = scan.TakeNumber();
    scan.SkipJoints();
    Number const year = scan.TakeNumber();
    return WithTime(DayOfParts(year, month, day), scan.Rest());
}

// With or without a weekday in front; "mar" is a Tuesday as well as March.
std::optional<TableDay> ReadNames(CellScanner const& scan, DateOrder order) {
    CellScanner behind = scan;
    bool const isWeekday = std::ranges::find(WeekdayTable, behind.TakeName()) != WeekdayTable.end();
    if (isWeekday && behind.SkipJoints()) {
        auto const day =
            text::IsDigit(behind.Next()) ? ReadNumbers(behind, order) : ReadMonthThenNumbers(behind);
        if (day) {
            return day;
        }
    }
    return ReadMonthThenNumbers(scan);
}

} // namespace

std::optional<text::CalendarDay> ReadIsoDay(std::string_view cell) {
    constexpr std::size_t Length = 10;
    if (cell.size() != Length || cell[4] != cell[7] || !IsSign(cell[4])) {
        return std::nullopt;
    }
    unsigned notDigits = 0;
    auto const digit = [&](std::size_t at) {
        auto const value = static_cast<unsigned>(static_cast<unsigned char>(cell[at])) - '0';
        notDigits |= value > 9 ? 1U : 0U;
        return static_cast<int>(value);
    };
    int const year = digit(0) * 1000 + digit(1) * 100 + digit(2) * 10 + digit(3);
    int const month = digit(5) * 10 + digit(6);
    int const day = digit(8) * 10 + digit(9);
    return notDigits == 0 ? text::DayOf(year, month, day) : std::nullopt;
}

std::optional<TableDay> ReadTableDay(std::string_view cell, DateOrder order) {
    if (auto const day = ReadIsoDay(cell)) {
        return TableDay{*day, {}};
    }
    CellScanner const scan(cell);
    if (text::IsDigit(scan.Next())) {
        return ReadNumbers(scan, order);
    }
    return IsPartOfName(scan.Next()) ? ReadNames(scan, order) : std::nullopt;
}

std::optional<DateOrder> OrderAsWritten(std::string_view cell) {
    CellScanner scan(cell);
    CellScanner behind = scan;
    bool const isWeekday = std::ranges::find(WeekdayTable, behind.TakeName()) != WeekdayTable.end();
    if (isWeekday && behind.SkipJoints()) {
        scan = behind;
    }
    if (IsPartOfName(scan.Next())) {
        return DateOrder::MonthDayYear;
    }
    if (scan.TakeNumber().Length == DigitsOfYear) {
        return DateOrder::YearMonthDay;
    }
    scan.SkipJoints();
    return IsPartOfName(scan.Next()) ? std::optional(DateOrder::DayMonthYear) : std::nullopt;
}

bool IsTableDay(std::string_view cell) {
    return ReadTableDay(cell, DateOrder::YearMonthDay) || ReadTableDay(cell, DateOrder::MonthDayYear) ||
           ReadTableDay(cell, DateOrder::DayMonthYear);
}

bool HasDayBeforeMonth(std::string_view cell) {
    CellScanner scan(cell);
    Number const year = scan.TakeNumber();
    char const sign = scan.Next();
    if (year.Length != DigitsOfYear || !IsSign(sign)) {
        return false;
    }
    scan.TakeSign(sign);
    Number const second = scan.TakeNumber();
    bool const hasThird = scan.TakeSign(sign);
    Number const third = scan.TakeNumber();
    return hasThird && !DayOfParts(year, second, third) && DayOfParts(year, third, second);
}

bool IsWeekday(std::string_view cell) {
    CellScanner scan(cell);
    bool const isName = std::ranges::find(WeekdayTable, scan.TakeName()) != WeekdayTable.end();
    return isName && (scan.Rest().empty() || scan.Rest() == ".");
}

bool IsTimeInDigits(std::string_view cell) {
    bool const areDigits = (cell.size() == 4 || cell.size() == 6) && AreDigits(cell);
    return areDigits && PartOf(cell, 0, 2).Value < 24 && PartOf(cell, 2, 2).Value < 60 &&
           PartOf(cell, 4, 2).Value < 60;
}

bool IsMidnight(std::string_view time) {
    constexpr auto Spellings = std::to_array<std::string_view>({"00:00", "0:00", "12:00 AM", "12:00:00 AM"});
    return time.empty() || std::ranges::any_of(Spellings, [&](std::string_view midnight) {
               return time.starts_with(midnight);
           });
}

bool IsTimeOfDay(std::string_view text) {
    CellScanner scan(text);
    Number const hour = scan.TakeNumber();
    bool const isColon = scan.TakeSign(':');
    Number const minute = scan.TakeNumber();
    constexpr std::string_view Others = "0123456789:.+- ";
    return hour.Length >= 1 && hour.Length <= 2 && hour.Value <= 24 && isColon && minute.Length == 2 &&
           minute.Value < 60 && std::ranges::all_of(scan.Rest(), [&](char c) {
               return IsPartOfName(c) || Others.find(c) != std::string_view::npos;
           });
}

} // namespace quorvex::imports
