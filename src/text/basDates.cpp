// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "text/basDates.h"

#include "text/Characters.h"
#include "text/RunTimeError.h"
#include "text/basTexts.h"

#include <array>
#include <cstddef>

namespace quorvex::text {

namespace {

constexpr std::array<std::string_view, 12> MonthNames = {"january",   "february", "march",    "april",
                                                         "may",       "june",     "july",     "august",
                                                         "september", "october",  "november", "december"};

constexpr std::size_t ShortNameLength = 3;
constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr int FirstYearOfLastCentury = 50;

// Takes the pieces of a date from the front of a text. Each call answers whether the piece was there.
class DateScanner {
public:
    explicit DateScanner(std::string_view text) : rest_(text) {}

    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

    [[nodiscard]] char Next() const { return rest_.empty() ? '\0' : rest_.front(); }

    // A whole number of so many digits; its length is kept for the caller.
    bool Number(std::size_t least, std::size_t most, int& value) {
        std::size_t length = 0;
        value = 0;
        while (length < rest_.size() && length <= most && IsDigit(rest_[length])) {
            value = value * 10 + (rest_[length] - '0');
            ++length;
        }
        if (length < least || length > most) {
            return false;
        }
        rest_.remove_prefix(length);
        length_ = length;
        return true;
    }

    // Two or four digits; two are put into their century.
    bool Year(int& year) {
        if (!Number(2, 4, year) || length_ == 3) {
            return false;
        }
        if (length_ == 2) {
            year = FullYear(year);
        }
        return true;
    }

    bool MonthName(int& month) {
        std::size_t length = 0;
        std::array<char, 12> letters{};
        while (length < rest_.size() && IsLetter(rest_[length])) {
            if (length == letters.size()) {
                return false;
            }
            letters[length] = static_cast<char>(rest_[length] | 0x20);
            ++length;
        }
        std::string_view const name(letters.data(), length);
        for (std::size_t index = 0; index < MonthNames.size(); ++index) {
            if (name == MonthNames[index] || name == MonthNames[index].substr(0, ShortNameLength)) {
                month = static_cast<int>(index) + 1;
                rest_.remove_prefix(length);
                return true;
            }
        }
        return false;
    }

    bool Mark(char mark) {
        if (Next() != mark) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    bool Blanks() {
        bool any = false;
        while (Mark(' ')) {
            any = true;
        }
        return any;
    }

private:
    static bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

    std::string_view rest_;
    std::size_t length_ = 0;
};

struct DateParts {
    int Year = 0;
    int Month = 0;
    int Day = 0;
};

bool IsSeparator(char c) {
    return c == '/' || c == '-';
}

// yyyy-mm-dd, yyyy/mm/dd
bool ScanYearFirst(DateScanner scan, DateParts& date) {
    if (!scan.Number(4, 4, date.Year)) {
        return false;
    }
    char const separator = scan.Next();
    return IsSeparator(separator) && scan.Mark(separator) && scan.Number(2, 2, date.Month) &&
           scan.Mark(separator) && scan.Number(2, 2, date.Day) && scan.AtEnd();
}

// m/d/yy, m/d/yyyy, m-d-yy, m-d-yyyy
bool ScanMonthFirst(DateScanner scan, DateParts& date) {
    if (!scan.Number(1, 2, date.Month)) {
        return false;
    }
    char const separator = scan.Next();
    return IsSeparator(separator) && scan.Mark(separator) && scan.Number(1, 2, date.Day) &&
           scan.Mark(separator) && scan.Year(date.Year) && scan.AtEnd();
}

// March 5, 2002; Mar 5 2002
bool ScanNameFirst(DateScanner scan, DateParts& date) {
    if (!scan.MonthName(date.Month) || !scan.Blanks() || !scan.Number(1, 2, date.Day)) {
        return false;
    }
    bool const comma = scan.Mark(',');
    bool const blanks = scan.Blanks();
    return (comma || blanks) && scan.Year(date.Year) && scan.AtEnd();
}

// 5 Mar 2002
bool ScanDayThenName(DateScanner scan, DateParts& date) {
    return scan.Number(1, 2, date.Day) && scan.Blanks() && scan.MonthName(date.Month) && scan.Blanks() &&
           scan.Year(date.Year) && scan.AtEnd();
}

bool ScanDate(std::string_view text, DateParts& date) {
    DateScanner const scan(text);
    return ScanMonthFirst(scan, date) || ScanYearFirst(scan, date) || ScanNameFirst(scan, date) ||
           ScanDayThenName(scan, date);
}

char Tens(unsigned number) {
    return static_cast<char>('0' + number / 10);
}

char Units(unsigned number) {
    return static_cast<char>('0' + number % 10);
}

} // namespace

std::optional<CalendarDay> ParseDate(std::string_view text) {
    DateParts parts;
    if (!ScanDate(TrimBlanksAndTabs(text), parts)) {
        return std::nullopt;
    }
    return DayOf(parts.Year, parts.Month, parts.Day);
}

int FullYear(int twoDigits) {
    return twoDigits + (twoDigits < FirstYearOfLastCentury ? 2000 : 1900);
}

std::optional<CalendarDay> DayOf(int year, int month, int day) {
    std::chrono::year_month_day const date{std::chrono::year{year},
                                           std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (year < FirstYear || year > LastYear || !date.ok()) {
        return std::nullopt;
    }
    return CalendarDay{date};
}

CalendarDay RequireDate(std::string_view text) {
    auto const day = ParseDate(text);
    if (!day) {
        throw RunTimeError(Fault::TypeMismatch);
    }
    return *day;
}

std::string FormatDate(CalendarDay day) {
    std::chrono::year_month_day const date{day};
    auto const m = static_cast<unsigned>(date.month());
    auto const d = static_cast<unsigned>(date.day());
    auto const y = static_cast<unsigned>(static_cast<int>(date.year()) % 100);
    return {Tens(m), Units(m), '/', Tens(d), Units(d), '/', Tens(y), Units(y)};
}

std::string FormatIsoDate(CalendarDay day) {
    constexpr unsigned Hundred = 100;
    std::chrono::year_month_day const date{day};
    auto const y = static_cast<unsigned>(static_cast<int>(date.year()));
    auto const m = static_cast<unsigned>(date.month());
    auto const d = static_cast<unsigned>(date.day());
    return {Tens(y / Hundred),
            Units(y / Hundred),
            Tens(y % Hundred),
            Units(y % Hundred),
            '-',
            Tens(m),
            Units(m),
            '-',
            Tens(d),
            Units(d)};
}

} // namespace quorvex::text
