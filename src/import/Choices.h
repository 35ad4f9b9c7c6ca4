// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Reading any vendor's table of quotes. The folder is named after the sub-command, the namespace is not: a
// line that begins with `import` would be a directive of the language.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {

enum class Encoding : std::uint8_t { Utf8, Utf16LittleEndian, Utf16BigEndian, Windows1252 };

enum class Separator : std::uint8_t { Comma, Semicolon, Tab, Bar, Blanks };

// Which of the three numbers of a date comes first. A year of four digits in front is followed by the month
// in any order.
enum class DateOrder : std::uint8_t { YearMonthDay, MonthDayYear, DayMonthYear };

enum class DecimalMark : std::uint8_t { Point, Comma };

// What stands in a column.
enum class Role : std::uint8_t {
    Unused,
    Date,
    Time,
    Open,
    High,
    Low,
    Close,
    Volume,
    OpenInterest,
    Symbol, // a part of the contract's name; several columns can be
};

// The choices of a user that settle what a table leaves open.
enum class Choice : std::uint8_t {
    None, // nothing can
    Encoding,
    Separator,
    Columns,
    DateOrder,
    Decimal,
    Fraction,
    Symbol,
    Bars,
};

// Something to tell about a line, counted from 1, or about the table as a whole: line 0.
struct Finding {
    std::uint64_t Line = 0;
    std::string Text;
};

// Why nothing can be imported.
struct Refusal {
    Finding Told;
    Choice SettledBy = Choice::None;
};

// A column that the user named, by its heading in any spelling or by its number from 1 on.
struct ColumnChoice {
    std::string Column;
    Role Is = Role::Unused;
};

// The denominators that prices such as 118'16 can have; 0 stands for prices without fractions.
inline constexpr int NoFraction = 0;

// What the user settled. What is not set is found out.
struct Choices {
    std::optional<imports::Encoding> Encoding;
    std::optional<imports::Separator> Separator;
    std::optional<imports::DateOrder> DateOrder;
    std::optional<DecimalMark> Decimal;
    std::optional<int> Fraction; // 2, 4, 8, 16, 32, 64, 128 or NoFraction
    std::vector<ColumnChoice> Columns;
    bool OnlyChosenColumns = false; // those that are not named are unused
    bool TakesAnyBars = false;      // rows of weeks or months are taken, each for a day
    // The contract to take, in either case; the empty text is the one without a name. Not set: there is one.
    std::optional<std::string> Symbol;
};

// What there is to choose from, in the order in which it is offered.
inline constexpr std::array<Encoding, 4> EncodingChoices = {
    Encoding::Utf8, Encoding::Windows1252, Encoding::Utf16LittleEndian, Encoding::Utf16BigEndian};
inline constexpr std::array<Separator, 5> SeparatorChoices = {
    Separator::Comma, Separator::Semicolon, Separator::Tab, Separator::Bar, Separator::Blanks};
inline constexpr std::array<DateOrder, 3> DateOrderChoices = {
    DateOrder::MonthDayYear, DateOrder::DayMonthYear, DateOrder::YearMonthDay};
inline constexpr std::array<DecimalMark, 2> DecimalChoices = {DecimalMark::Point, DecimalMark::Comma};
inline constexpr std::array<int, 8> FractionChoices = {NoFraction, 2, 4, 8, 16, 32, 64, 128};
inline constexpr std::array<Role, 10> RoleChoices = {
    Role::Unused, Role::Date,  Role::Time,   Role::Open,         Role::High,
    Role::Low,    Role::Close, Role::Volume, Role::OpenInterest, Role::Symbol};

[[nodiscard]] std::string_view NameOf(Encoding encoding);   // "UTF-8"
[[nodiscard]] std::string_view NameOf(Separator separator); // "semicolons"
[[nodiscard]] std::string_view NameOf(DateOrder order);     // "month, day, year"
[[nodiscard]] std::string_view NameOf(DecimalMark mark);    // "point"
[[nodiscard]] std::string_view NameOf(Role role);           // "open interest"

} // namespace quorvex::imports
