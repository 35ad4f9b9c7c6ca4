// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tables in the layouts of vendors, with figures of our own, and what becomes of them.

#include "Tables.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

using imports::Choice;
using imports::Role;

// Three days, the newest one first unless told otherwise.
std::vector<imports::DayQuote> Days(bool hasVolume = true, bool hasOpenInterest = true) {
    std::vector<imports::DayQuote> days;
    auto const add = [&](int day, std::array<double, 6> figures) {
        figures[4] = hasVolume ? figures[4] : 0;
        figures[5] = hasOpenInterest ? figures[5] : 0;
        days.push_back({std::chrono::year{2019} / 10 / day, figures});
    };
    add(29, {401.5, 404.25, 399.75, 403, 22540, 120'500});
    add(30, {403.25, 405, 401.25, 401.5, 19'870, 121'940});
    add(31, {401.25, 402.75, 398.5, 399.25, 31'310, 119'780});
    return days;
}

void ExpectDays(std::string_view table, std::vector<imports::DayQuote> const& days,
                imports::Choices const& choices = {}) {
    auto const conversion = ImportText(table, choices);
    EXPECT_EQ(RefusalOf(conversion), "") << table;
    EXPECT_TRUE(AreSameDays(conversion.Days, days)) << table;
    EXPECT_EQ(conversion.LeftOut.Count, 0U) << table;
}

TEST(VendorTables, BarchartFromTheWeb) {
    ExpectDays("Symbol,Time,Open,High,Low,Last,Change,%Chg,Volume,\"Open Int\"\r\n"
               "ZWH20,10/31/2019,401.25,402.75,398.50,399.25,-2.25,-0.56%,31310,119780\r\n"
               "ZWH20,10/30/2019,403.25,405.00,401.25,401.50,-1.50,-0.37%,19870,121940\r\n"
               "ZWH20,10/29/2019,401.50,404.25,399.75,403.00,+1.00,+0.25%,22540,120500\r\n"
               "\"Downloaded from Barchart.com as of 11-05-2019 05:05pm CST\"\r\n",
               Days());
    ExpectDays("Time,Open,High,Low,Latest,Change,%Change,Volume,Open Int\n"
               "2019-10-31,401.25,402.75,398.50,399.25,-2.25,-0.56%,\"31,310\",\"119,780\"\n"
               "2019-10-30,403.25,405.00,401.25,401.50,-1.50,-0.37%,\"19,870\",\"121,940\"\n"
               "2019-10-29,401.50,404.25,399.75,403.00,+1.00,+0.25%,\"22,540\",\"120,500\"\n",
               Days());
    ExpectDays("Time,Open,High,Low,Last,Change,Volume,\"Open Int\"\n"
               "10/31/19,401'2,402'6,398'4,399'2,-2'2,31310,119780\n"
               "10/30/19,403'2,405'0,401'2,401'4,-1'4,19870,121940\n"
               "10/29/19,401'4,404'2,399'6,403'0,1'0,22540,120500\n",
               Days());
}

TEST(VendorTables, SettlementGoesBeforeLast) {
    auto const conversion =
        ImportText("Date,Open,High,Low,Last,Change,Settle,Volume,Previous Day Open Interest\n"
                   "2019-10-29,401.5,404.25,399.75,402.75,,403.0,22540.0,120500.0\n"
                   "2019-10-30,403.25,405.0,401.25,401.25,1.5,401.5,19870.0,121940.0\n"
                   "2019-10-31,401.25,402.75,398.5,399.0,2.25,399.25,31310.0,119780.0\n");
    EXPECT_TRUE(AreSameDays(conversion.Days, Days()));
    EXPECT_EQ(conversion.Used.Columns[6].Is, Role::Close);
    EXPECT_EQ(conversion.Used.Columns[4].Is, Role::Unused);
    EXPECT_EQ(conversion.Used.Columns[4].Reason, "the close is column 7 (Settle)");
}

TEST(VendorTables, TheExactVolumeIsTaken) {
    ExpectDays("Date,Open,High,Low,Settle,Change,Wave,Volume,Prev. Day Open Interest,EFP Volume,EFS "
               "Volume,Block Volume\n"
               "2019-10-29,401.5,404.25,399.75,403.0,,1,22540.0,120500.0,1.0,2.0,\n"
               "2019-10-30,403.25,405.0,401.25,401.5,,1,19870.0,121940.0,3.0,4.0,\n"
               "2019-10-31,401.25,402.75,398.5,399.25,,1,31310.0,119780.0,5.0,6.0,\n",
               Days());
}

TEST(VendorTables, YahooWithThreeLevelsOfHeadings) {
    ExpectDays("Price,Close,High,Low,Open,Volume\r\n"
               "Ticker,ZW=F,ZW=F,ZW=F,ZW=F,ZW=F\r\n"
               "Date,,,,,\r\n"
               "2019-10-29,403.0,404.25,399.75,401.5,22540\r\n"
               "2019-10-30,401.5,405.0,401.25,403.25,19870\r\n"
               "2019-10-31,399.25,402.75,398.5,401.25,31310\r\n",
               Days(true, false));
}

TEST(VendorTables, YahooWithAdjustedCloseAndEmptyDays) {
    auto const conversion = ImportText("Date,Open,High,Low,Close,Adj Close,Volume\n"
                                       "2019-10-28,null,null,null,null,null,null\n"
                                       "2019-10-29,401.5,404.25,399.75,403,390.1,22540\n"
                                       "2019-10-30,403.25,405,401.25,401.5,388.5,19870\n"
                                       "2019-10-31,401.25,402.75,398.5,399.25,386,31310\n");
    EXPECT_TRUE(AreSameDays(conversion.Days, Days(true, false)));
    ASSERT_EQ(conversion.LeftOut.Count, 1U);
    EXPECT_EQ(conversion.LeftOut.Kept[0].Line, 2U);
    EXPECT_EQ(conversion.LeftOut.Kept[0].Text, "the open is missing");
}

TEST(VendorTables, InvestingWithUnitsAndAMark) {
    auto days = Days(true, false);
    days[1].Figures[4] = 0; // "-"
    ExpectDays("\xEF\xBB\xBF\"Date\",\"Price\",\"Open\",\"High\",\"Low\",\"Vol.\",\"Change %\"\n"
               "\"10/31/2019\",\"399.25\",\"401.25\",\"402.75\",\"398.50\",\"31.31K\",\"-0.56%\"\n"
               "\"10/30/2019\",\"401.50\",\"403.25\",\"405.00\",\"401.25\",\"-\",\"-0.37%\"\n"
               "\"10/29/2019\",\"403.00\",\"401.50\",\"404.25\",\"399.75\",\"22.54K\",\"0.25%\"\n",
               days);
    ExpectDays("Date,Price,Open,High,Low,Vol.,Change %\r\n"
               "29-Oct-19,403,401.5,404.25,399.75,22.54K,0.25%\r\n"
               "30-Oct-19,401.5,403.25,405,401.25,-,-0.37%\r\n"
               "31-Oct-19,399.25,401.25,402.75,398.5,31.31K,-0.56%\r\n",
               days);
    ExpectDays("Datum;Zuletzt;Er\xF6"
               "ffn.;Hoch;Tief;Vol.;+/- %\n"
               "31.10.2019;399,25;401,25;402,75;398,50;31,31K;-0,56%\n"
               "30.10.2019;401,50;403,25;405,00;401,25;-;-0,37%\n"
               "29.10.2019;403,00;401,50;404,25;399,75;22,54K;0,25%\n",
               days, ChosenColumns({{"3", Role::Open}}));
}

TEST(VendorTables, StooqWithRowsOfDifferentLengths) {
    auto days = Days();
    days[0].Figures[4] = 0;
    days[0].Figures[5] = 0;
    days[2].Figures[5] = 0;
    auto const conversion = ImportText("Data,Otwarcie,Najwyzszy,Najnizszy,Zamkniecie,Wolumen,LOP\r\n"
                                       "2019-10-29,401.5,404.25,399.75,403\r\n"
                                       "2019-10-30,403.25,405,401.25,401.5,19870,121940\r\n"
                                       "2019-10-31,401.25,402.75,398.5,399.25,31310\r\n");
    EXPECT_TRUE(AreSameDays(conversion.Days, days));
    EXPECT_EQ(conversion.WithoutVolume, 1U);
    EXPECT_EQ(conversion.WithoutOpenInterest, 2U);
}

TEST(VendorTables, MetaStockAndTradeStationWithTimes) {
    ExpectDays("<TICKER>,<PER>,<DATE>,<TIME>,<OPEN>,<HIGH>,<LOW>,<CLOSE>,<VOL>,<OPENINT>\r\n"
               "ZW.F,D,20191029,000000,401.50,404.25,399.75,403.00,22540,120500\r\n"
               "ZW.F,D,20191030,000000,403.25,405.00,401.25,401.50,19870,121940\r\n"
               "ZW.F,D,20191031,000000,401.25,402.75,398.50,399.25,31310,119780\r\n",
               Days());
    ExpectDays("\"Date\",\"Time\",\"Open\",\"High\",\"Low\",\"Close\",\"Vol\",\"OI\"\r\n"
               "10/29/2019,13:20,401.50,404.25,399.75,403.00,22540,120500\r\n"
               "10/30/2019,13:20,403.25,405.00,401.25,401.50,19870,121940\r\n"
               "10/31/2019,13:20,401.25,402.75,398.50,399.25,31310,119780\r\n",
               Days());
}

TEST(VendorTables, SymbolAndMonthWithoutHeadings) {
    ExpectDays("W,H2020,10/29/2019,401.50,404.25,399.75,403.00\r\n"
               "W,H2020,10/30/2019,403.25,405.00,401.25,401.50\r\n"
               "W,H2020,10/31/2019,401.25,402.75,398.50,399.25\r\n",
               Days(false, false));
    imports::Choices choices;
    choices.DateOrder = imports::DateOrder::YearMonthDay; // three rows are too few to tell
    ExpectDays("W,2020H,191029,401.50,404.25,399.75,403.00,22540,120500\r\n"
               "W,2020H,191030,403.25,405.00,401.25,401.50,19870,121940\r\n"
               "W,2020H,191031,401.25,402.75,398.50,399.25,31310,119780\r\n",
               Days(), choices);
}

// A small letter of the month marks the volume and open interest of a day, mostly of the day before.
TEST(VendorTables, VolumeInLinesOfItsOwn) {
    auto days = Days();
    days[2].Figures[4] = 0;
    days[2].Figures[5] = 0;
    std::string const table = "W,H2020,10/29/2019,401.50,404.25,399.75,403.00\r\n"
                              "W,H2020,10/30/2019,403.25,405.00,401.25,401.50\r\n"
                              "W,h2020,10/29/2019,22540,120500,19900\r\n"
                              "W,dvl,10/29/2019,62540,320500,59900\r\n"
                              "W,H2020,10/31/2019,401.25,402.75,398.50,399.25\r\n"
                              "W,h2020,10/30/2019,19870,121940,31300\r\n";
    ExpectDays(table, days);
    EXPECT_EQ(ImportText(table).WithoutVolume, 1U);
    EXPECT_EQ(ImportText(table).Notes.Count, 1U) << "the volume of all months";
    EXPECT_EQ(RefusalOf(ImportText(table + "W,h2020,10/30/2019,19871,121940,31300\r\n")),
              "7: The day of line 6 again with other figures: take one of both rows out");
}

TEST(VendorTables, TotalsOfAllContracts) {
    ExpectDays("20191029,401.50,404.25,399.75,403.00,22540,120500,45080,241000\r\n"
               "20191030,403.25,405.00,401.25,401.50,19870,121940,39740,243880\r\n"
               "20191031,401.25,402.75,398.50,399.25,31310,119780,62620,239560\r\n",
               Days());
}

TEST(VendorTables, RefusesSeveralContracts) {
    std::string const table = "SP,Z2003,10/29/2019,401.50,404.25,399.75,403.00\n"
                              "SP,H2004,10/29/2019,402.50,405.25,400.75,404.00\n"
                              "SP,Z2003,10/30/2019,403.25,405.00,401.25,401.50\n";
    auto const conversion = ImportText(table);
    EXPECT_EQ(RefusalOf(conversion), "0: There are several contracts: SP Z2003, SP H2004");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::Symbol);
    auto const chosen = ImportText(table, Chosen(&imports::Choices::Symbol, "sp z2003"));
    EXPECT_EQ(RefusalOf(chosen), "");
    EXPECT_EQ(chosen.Days.size(), 2U);
    EXPECT_EQ(chosen.OtherSymbolCount, 1U);
    EXPECT_EQ(ImportText(table, Chosen(&imports::Choices::Symbol, "H2004")).Days.size(), 1U);
    EXPECT_EQ(RefusalOf(ImportText(table, Chosen(&imports::Choices::Symbol, "SP"))),
              "0: There are several contracts: SP Z2003, SP H2004");
    EXPECT_EQ(RefusalOf(ImportText(table, Chosen(&imports::Choices::Symbol, "X"))),
              "0: There is no contract X, but SP Z2003, SP H2004");
}

TEST(VendorTables, RefusesAFileOfOptions) {
    EXPECT_EQ(RefusalOf(ImportText("SP,Z2003,1100P,10/29/2019,57.1,58.2,56.3,57.2\n"
                                   "SP,Z2003,1110P,10/29/2019,52.1,53.2,51.3,52.2\n")),
              "0: There are several contracts: SP Z2003 1100P, SP Z2003 1110P");
}

TEST(VendorTables, RefusesATableWithoutAPrice) {
    auto const conversion = ImportText("Date,Open,High,Close,Volume\n"
                                       "2019-10-29,401.5,404.25,403,22540\n");
    EXPECT_EQ(RefusalOf(conversion), "0: No column is the low");
    EXPECT_EQ(conversion.Refused->SettledBy, Choice::Columns);
}

TEST(VendorTables, RefusesRowsOfLessThanADay) {
    EXPECT_EQ(RefusalOf(ImportText("Date,Time,Open,High,Low,Close\n"
                                   "2019-10-29,09:30,401.5,404.25,399.75,403\n"
                                   "2019-10-29,09:35,403.25,405,401.25,401.5\n")),
              "3: The day of line 2 again at another time: rows of less than a day. Download daily ones");
    EXPECT_EQ(RefusalOf(ImportText("2019-10-29 09:30,401.5,404.25,399.75,403\n"
                                   "2019-10-29 09:35,403.25,405,401.25,401.5\n")),
              "2: The day of line 1 again at another time: rows of less than a day. Download daily ones");
    EXPECT_EQ(RefusalOf(ImportText("1572307200,401.5,404.25,399.75,403\n"
                                   "1572310800,401.5,404.25,399.75,403\n")),
              "2: The day of line 1 again at another time: rows of less than a day. Download daily ones");
    EXPECT_EQ(RefusalOf(ImportText("2019-10-29,0930,401.5,404.25,399.75,403\n"
                                   "2019-10-29,0935,401.5,404.25,399.75,403\n"
                                   "2019-10-29,0940,401.5,404.25,399.75,403\n")),
              "2: The day of line 1 again at another time: rows of less than a day. Download daily ones");
}

} // namespace
} // namespace quorvex::tests
