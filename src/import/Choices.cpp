// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Choices.h"

namespace quorvex::imports {

std::string_view NameOf(Encoding encoding) {
    switch (encoding) {
    case Encoding::Utf8:
        return "UTF-8";
    case Encoding::Utf16LittleEndian:
        return "UTF-16 LE";
    case Encoding::Utf16BigEndian:
        return "UTF-16 BE";
    case Encoding::Windows1252:
        return "Windows-1252";
    }
    return {};
}

std::string_view NameOf(Separator separator) {
    switch (separator) {
    case Separator::Comma:
        return "commas";
    case Separator::Semicolon:
        return "semicolons";
    case Separator::Tab:
        return "tabs";
    case Separator::Bar:
        return "bars";
    case Separator::Blanks:
        return "blanks";
    }
    return {};
}

std::string_view NameOf(DateOrder order) {
    switch (order) {
    case DateOrder::YearMonthDay:
        return "year, month, day";
    case DateOrder::MonthDayYear:
        return "month, day, year";
    case DateOrder::DayMonthYear:
        return "day, month, year";
    }
    return {};
}

std::string_view NameOf(DecimalMark mark) {
    return mark == DecimalMark::Point ? "point" : "comma";
}

std::string_view NameOf(Role role) {
    switch (role) {
    case Role::Unused:
        return "not used";
    case Role::Date:
        return "date";
    case Role::Time:
        return "time";
    case Role::Open:
        return "open";
    case Role::High:
        return "high";
    case Role::Low:
        return "low";
    case Role::Close:
        return "close";
    case Role::Volume:
        return "volume";
    case Role::OpenInterest:
        return "open interest";
    case Role::Symbol:
        return "symbol";
    }
    return {};
}

} // namespace quorvex::imports
