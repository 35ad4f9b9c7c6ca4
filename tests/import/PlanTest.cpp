// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/Plan.h"

#include "Tables.h"
#include "import/Sample.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

using imports::Choice;
using imports::Choices;
using imports::DateOrder;
using imports::DecimalMark;
using imports::Plan;
using imports::Role;
using imports::Separator;

Plan PlanOf(std::string_view table, Choices const& choices = {}) {
    return imports::MakePlan(imports::ReadSample(table, true, choices.Separator), imports::Encoding::Utf8,
                             choices);
}

std::string RefusalText(Plan const& plan) {
    return plan.Refused ? plan.Refused->Told.Text : std::string();
}

// The roles of the columns by their first letters, "-" for one that is not used.
std::string RolesOf(Plan const& plan) {
    std::string roles;
    for (imports::ColumnPlan const& column : plan.Columns) {
        roles += column.Is == Role::Unused         ? '-'
                 : column.Is == Role::OpenInterest ? 'I'
                 : column.Is == Role::Time         ? 't'
                                           : static_cast<char>(std::toupper(imports::NameOf(column.Is)[0]));
    }
    return roles;
}

constexpr std::string_view Rows = "2019-10-29,401.5,404.25,399.75,403,22540,120500\n"
                                  "2019-10-30,403.25,405,401.25,401.5,19870,121940\n"
                                  "2019-10-31,401.25,402.75,398.5,399.25,31310,119780\n";

std::string Under(std::string_view head) {
    return std::string(head).append("\n").append(Rows);
}

TEST(Plan, FindsTheSeparator) {
    EXPECT_EQ(PlanOf(Rows).SeparatedBy, Separator::Comma);
    EXPECT_EQ(PlanOf("29.10.2019;401,5;404,25;399,75;403\n").SeparatedBy, Separator::Semicolon);
    EXPECT_EQ(PlanOf("2019-10-29\t401.5\t404.25\t399.75\t403\n").SeparatedBy, Separator::Tab);
    EXPECT_EQ(PlanOf("2019-10-29|401.5|404.25|399.75|403\n").SeparatedBy, Separator::Bar);
    EXPECT_EQ(PlanOf("2019-10-29  401.5 404.25\t399.75 403\n").SeparatedBy, Separator::Blanks);
    EXPECT_EQ(PlanOf("10/29/19, 401.50, 404.25, 399.75, 403.00\n").SeparatedBy, Separator::Comma);
}

TEST(Plan, RefusesWhatIsNoTable) {
    for (auto const* text : {"no table at all", "a,b,c,d,e\n1,2,3,4,5\n", "2019-10-29,401.5,404.25\n"}) {
        auto const plan = PlanOf(text);
        EXPECT_EQ(RefusalText(plan), "No row with a date and four prices was found") << text;
    }
    EXPECT_EQ(RefusalText(PlanOf(Rows, Chosen(&imports::Choices::Separator, Separator::Tab))),
              "No row with a date and four prices was found");
}

TEST(Plan, TellsWhatKindOfFileHasNoTable) {
    EXPECT_EQ(RefusalText(PlanOf("")), "The table is empty");
    EXPECT_EQ(RefusalText(PlanOf("\n \n")), "The table is empty");
    std::string const noText = "The file is no text. Save the table as text with separators (CSV)";
    EXPECT_EQ(RefusalText(PlanOf("PK\x03\x04 a workbook")), noText);
    EXPECT_EQ(RefusalText(PlanOf(std::string(200'000, '\0'))), noText);
    for (auto const* page : {"\n<!DOCTYPE html>\n", "<html><body>", "<table>", "<?xml version='1.0'?>"}) {
        EXPECT_EQ(RefusalText(PlanOf(page)),
                  "The file is a web page. Save its table as text with separators (CSV)");
    }
}

TEST(Plan, TellsColumnsByHeadingsInFourLanguages) {
    for (auto const* head :
         {"Date,Open,High,Low,Close,Volume,Open Interest", "trade date,o,h,l,c,v,oi",
          "Datum,Er\xC3\xB6"
          "ffnung,Hoch,Tief,Schlusskurs,Volumen,Offene Positionen",
          "Date,Ouverture,Plus haut,Plus bas,Dernier,Vol.,Positions ouvertes",
          "Fecha,Apertura,M\xC3\xA1x,M\xC3\xADnimo,\xC3\x9Altimo,Volumen,Inter\xC3\xA9s abierto",
          "DATE,OPEN,HIGH,LOW,PRICE,VOL,OP. INT.", "Time,Open,High,Low,Last,Volume,OpenInt"}) {
        EXPECT_EQ(RolesOf(PlanOf(Under(head))), "DOHLCVI") << head;
    }
    EXPECT_EQ(RolesOf(PlanOf(Under(",Open,High,Low,Close,Volume,Trades"))), "DOHLCV-")
        << "a day without heading";
}

TEST(Plan, PrefersTheSmallerRank) {
    EXPECT_EQ(RolesOf(PlanOf(Under("Date,Open,High,Low,Settle,Volume,Total Volume"))), "DOHLCV-");
    EXPECT_EQ(RolesOf(PlanOf(Under("Date,Open,High,Low,Last,Close,Settlement"))), "DOHL--C");
    EXPECT_EQ(RolesOf(PlanOf(Under("Date,Open,High,Low,Adj Close,Close,Price"))), "DOHL-C-");
}

TEST(Plan, PassesOverADateHeadingAboveNoDays) {
    auto const plan = PlanOf("Date,When,Open,High,Low,Close\n"
                             "noon,2019-10-29,401.5,404.25,399.75,403\n"
                             "noon,2019-10-30,403.25,405,401.25,401.5\n");
    EXPECT_EQ(RefusalText(plan), "");
    EXPECT_EQ(plan.Find(Role::Date), 1U);
}

TEST(Plan, RefusesTwoCandidates) {
    auto const plan = PlanOf(Under("Date,Open,High,Low,Close,Close,Volume"));
    EXPECT_EQ(RefusalText(plan), "Column 5 (Close) and column 6 (Close) can both be the close");
    EXPECT_EQ(plan.Refused->SettledBy, Choice::Columns);
    Choices choices;
    choices.Columns = {{"6", Role::Close}};
    EXPECT_EQ(RolesOf(PlanOf(Under("Date,Open,High,Low,Close,Close,Volume"), choices)), "DOHL-CV");
    EXPECT_EQ(RefusalText(PlanOf("2019-10-29,2019-10-29,401.5,404.25,399.75,403\n")),
              "Column 1 and column 2 can both be the date");
}

TEST(Plan, TellsColumnsByContent) {
    EXPECT_EQ(RolesOf(PlanOf(Rows)), "DOHLCVI");
    EXPECT_EQ(RolesOf(PlanOf("ZW,1,2019-10-29,13:20,401.5,404.25,399.75,403,22540\n")), "SSDtOHLCV");
    EXPECT_EQ(
        RolesOf(PlanOf("2019-10-29,0930,401.5,404.25,399.75,403\n2019-10-29,0935,401.5,404.25,399.75,403\n"
                       "2019-10-29,0940,401.5,404.25,399.75,403\n")),
        "DtOHLC");
    EXPECT_EQ(RolesOf(PlanOf("Tue,2019-10-29,401.5,404.25,399.75,403\n"
                             "Wed,2019-10-30,401.5,404.25,399.75,403\n")),
              "-DOHLC");
    EXPECT_EQ(RolesOf(PlanOf("20191029,401.5,404.25,399.75,403\n")), "DOHLC");
    EXPECT_EQ(RefusalText(PlanOf("2019-10-29,401.5,399.75,404.25,403\n")), "No column is the open");
    EXPECT_EQ(RefusalText(PlanOf("2019-10-29,401.5,404.25,399.75,403,401.7,22540\n")),
              "The columns behind the close are not just volume and open interest");
}

// A column that names contracts may stand anywhere and have any heading, or none.
TEST(Plan, TakesWhatRepeatsForNamesOfContracts) {
    std::string behind;
    std::string numbers;
    std::string headed = "Date,Open,High,Low,Close,Series\n";
    std::string counted = ",Date,Open,High,Low,Close,Remark\n";
    for (int day = 10; day < 20; ++day) {
        std::string const date = "2019-10-" + std::to_string(day);
        std::string const prices = ",401.5,404.25,399.75,403";
        behind += date + (day < 15 ? ",ZWZ19" : ",ZWH20") + prices + "\n";
        numbers += (day < 15 ? "201912," : "202003,") + date + prices + "\n";
        headed += date + prices + (day < 15 ? ",ZWZ19\n" : ",ZWH20\n");
        counted += std::to_string(day) + "," + date + prices + (day == 12 ? ",holiday\n" : ",\n");
    }
    EXPECT_EQ(RolesOf(PlanOf(behind)), "DSOHLC");
    EXPECT_EQ(RolesOf(PlanOf(numbers)), "SDOHLC");
    EXPECT_EQ(RolesOf(PlanOf(headed)), "DOHLCS");
    EXPECT_EQ(RolesOf(PlanOf(counted)), "-DOHLC-");
}

// Open and close are alike, but a day opens near the close before.
TEST(Plan, DoesNotTakeCloseForOpen) {
    std::string closeFirst;
    std::string newestFirst;
    for (int day = 10; day < 28; ++day) {
        int const close = 400 + (day % 5) * 7;
        int const open = 400 + ((day + 4) % 5) * 7;
        auto const row = [&](int first, int fourth) {
            return "2019-10-" + std::to_string(day) + "," + std::to_string(first) + ",440,390," +
                   std::to_string(fourth) + "\n";
        };
        closeFirst += row(close, open);
        newestFirst.insert(0, row(open, close));
    }
    EXPECT_EQ(RefusalText(PlanOf(closeFirst)), "Column 2 and column 5 can both be the open");
    EXPECT_EQ(RolesOf(PlanOf(newestFirst)), "DOHLC");
}

TEST(Plan, TakesWhatTheUserChose) {
    Choices choices;
    choices.Columns = {{"Last", Role::Close}, {"volume", Role::Unused}};
    EXPECT_EQ(RolesOf(PlanOf(Under("Date,Open,High,Low,Last,Volume,Settle"), choices)), "DOHLC--");
    EXPECT_EQ(RefusalText(PlanOf(Rows, ChosenColumns({{"8", Role::Open}}))), "There is no column 8");
    EXPECT_EQ(RefusalText(PlanOf(Rows, ChosenColumns({{"2", Role::Open}, {"3", Role::Open}}))),
              "Column 2 and column 3 can both be the open");
    Choices all;
    all.Columns = {
        {"1", Role::Date}, {"5", Role::Open}, {"3", Role::High}, {"4", Role::Low}, {"2", Role::Close}};
    all.OnlyChosenColumns = true;
    EXPECT_EQ(RolesOf(PlanOf(Rows, all)), "DCHLO--");
}

TEST(Plan, TakesLettersForAHeadWhenThereAreEnough) {
    EXPECT_EQ(PlanOf(Under("d,o,h,l,c,v,i")).HeadLines, std::vector<std::uint64_t>{1});
    EXPECT_EQ(PlanOf(Under("a,b,c,d,e,f,g")).HeadLines, std::vector<std::uint64_t>{});
}

TEST(Plan, SkipsNotesAboveTheHead) {
    auto const plan =
        PlanOf(Under("Wheat\n\nExported by somebody, 2019\nDate,Open,High,Low,Close,Volume,OI"));
    EXPECT_EQ(RolesOf(plan), "DOHLCVI");
    ASSERT_EQ(plan.Notes.size(), 2U);
    EXPECT_EQ(plan.Notes[1].Line, 3U);
    EXPECT_EQ(plan.HeadLines, std::vector<std::uint64_t>{4});
    EXPECT_EQ(plan.FirstLine, 5U);
}

TEST(Plan, RefusesRowsWiderThanTheHead) {
    EXPECT_EQ(RefusalText(PlanOf(Under("Open,High,Low,Close,Volume,OI"))),
              "The row has 7 cells under 6 headings");
}

TEST(Plan, TellsTheOrderOfDatesByTheWholeColumn) {
    auto const orders = [](std::string const& dates) {
        std::string table;
        for (std::size_t at = 0; at < dates.size(); at += 11) {
            table += dates.substr(at, 10) + ",401.5,404.25,399.75,403\n";
        }
        return PlanOf(table).DateOrders;
    };
    using OrderList = std::vector<DateOrder>;
    EXPECT_EQ(orders("01/02/2019 01/13/2019"), OrderList{DateOrder::MonthDayYear});
    EXPECT_EQ(orders("01/02/2019 13/02/2019"), OrderList{DateOrder::DayMonthYear});
    EXPECT_EQ(orders("01/02/2019 03/02/2019"), (OrderList{DateOrder::MonthDayYear, DateOrder::DayMonthYear}));
    EXPECT_EQ(orders("2019-02-01 2019-02-03"), OrderList{DateOrder::YearMonthDay});
    EXPECT_EQ(orders("02/02/2019 03/03/2019"), OrderList{DateOrder::MonthDayYear}) << "both mean the same";
    EXPECT_EQ(RefusalText(PlanOf("13/01/2019,401.5,404.25,399.75,403\n01/13/2019,401.5,404.25,399.75,403\n")),
              "The dates have no common order: 01/13/2019 and 13/01/2019");
}

std::string WithDates(std::vector<std::string> const& dates) {
    std::string table;
    for (std::string const& date : dates) {
        table += date + ",401.5,404.25,399.75,403\n";
    }
    return table;
}

// 20-Mar-05 is the 5th of March 2020 or the 20th of March 2005.
TEST(Plan, TellsWhetherTheYearStandsInFrontOfANameByTheOtherDays) {
    using OrderList = std::vector<DateOrder>;
    auto const days = PlanOf(WithDates({"20-Mar-05", "20-Mar-06", "20-Mar-09", "20-Mar-10"}));
    EXPECT_EQ(days.DateOrders, OrderList{DateOrder::YearMonthDay});
    EXPECT_EQ(days.DateReason, "the days follow each other");
    auto const usual = PlanOf(WithDates({"12-Nov-19", "13-Nov-19"}));
    EXPECT_EQ(usual.DateOrders, OrderList{DateOrder::DayMonthYear});
    EXPECT_EQ(usual.DateReason, "the days follow each other");
    auto const single = PlanOf(WithDates({"8-Nov-19", "11-Nov-19"}));
    EXPECT_EQ(single.DateOrders, OrderList{DateOrder::DayMonthYear});
    EXPECT_EQ(single.DateReason, "the dates tell it themselves");
    auto const months = PlanOf(WithDates({"25-Oct-19", "28-Oct-19", "29-Oct-19", "30-Oct-19", "31-Oct-19",
                                          "01-Nov-19", "04-Nov-19", "05-Nov-19", "06-Nov-19", "07-Nov-19"}));
    EXPECT_EQ(months.DateOrders, OrderList{DateOrder::DayMonthYear});
    EXPECT_EQ(months.DateReason, "the rows are in order");
    EXPECT_EQ(PlanOf(WithDates({"Nov 5 19", "Nov 6 19"})).DateOrders, OrderList{DateOrder::MonthDayYear});
}

TEST(Plan, LeavesOpenWhetherTheYearStandsInFrontOfAName) {
    std::vector<DateOrder> const both = {DateOrder::DayMonthYear, DateOrder::YearMonthDay};
    EXPECT_EQ(PlanOf(WithDates({"20-Mar-05"})).DateOrders, both);
    EXPECT_EQ(PlanOf(WithDates({"05-Mar-20", "05-Apr-20", "05-May-20"})).DateOrders, both)
        << "monthly either way";
}

TEST(Plan, TellsThatMarksOfSettlementsArePassedOver) {
    auto const plan = PlanOf("Date,Open,High,Low,Close,Volume\n2019-10-29,401'4,404'2,399'6,403'0s,22540\n");
    EXPECT_EQ(RolesOf(plan), "DOHLCV");
    EXPECT_EQ(plan.Columns[4].Reason, "heading, without the mark s of settlements");
    EXPECT_EQ(plan.Columns[3].Reason, "heading");
}

TEST(Plan, AsksForTheFractionWhereItHidesThePrices) {
    std::string_view const table = "2019-10-29,118-16,118-20,118-10,118-12\n";
    auto const plan = PlanOf(table);
    EXPECT_EQ(RefusalText(plan), "\"118-16\" is a fraction of a kind that is not told");
    EXPECT_EQ(plan.Refused->SettledBy, Choice::Fraction);
    Choices choices;
    choices.Fraction = 32;
    EXPECT_EQ(RolesOf(PlanOf(table, choices)), "DOHLC");
}

TEST(Plan, TellsWhatIsNoNumberInARowThatIsNearlyOne) {
    auto const plan = PlanOf("Date;Open;High;Low;Close\n2019-10-29;401.5x;404.25x;399.75x;403x\n");
    EXPECT_EQ(RefusalText(plan), "No row with a date and four prices was found: \"401.5x\" is no number");
    EXPECT_EQ(plan.Refused->Told.Line, 2U);
    EXPECT_EQ(plan.Refused->SettledBy, Choice::None);
    auto const other = PlanOf("Date,Text\n2019-10-29,none\n");
    EXPECT_EQ(RefusalText(other), "No row with a date and four prices was found");
    EXPECT_EQ(other.Refused->SettledBy, Choice::Separator);
}

TEST(Plan, TellsTheDecimalMarkByAllNumbers) {
    using Marks = std::vector<DecimalMark>;
    auto const marks = [](std::string_view row) { return PlanOf(row).Decimals; };
    EXPECT_EQ(marks("2019-10-29;401,5;404,25;399,75;403\n"), Marks{DecimalMark::Comma});
    EXPECT_EQ(marks("2019-10-29;401.5;404.25;399.75;403\n"), Marks{DecimalMark::Point});
    EXPECT_EQ(marks("2019-10-29;1.401;1.404;1.399;1.403\n"), (Marks{DecimalMark::Point, DecimalMark::Comma}));
    EXPECT_EQ(marks("Date;Open;High;Low;Close;Change\n2019-10-29;1.401;1.404;1.399;1.403;+0.054\n"),
              Marks{DecimalMark::Point})
        << "a column that is not used testifies, too";
    EXPECT_EQ(RefusalText(PlanOf("2019-10-29;401.5;404.25;399.75;403\n2019-10-30;401,5;404,25;399,75;403\n")),
              "The decimal mark is a point in 401.5 at line 1 and a comma in 401,5 at line 2");
}

} // namespace
} // namespace quorvex::tests
