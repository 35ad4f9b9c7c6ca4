// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Writes series of quotes as tables of every kind and imports them again. Each table gives back its series,
// or it is one that can be read in two ways: then it is refused, and gives back its series once the choice
// that the refusal names is made.
//
//   generated_tables [COUNT [SEED]]

#include "Tables.h"
#include "import/Choices.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::tests {
namespace {

using imports::Choice;
using imports::DateOrder;
using imports::DecimalMark;
using imports::Encoding;
using imports::Separator;

struct DateForm {
    std::string_view Pattern; // Y, y, M, D, N for a name of the month, W for one of the weekday
    DateOrder Order;
};

constexpr auto DateForms = std::to_array<DateForm>({
    {"Y-M-D", DateOrder::YearMonthDay},
    {"Y-M-DT05:00:00+0000", DateOrder::YearMonthDay},
    {"Y/M/D", DateOrder::YearMonthDay},
    {"YMD", DateOrder::YearMonthDay},
    {"yMD", DateOrder::YearMonthDay},
    {"M/D/Y", DateOrder::MonthDayYear},
    {"M/D/y", DateOrder::MonthDayYear},
    {"M-D-Y", DateOrder::MonthDayYear},
    {"D/M/Y", DateOrder::DayMonthYear},
    {"D.M.Y", DateOrder::DayMonthYear},
    {"D.M.y", DateOrder::DayMonthYear},
    {"D-N-y", DateOrder::DayMonthYear},
    {"y-N-D", DateOrder::YearMonthDay},
    {"N D, Y", DateOrder::MonthDayYear},
    {"W D. N Y", DateOrder::DayMonthYear},
    {"U", DateOrder::YearMonthDay},
});

struct Language {
    std::array<std::string_view, 7> Heads;
    std::array<std::string_view, 12> Months;
};

constexpr auto Languages = std::to_array<Language>({
    {{"Date", "Open", "High", "Low", "Close", "Volume", "Open Interest"},
     {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}},
    {{"Datum",
      "Er\xC3\xB6"
      "ffnung",
      "Hoch", "Tief", "Schlusskurs", "Volumen", "Offene Positionen"},
     {"Jan", "Feb", "M\xC3\xA4rz", "Apr", "Mai", "Juni", "Juli", "Aug", "Sep", "Okt", "Nov", "Dez"}},
    {{"Date", "Ouverture", "Plus haut", "Plus bas", "Cl\xC3\xB4ture", "Volume", "Positions ouvertes"},
     {"janv", "f\xC3\xA9vr", "mars", "avr", "mai", "juin", "juil", "ao\xC3\xBBt", "sept", "oct", "nov",
      "d\xC3\xA9"
      "c"}},
    {{"Fecha", "Apertura", "M\xC3\xA1ximo", "M\xC3\xADnimo", "Cierre", "Volumen", "Inter\xC3\xA9s abierto"},
     {"ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sept", "oct", "nov", "dic"}},
});
constexpr std::array<std::string_view, 7> Weekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

constexpr std::array<std::pair<Separator, char>, 5> Separators = {{{Separator::Comma, ','},
                                                                   {Separator::Semicolon, ';'},
                                                                   {Separator::Tab, '\t'},
                                                                   {Separator::Bar, '|'},
                                                                   {Separator::Blanks, ' '}}};
constexpr std::array<std::string_view, 6> Thousands = {"", ",", ".", "'", " ", "\xC2\xA0"};
constexpr std::array<std::string_view, 3> LineEnds = {"\n", "\r\n", "\r"};

enum class RowOrder { OldestFirst, NewestFirst, Shuffled };
enum class HeadKind { None, Plain, Deep, WithNotes };

// How a table is written.
struct Form {
    DateForm Date = DateForms[0];
    Language Words = Languages[0];
    char SeparatorMark = ',';
    char DecimalMark = '.';
    std::string_view ThousandsMark;
    int Decimals = 2;
    RowOrder Order = RowOrder::OldestFirst;
    HeadKind Head = HeadKind::Plain;
    bool QuotesAll = false;
    bool HasFooter = false;
    bool ShufflesColumns = false;
    Encoding Coded = Encoding::Utf8;
    bool HasMark = false;
    std::string_view LineEnd = "\n";
};

template <class Values>
auto const& OneOf(std::mt19937& random, Values const& values) {
    return values[Below(random, std::size(values))];
}

Form RandomForm(std::mt19937& random) {
    Form form;
    form.Date = OneOf(random, DateForms);
    form.Words = OneOf(random, Languages);
    form.SeparatorMark = OneOf(random, Separators).second;
    form.DecimalMark = Below(random, 2) == 0 ? '.' : ',';
    do {
        form.ThousandsMark = OneOf(random, Thousands);
    } while (form.ThousandsMark == std::string_view(&form.DecimalMark, 1));
    form.Decimals = OneOf(random, std::array{2, 2, 2, 3, 0});
    form.Order = OneOf(random, std::array{RowOrder::OldestFirst, RowOrder::NewestFirst, RowOrder::Shuffled});
    form.Head =
        OneOf(random, std::array{HeadKind::None, HeadKind::Plain, HeadKind::Deep, HeadKind::WithNotes});
    form.QuotesAll = Below(random, 3) == 0;
    form.HasFooter = Below(random, 2) == 0;
    form.ShufflesColumns = form.Head != HeadKind::None && Below(random, 2) == 0;
    form.Coded = OneOf(random, std::array{Encoding::Utf8, Encoding::Utf16LittleEndian,
                                          Encoding::Utf16BigEndian, Encoding::Windows1252});
    form.HasMark = Below(random, 2) == 0;
    form.LineEnd = OneOf(random, LineEnds);
    return form;
}

std::string TwoDigits(unsigned number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::string DateText(text::CalendarDay day, Form const& form) {
    std::chrono::year_month_day const date{day};
    auto const year = std::to_string(static_cast<int>(date.year()));
    auto const month = static_cast<unsigned>(date.month());
    std::string text;
    for (char const c : form.Date.Pattern) {
        switch (c) {
        case 'Y':
            text += year;
            break;
        case 'y':
            text += year.substr(2);
            break;
        case 'M':
            text += TwoDigits(month);
            break;
        case 'D':
            text += TwoDigits(static_cast<unsigned>(date.day()));
            break;
        case 'N':
            text += form.Words.Months.at(month - 1);
            break;
        case 'W':
            text += Weekdays.at(std::chrono::weekday(day).c_encoding());
            break;
        case 'U':
            text += std::to_string(
                std::chrono::duration_cast<std::chrono::seconds>(day.time_since_epoch()).count() + 50'400);
            break;
        default:
            text += c;
        }
    }
    return text;
}

std::string Grouped(std::string digits, std::string_view mark) {
    for (std::size_t at = digits.size(); at > 3;) {
        at -= 3;
        digits.insert(at, mark);
    }
    return digits;
}

// The number, a multiple of a thousandth.
std::string NumberText(double number, int decimals, Form const& form) {
    auto const thousandths = static_cast<std::int64_t>(number * 1000 + 0.5);
    std::string text = Grouped(std::to_string(thousandths / 1000), form.ThousandsMark);
    std::string const fraction =
        std::to_string(1000 + thousandths % 1000).substr(1, static_cast<std::size_t>(decimals));
    return fraction.empty() ? text : text + form.DecimalMark + fraction;
}

std::string Cell(std::string const& text, Form const& form) {
    bool const needsQuotes = form.QuotesAll || text.find(form.SeparatorMark) != std::string::npos ||
                             (form.SeparatorMark == ' ' && text.empty());
    return needsQuotes ? '"' + text + '"' : text;
}

std::string Line(std::vector<std::string> const& cells, std::vector<std::size_t> const& order,
                 Form const& form) {
    std::string line;
    for (std::size_t const index : order) {
        line += line.empty() ? "" : std::string(1, form.SeparatorMark);
        line += Cell(cells[index], form);
    }
    return line.append(form.LineEnd);
}

std::string HeadText(std::vector<std::size_t> const& order, Form const& form) {
    std::string text;
    if (form.Head == HeadKind::WithNotes) {
        text.append("Prices").append(form.LineEnd).append(form.LineEnd);
    }
    if (form.Head == HeadKind::Deep) {
        text += Line({"Quotes", "Price", "Price", "Price", "Price", "Count", "Count"}, order, form);
    }
    if (form.Head != HeadKind::None) {
        text += Line({form.Words.Heads.begin(), form.Words.Heads.end()}, order, form);
    }
    return text;
}

// The letters beyond ASCII are all below U+0100, where code points are the bytes of Windows-1252.
std::string Encoded(std::string_view text, Form const& form) {
    if (form.Coded == Encoding::Utf8) {
        return (form.HasMark ? "\xEF\xBB\xBF" : "") + std::string(text);
    }
    std::string bytes;
    auto const append = [&](unsigned unit) {
        if (form.Coded == Encoding::Windows1252) {
            bytes += static_cast<char>(unit);
            return;
        }
        bool const isLittle = form.Coded == Encoding::Utf16LittleEndian;
        bytes += static_cast<char>(isLittle ? unit & 0xFFU : unit >> 8U);
        bytes += static_cast<char>(isLittle ? unit >> 8U : unit & 0xFFU);
    };
    if (form.HasMark && form.Coded != Encoding::Windows1252) {
        append(0xFEFF);
    }
    for (std::size_t at = 0; at < text.size(); ++at) {
        auto const byte = static_cast<unsigned char>(text[at]);
        if (byte < 0x80) {
            append(byte);
        } else {
            append((byte & 0x1FU) << 6U | (static_cast<unsigned char>(text[++at]) & 0x3FU));
        }
    }
    return bytes;
}

std::string TableText(std::vector<imports::DayQuote> series, Form const& form, std::mt19937& random) {
    std::vector<std::size_t> order = {0, 1, 2, 3, 4, 5, 6};
    if (form.ShufflesColumns) {
        std::shuffle(order.begin(), order.end(), random);
    }
    if (form.Order == RowOrder::NewestFirst) {
        std::reverse(series.begin(), series.end());
    } else if (form.Order == RowOrder::Shuffled) {
        std::shuffle(series.begin(), series.end(), random);
    }
    std::string text = HeadText(order, form);
    for (imports::DayQuote const& quote : series) {
        std::vector<std::string> cells = {DateText(quote.Day, form)};
        for (std::size_t index = 0; index < imports::FigureCount; ++index) {
            bool const isPrice = index < imports::PriceCount;
            cells.push_back(NumberText(quote.Figures.at(index), isPrice ? form.Decimals : 0, form));
        }
        text += Line(cells, order, form);
    }
    if (form.HasFooter) {
        text += form.SeparatorMark == ' ' ? "Exported" : "Exported as a whole";
        text += form.LineEnd;
    }
    return Encoded(text, form);
}

// The choice that tells how the table was written.
imports::Choices ChoicesFor(Form const& form, Choice choice) {
    imports::Choices choices;
    if (choice == Choice::DateOrder) {
        choices.DateOrder = form.Date.Order;
    } else if (choice == Choice::Decimal) {
        choices.Decimal = form.DecimalMark == '.' ? DecimalMark::Point : DecimalMark::Comma;
    } else if (choice == Choice::Fraction) {
        choices.Fraction = imports::NoFraction;
    } else if (choice == Choice::Encoding) {
        choices.Encoding = form.Coded;
    }
    return choices;
}

// Whether a table of this form can be read in two ways, which only this choice settles.
bool IsInDoubt(Form const& form, Choice choice) {
    bool const hasTwoDigitYear = form.Date.Pattern == "D.M.y" || form.Date.Pattern == "yMD";
    bool const hasOpenMark = form.Decimals != 2 && (form.Decimals == 3 || !form.ThousandsMark.empty());
    return (choice == Choice::DateOrder && hasTwoDigitYear && form.Order == RowOrder::Shuffled) ||
           (choice == Choice::Decimal && hasOpenMark) ||
           (choice == Choice::Fraction && form.Decimals == 0 && form.ThousandsMark == "'");
}

std::vector<imports::DayQuote> SeriesFor(Form const& form, std::mt19937& random) {
    double const price = OneOf(random, std::array{300.0, 500.0, 2900.0, 14'000.0});
    auto series = RandomSeries(random, 60 + Below(random, 60), price);
    for (imports::DayQuote& quote : series) {
        for (std::size_t index = 0; form.Decimals == 0 && index < imports::PriceCount; ++index) {
            quote.Figures.at(index) *= 4;
        }
    }
    return series;
}

struct Tally {
    int Good = 0;
    int Settled = 0; // refused until the choice was made
    int Bad = 0;
};

void Complain(std::string_view what, imports::Conversion const& conversion, std::string const& table) {
    std::fprintf(stderr, "%.*s: %s\n%.400s\n", static_cast<int>(what.size()), what.data(),
                 RefusalOf(conversion).c_str(), table.c_str());
}

void TryOne(std::mt19937& random, Tally& tally) {
    Form const form = RandomForm(random);
    auto const series = SeriesFor(form, random);
    std::string const table = TableText(series, form, random);
    auto const conversion = ImportText(table);
    if (!conversion.Refused && AreSameDays(conversion.Days, series)) {
        ++tally.Good;
        return;
    }
    Choice const choice = conversion.Refused ? conversion.Refused->SettledBy : Choice::None;
    if (!conversion.Refused || !IsInDoubt(form, choice)) {
        ++tally.Bad;
        Complain(conversion.Refused ? "Refused" : "Wrong", conversion, table);
        return;
    }
    imports::Choices choices = ChoicesFor(form, choice);
    auto again = ImportText(table, choices);
    if (again.Refused && IsInDoubt(form, again.Refused->SettledBy)) {
        // A second doubt, of another kind.
        auto const more = ChoicesFor(form, again.Refused->SettledBy);
        choices.DateOrder = more.DateOrder ? more.DateOrder : choices.DateOrder;
        choices.Decimal = more.Decimal ? more.Decimal : choices.Decimal;
        choices.Fraction = more.Fraction ? more.Fraction : choices.Fraction;
        again = ImportText(table, choices);
    }
    if (!again.Refused && AreSameDays(again.Days, series)) {
        ++tally.Settled;
    } else {
        ++tally.Bad;
        Complain("Not settled", again, table);
    }
}

int NumberOf(int argc, char** argv, int index, int usual) {
    int number = usual;
    if (index < argc) {
        std::string_view const text = argv[index];
        std::from_chars(text.data(), text.data() + text.size(), number);
    }
    return number;
}

int Run(int argc, char** argv) {
    int const count = NumberOf(argc, argv, 1, 10'000);
    std::mt19937 random(static_cast<unsigned>(NumberOf(argc, argv, 2, 1)));
    Tally tally;
    for (int table = 0; table < count; ++table) {
        TryOne(random, tally);
    }
    std::printf("%d tables: %d read at once, %d once the choice was made, %d wrong\n", count, tally.Good,
                tally.Settled, tally.Bad);
    bool const mostAtOnce = tally.Good * 4 >= count * 3;
    return tally.Bad == 0 && mostAtOnce ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace quorvex::tests

int main(int argc, char** argv) {
    return quorvex::tests::Run(argc, argv);
}
