// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basConversion.h"

#include "Tables.h"
#include "support/Sanitizers.h"
#include "text/basTexts.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace quorvex::tests {
namespace {

using imports::Choice;
using imports::Choices;
using imports::DateOrder;
using imports::DecimalMark;

constexpr auto Head = "Date,Open,High,Low,Close,Volume\n";

std::string Table(std::string_view rows) {
    return std::string(Head).append(rows);
}

// The one row that is left out: "2: text".
std::string LeftOut(std::string_view row) {
    auto const conversion = ImportText(Table("2019-10-28,5,6,4,5.5,1\n") + std::string(row));
    EXPECT_EQ(RefusalOf(conversion), "");
    EXPECT_EQ(conversion.Days.size(), 1U);
    if (conversion.LeftOut.Count != 1) {
        return "not one row";
    }
    return std::to_string(conversion.LeftOut.Kept[0].Line) + ": " + conversion.LeftOut.Kept[0].Text;
}

TEST(Conversion, LeavesOutWhatIsNoQuoteAndTellsWhy) {
    EXPECT_EQ(LeftOut("2014-31-14,5,6,4,5.5,1\n"), "3: \"2014-31-14\" is no date");
    EXPECT_EQ(LeftOut("Total,5,6,4,5.5,1\n"), "3: \"Total\" is no date");
    EXPECT_EQ(LeftOut("1949-12-30,5,6,4,5.5,1\n"), "3: \"1949-12-30\" is no day of 1950 to 2049");
    EXPECT_EQ(LeftOut("2050-01-03,5,6,4,5.5,1\n"), "3: \"2050-01-03\" is no day of 1950 to 2049");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,abc,1\n"), "3: the close \"abc\" is no number");
    std::string const why = " is no number: of the marks behind a price only the s of a settlement is known";
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,5.5a,1\n"), "3: the close \"5.5a\"" + why);
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,5.5B,1\n"), "3: the close \"5.5B\"" + why) << "a bid, no billions";
    EXPECT_EQ(LeftOut("2019-10-29,5,6,,5.5,1\n"), "3: the low is missing");
    EXPECT_EQ(LeftOut("2019-10-29,,,,,\n"), "3: the open is missing");
    EXPECT_EQ(LeftOut("2019-10-29,5e100,6e100,4e100,5.5e100,1\n"),
              "3: the prices are beyond what a quote file can hold");
    EXPECT_EQ(LeftOut("2019-10-29,5e-100,6e-100,4e-100,5.5e-100,1\n"),
              "3: the prices are beyond what a quote file can hold");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4\n"), "3: the close is missing");
    EXPECT_EQ(LeftOut("2019-10-29,0,6,4,5.5,1\n"), "3: the open \"0\" is not above zero");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,-37.63,5.5,1\n"), "3: the low \"-37.63\" is not above zero");
    EXPECT_EQ(LeftOut("2019-10-29,5,4,6,5.5,1\n"), "3: the high is below the low");
    EXPECT_EQ(LeftOut("2019-10-29,7,6,4,5.5,1\n"), "3: the open \"7\" lies outside of high and low");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,3.5,1\n"), "3: the close \"3.5\" lies outside of high and low");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,5.5,-1\n"), "3: the volume \"-1\" is below zero");
    EXPECT_EQ(LeftOut("2019-10-29,5,6,4,5.5,many\n"), "3: the volume \"many\" is no number");
    EXPECT_EQ(LeftOut("2019-10-29,1,517,1,518,1,516,1,517\n"), "3: the row has 9 cells, the table 6 columns");
}

TEST(Conversion, TakesPricesThatAreTheHighOrTheLow) {
    for (std::string const prices : {"6,6,4,4", "4,6,4,6", "5,5,5,5"}) {
        auto const conversion = ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-29," + prices + ",1\n"));
        EXPECT_EQ(RefusalOf(conversion), "");
        EXPECT_EQ(conversion.Days.size(), 2U) << prices;
    }
}

// What the plan is made of ends inside a quoted cell.
TEST(Conversion, ReadsATableOfFewLongRows) {
    std::string table = "Date,Open,High,Low,Close,Note\n";
    for (int day = 1; day <= 31; ++day) {
        table += "2019-10-" + std::to_string(100 + day).substr(1) + ",5,6,4,5.5,\"" + std::string(5000, 'n') +
                 "\"\n";
    }
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion), "");
    EXPECT_EQ(conversion.Days.size(), 31U);
}

TEST(Conversion, RefusesSuchRowsWhenAskedTo) {
    imports::Limits limits;
    limits.IsStrict = true;
    auto const conversion = ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-29,5,6,,5.5,1\n"), {}, limits);
    EXPECT_EQ(RefusalOf(conversion), "3: the low is missing");
}

TEST(Conversion, ListsLinesThatAreNoRows) {
    auto const conversion =
        ImportText("Wheat\n" + Table("2019-10-28,5,6,4,5.5,1\n,,,\nDownloaded on a Monday\n\"a\nb\"\n") +
                   Head + "All rights, reserved,\n");
    ASSERT_EQ(conversion.Notes.Count, 5U);
    EXPECT_EQ(conversion.Notes.Kept[2].Text, "a b") << "on one line";
    EXPECT_EQ(conversion.Notes.Kept[3].Text, "Date") << "the head once more";
    EXPECT_EQ(conversion.Notes.Kept[4].Text, "All rights");
    EXPECT_EQ(conversion.Notes.Kept[0].Text, "Wheat");
    EXPECT_EQ(conversion.Notes.Kept[1].Line, 5U);
    EXPECT_EQ(conversion.LeftOut.Count, 0U);
    EXPECT_EQ(conversion.RowCount, 1U);
}

TEST(Conversion, RefusesASecondTableUnderAnotherHead) {
    EXPECT_EQ(RefusalOf(ImportText(Table("2019-10-28,5,6,4,5.5,1\nDate,Close,High,Low,Open,Volume\n"
                                         "2019-10-29,5,6,4,5.5,1\n"))),
              "3: Another head stands here: the table is several ones. Make a file of each");
}

TEST(Conversion, SortsAnyOrderAndTellsIt) {
    auto const order = [](std::string_view rows) {
        auto const conversion = ImportText(Table(rows));
        EXPECT_EQ(conversion.Days.front().Day, text::CalendarDay{std::chrono::year{2019} / 10 / 28});
        return conversion.Order;
    };
    EXPECT_EQ(order("2019-10-28,5,6,4,5.5,1\n2019-10-29,5,6,4,5,1\n"), imports::RowOrder::OldestFirst);
    EXPECT_EQ(order("2019-10-29,5,6,4,5,1\n2019-10-28,5,6,4,5.5,1\n"), imports::RowOrder::NewestFirst);
    EXPECT_EQ(order("2019-10-29,5,6,4,5,1\n2019-10-28,5,6,4,5.5,1\n2019-10-30,5,6,4,5.5,1\n"),
              imports::RowOrder::Mixed);
}

TEST(Conversion, TakesTheSameDayOnceWhenItSaysTheSame) {
    auto const conversion = ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-28,5.0,6,4,5.50,1\n"));
    EXPECT_EQ(RefusalOf(conversion), "");
    EXPECT_EQ(conversion.Days.size(), 1U);
    EXPECT_EQ(conversion.RepeatCount, 1U);
    EXPECT_EQ(RefusalOf(ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-28,5,6,4,5.25,1\n"))),
              "3: The day of line 2 again with other figures: take one of both rows out");
}

TEST(Conversion, TakesTheDaysThatAreAskedFor) {
    imports::Limits limits;
    limits.From = std::chrono::year{2019} / 10 / 29;
    limits.To = std::chrono::year{2019} / 10 / 30;
    auto const conversion =
        ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-29,5,6,4,5.5,1\n2019-10-30,5,6,4,5.5,1\n"
                         "2019-10-31,x,6,4,5.5,1\n"),
                   {}, limits);
    EXPECT_EQ(conversion.Days.size(), 2U);
    EXPECT_EQ(conversion.OutsideCount, 2U);
    EXPECT_EQ(conversion.LeftOut.Count, 0U) << "nobody asked for the bad row";
}

// A row of plain numbers is read in one pass. Quotation marks around its first cell end that, and nothing
// else.
TEST(Conversion, GivesTheSameForPlainRowsAndOthers) {
    std::mt19937 random(7);
    constexpr auto Cells = std::to_array<std::string_view>({"5",
                                                            "5.25",
                                                            "6.5",
                                                            "4",
                                                            "05.00",
                                                            "0",
                                                            "1",
                                                            "086",
                                                            "86",
                                                            "5.",
                                                            ".5",
                                                            "",
                                                            " 5",
                                                            "5 ",
                                                            "-",
                                                            "5e1",
                                                            "1,5",
                                                            "'5",
                                                            "99999999999999",
                                                            "123456789012345.6",
                                                            "5.000000000001",
                                                            "0.1",
                                                            "x",
                                                            "\"5\"",
                                                            "5\r"});
    constexpr auto Dates = std::to_array<std::string_view>(
        {"2019-10-28", "2019-10-29", "2019-10-30", "10/28/2019", "2019-10-28 16:00", "28-Oct-19",
         "1949-12-31", "2019-13-13", "20191028", "\x1a", " 2019-10-28"});
    for (int turn = 0; turn < tests::Repetitions(3000); ++turn) {
        std::string plain = Head;
        std::string quoted = Head;
        for (int row = 0; row < 6; ++row) {
            bool const isUsual = Below(random, 2) == 0;
            std::string const date(isUsual ? Dates[Below(random, 3)] : Dates[Below(random, Dates.size())]);
            std::string cells;
            for (std::size_t cell = 0; cell < 5 + Below(random, 20) / 19; ++cell) {
                constexpr std::array<std::string_view, 5> Usual = {"5", "6.5", "4", "5.25", "100"};
                bool const isOther = Below(random, 12) == 0 || cell >= Usual.size();
                cells.append(",").append(isOther ? Cells[Below(random, Cells.size())] : Usual[cell]);
            }
            std::string const lineEnd = Below(random, 3) == 0 ? "\r\n" : "\n";
            plain += date + cells + lineEnd;
            quoted += (date == "\x1a" ? date : '"' + std::string(text::TrimBlanksAndTabs(date)) + '"') +
                      cells + lineEnd;
        }
        auto const one = ImportText(plain);
        auto const other = ImportText(quoted);
        ASSERT_EQ(RefusalOf(one), RefusalOf(other)) << plain;
        ASSERT_TRUE(AreSameDays(one.Days, other.Days)) << plain;
        ASSERT_EQ(one.RowCount, other.RowCount) << plain;
        ASSERT_EQ(one.RepeatCount, other.RepeatCount) << plain;
        ASSERT_EQ(one.LeftOut.Count, other.LeftOut.Count) << plain;
        ASSERT_EQ(one.WithoutVolume, other.WithoutVolume) << plain;
        ASSERT_EQ(one.WithoutOpenInterest, other.WithoutOpenInterest) << plain;
        ASSERT_EQ(one.Order, other.Order) << plain;
    }
}

TEST(Conversion, RefusesALongLineOfAColumnThatIsNotUsed) {
    std::string const head = "Date,Open,High,Low,Close,Remark\n2019-10-28,5,6,4,5.5,x\n2019-10-29,5,6,4,5.5,";
    EXPECT_EQ(RefusalOf(ImportText(head + std::string(65'000, 'y') + "\n")), "");
    EXPECT_EQ(RefusalOf(ImportText(head + std::string(65'536, 'y') + "\n")),
              "3: The line is longer than 64 KiB");
}

TEST(Conversion, RefusesDatesThatAllowTwoOrders) {
    std::string const table = Table("01/02/2019,5,6,4,5.5,1\n03/02/2019,5,6,4,5,1\n");
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion),
              "2: \"01/02/2019\" and all other dates can be month, day, year or day, month, year");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::DateOrder);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::DateOrder, DateOrder::DayMonthYear)).Days[1].Day,
              text::CalendarDay{std::chrono::year{2019} / 2 / 3});
}

TEST(Conversion, RefusesTheDayInFrontOfTheMonthBehindTheYear) {
    std::string const table = Table("2019-02-10,5,6,4,5.5,1\n2019-31-10,5,6,4,5,1\n");
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion), "3: \"2019-31-10\" has the day in front of the month, behind the year");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::DateOrder);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::DateOrder, DateOrder::YearMonthDay)).LeftOut.Count,
              1U);
}

// At ten in the evening in UTC it is the day behind in the zone of the market.
TEST(Conversion, RefusesTimesThatShiftTheDays) {
    std::string evenings = Head;
    std::string seconds = Head;
    std::string midnights = Head;
    for (int day = 1; day <= 5; ++day) { // Sunday to Thursday
        std::string const date = "2019-09-0" + std::to_string(day);
        evenings += date + "T22:00:00Z,5,6,4,5.5,1\n";
        seconds += std::to_string(1'567'375'200 + 86'400 * (day - 1)) + ",5,6,4,5.5,1\n";
        midnights += date + " 00:00:00,5,6,4,5.5,1\n";
    }
    std::string const refusal = "2: The dates with their times are Sundays to Thursdays: in the zone of the "
                                "market each of them is the day behind. Download dates without times";
    EXPECT_EQ(RefusalOf(ImportText(evenings)), refusal);
    EXPECT_EQ(RefusalOf(ImportText(seconds)), refusal);
    EXPECT_EQ(RefusalOf(ImportText(midnights)), "") << "a market that trades on Sundays";
}

// The rows of the sample leave it open; the one that tells comes later.
TEST(Conversion, LetsALaterRowTellTheOrder) {
    std::string table = Head;
    for (int year = 1960; year < 2010; ++year) {
        for (int month = 1; month <= 12; ++month) {
            table += std::to_string(month) + "/" + std::to_string(1 + (month + year) % 12) + "/" +
                     std::to_string(year) + ",5,6,4,5.5,1\n";
        }
    }
    EXPECT_EQ(ImportText(table).Refused->SettledBy, Choice::DateOrder);
    auto const monthly = Chosen(&imports::Choices::TakesAnyBars, true);
    auto const conversion = ImportText(table + "1/13/2010,5,6,4,5.5,1\n", monthly);
    EXPECT_EQ(RefusalOf(conversion), "");
    EXPECT_EQ(conversion.Days.size(), 601U);
    EXPECT_EQ(conversion.Used.DateOrders, std::vector<DateOrder>{DateOrder::MonthDayYear});
    EXPECT_EQ(RefusalOf(ImportText(table + "1/13/2010,5,6,4,5.5,1\n13/1/2011,5,6,4,5.5,1\n")),
              "603: \"13/1/2011\" does not have the order of the other dates: month, day, year");
    auto const chosen = ImportText(table + "13/1/2011,5,6,4,5.5,1\n",
                                   Chosen(&imports::Choices::DateOrder, DateOrder::MonthDayYear));
    EXPECT_EQ(chosen.LeftOut.Kept[0].Text, "\"13/1/2011\" is no date");
}

TEST(Conversion, RefusesNumbersThatCanBeTwo) {
    std::string const table = "2019-10-28;1.401;1.404;1.399;1.403;1000\n";
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion), "1: the open can be 1.401 or 1401");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::Decimal);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::Decimal, DecimalMark::Comma)).Days[0].Figures[0],
              1401);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::Decimal, DecimalMark::Point)).Days[0].Figures[0],
              1.401);
    EXPECT_EQ(ImportText("2019-10-28;1401;1404;1399;1403\n").Days[0].Figures[0], 1401)
        << "nothing is in doubt";
}

TEST(Conversion, KnowsThatCommasThatSeparateAreNoDecimalMarks) {
    EXPECT_EQ(ImportText("2019-10-28,128.175,128.650,127.650,128.525,36991\n").Days[0].Figures[0], 128.175);
    EXPECT_EQ(RefusalOf(ImportText("2019-10-28,\"128.175\",\"128.650\",\"127.650\",\"128.525\",36991\n")),
              "1: the open can be 128.175 or 128175");
    EXPECT_EQ(RefusalOf(ImportText("2019-10-28,1.401,1.404,1.399,1.403,36.991\n")),
              "1: the open can be 1.401 or 1401")
        << "a volume of 36.991 is rather 36,991";
}

TEST(Conversion, RefusesALaterNumberWithTheOtherMark) {
    std::string table = "Date;Open;High;Low;Close\n";
    for (int day = 0; day < 600; ++day) {
        table += "20" + std::to_string(10 + day / 60) + "-0" + std::to_string(1 + day / 12 % 5) + "-" +
                 std::to_string(10 + day % 12) + ";5;6.5;4;5.5\n";
    }
    EXPECT_EQ(RefusalOf(ImportText(table)), "");
    EXPECT_EQ(RefusalOf(ImportText(table + "2021-01-01;5,5;6;4;5\n")),
              "602: \"5,5\" does not have the decimal mark of the other numbers: point");
}

TEST(Conversion, AsksForTheKindOfFraction) {
    std::string const table = "Date,Open,High,Low,Close\n2019-10-28,118'16,119'00,118'08,118'24\n";
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion), "2: \"118'16\" is a fraction of a kind that is not told");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::Fraction);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::Fraction, 32)).Days[0].Figures[0], 118.5);
    std::string const longer = "Date;Open;High;Low;Close\n2019-10-28;118'160;119'000;118'080;118'240\n";
    EXPECT_EQ(ImportText(longer).Refused->SettledBy, Choice::Fraction);
    EXPECT_EQ(ImportText(longer, Chosen(&imports::Choices::Fraction, 32)).Days[0].Figures[0], 118.5);
    EXPECT_EQ(ImportText(longer, Chosen(&imports::Choices::Fraction, imports::NoFraction)).Days[0].Figures[0],
              118'160);
}

TEST(Conversion, CountsDaysWithMarksOfSettlements) {
    auto const conversion =
        ImportText(Table("2019-10-28,5,6,4,5.5,1\n2019-10-29,5,6,4,5.5s,1\n2019-10-30,5s,6s,4s,5.5s,1\n"));
    EXPECT_EQ(RefusalOf(conversion), "");
    EXPECT_EQ(conversion.Days[1].Figures[3], 5.5);
    EXPECT_EQ(conversion.SettlementMarks.Count, 2U);
    EXPECT_EQ(conversion.SettlementMarks.FirstLine, 3U);
}

TEST(Conversion, RefusesADateThatCanHaveItsYearOnEitherSideOfTheMonth) {
    std::string const table = Table("20-Mar-05,5,6,4,5.5,1\n");
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion),
              "2: \"20-Mar-05\" and all other dates can be day, month, year or year, month, day");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::DateOrder);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::DateOrder, DateOrder::DayMonthYear)).Days[0].Day,
              text::CalendarDay{std::chrono::year{2005} / 3 / 20});
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::DateOrder, DateOrder::YearMonthDay)).Days[0].Day,
              text::CalendarDay{std::chrono::year{2020} / 3 / 5});
}

TEST(Conversion, TakesTheContractWithoutAName) {
    std::string const table = "Symbol,Date,Open,High,Low,Close\nZWH24,2019-10-28,5,6,4,5.5\n"
                              ",2019-10-28,15,16,14,15.5\n,2019-10-29,15,16,14,15.5\n";
    EXPECT_EQ(RefusalOf(ImportText(table)), "0: There are several contracts: ZWH24, one without a name");
    auto const unnamed = ImportText(table, Chosen(&imports::Choices::Symbol, std::string()));
    EXPECT_EQ(RefusalOf(unnamed), "");
    EXPECT_EQ(unnamed.Days.size(), 2U);
    EXPECT_EQ(unnamed.Days[0].Figures[0], 15);
    EXPECT_EQ(unnamed.Symbols, (std::vector<std::string>{"", "ZWH24"}));
    std::string const named = "Symbol,Month,Date,Open,High,Low,Close\nZW,,2019-10-28,5,6,4,5.5\n";
    EXPECT_EQ(RefusalOf(ImportText(named, Chosen(&imports::Choices::Symbol, std::string()))),
              "0: There is no contract without a name, but ZW");
}

TEST(Conversion, RefusesHalvesOfNumbersThatAreNotQuoted) {
    EXPECT_EQ(RefusalOf(ImportText("2019-10-28,5,6,4,5.5,25,286\n2019-10-29,5,6,4,5.5,25,086\n")),
              "2: \"086\" looks like the end of a number with a thousands comma");
    std::string const headed = "Date,Open,High,Low,Close,Volume,OI\n2019-10-28,5,6,4,5.5,25,086\n";
    EXPECT_EQ(ImportText(headed).Refused->SettledBy, Choice::Columns);
    EXPECT_EQ(RefusalOf(ImportText(headed, ChosenColumns({{"OI", imports::Role::OpenInterest}}))), "");
    EXPECT_EQ(RefusalOf(ImportText("2019-10-28,5,6,4,5.5,0.0,100\n")), "");
}

TEST(Conversion, RefusesTheTurnOfTwoDigitYears) {
    EXPECT_EQ(
        RefusalOf(ImportText(Table("12/29/49,5,6,4,5.5,1\n12/30/49,5,6,4,5.5,1\n1/3/50,5,6,4,5.5,1\n"))),
        "4: \"1/3/50\" is a century away from the day before: years of two digits are 1950 to 2049. Take the "
        "days of one side alone");
}

TEST(Conversion, CountsWhatIsMissingAndWeekends) {
    auto const conversion = ImportText(Table("2019-10-26,5,6,4,5.5,-\n2019-10-28,5,6,4,5.5,1\n"));
    EXPECT_EQ(conversion.WithoutVolume, 1U);
    EXPECT_EQ(conversion.WithoutOpenInterest, 2U);
    EXPECT_EQ(conversion.WeekendCount, 1U);
}

TEST(Conversion, KeepsAThousandFindingsAndCountsTheRest) {
    std::string table = Table("2019-10-28,5,6,4,5.5,1\n");
    for (int row = 0; row < 1500; ++row) {
        table += "2019-10-29,x,6,4,5.5,1\n";
    }
    auto const conversion = ImportText(table);
    EXPECT_EQ(conversion.LeftOut.Count, 1500U);
    EXPECT_EQ(conversion.LeftOut.Kept.size(), imports::MostFindings);
}

TEST(Conversion, TellsOfAQuotationMarkThatIsNotClosed) {
    EXPECT_EQ(RefusalOf(ImportText(Table("2019-10-28,5,6,4,5.5,1\n\"2019-10-29,5,6,4,5.5,1\n"))),
              "3: The quotation mark is not closed");
}

} // namespace
} // namespace quorvex::tests
