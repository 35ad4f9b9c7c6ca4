// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTableDates.h"

#include <gtest/gtest.h>

namespace quorvex::tests {
namespace {

using imports::DateOrder;
using std::chrono::year;

constexpr text::CalendarDay Fifth{year{2019} / 11 / 5};
constexpr std::array<DateOrder, 3> Orders = {DateOrder::YearMonthDay, DateOrder::MonthDayYear,
                                             DateOrder::DayMonthYear};

bool Reads(std::string_view cell, DateOrder order, text::CalendarDay day) {
    auto const read = imports::ReadTableDay(cell, order);
    return read && read->Day == day;
}

TEST(TableDates, ReadThemselvesWhenTheYearOrANameTellsTheOrder) {
    for (auto const* cell : {"2019-11-05",
                             "2019/11/05",
                             "2019.11.5",
                             "2019-11-05 13:20",
                             "2019-11-05T13:20:00",
                             "2019-11-05T05:00:00+0000",
                             "2019-11-05T05:00:00Z",
                             "2019-11-05 00:00:00-05:00",
                             "05-NOV-2019",
                             "5 November 2019",
                             "Nov 5, 2019",
                             "November 5 2019",
                             "Tue, Nov 5, 2019",
                             "Tuesday 5 November 2019",
                             "5. November 2019",
                             "Di, 5. Nov. 2019",
                             "5 nov. 2019",
                             "mar. 5 novembre 2019",
                             "martes, 5 noviembre 2019",
                             "2019-Nov-05",
                             "1572962400"}) {
        for (DateOrder const order : Orders) {
            EXPECT_TRUE(Reads(cell, order, Fifth)) << cell;
        }
    }
}

TEST(TableDates, ReadInTheOrderThatIsGiven) {
    for (auto const* cell : {"11/05/2019", "11/5/19", "11-05-2019", "11.5.19", "11052019", "110519",
                             "11/05/2019 13:20", "Tue 11/05/2019"}) {
        EXPECT_TRUE(Reads(cell, DateOrder::MonthDayYear, Fifth)) << cell;
    }
    for (auto const* cell : {"05.11.2019", "5.11.19", "05/11/2019", "05112019", "051119"}) {
        EXPECT_TRUE(Reads(cell, DateOrder::DayMonthYear, Fifth)) << cell;
    }
    for (auto const* cell : {"20191105", "191105", "19/11/05", "19-11-05"}) {
        EXPECT_TRUE(Reads(cell, DateOrder::YearMonthDay, Fifth)) << cell;
    }
}

TEST(TableDates, ReadTwoDigitsOnBothSidesOfANameInTheOrderThatIsGiven) {
    for (DateOrder const order : {DateOrder::DayMonthYear, DateOrder::MonthDayYear}) {
        EXPECT_TRUE(Reads("5-Nov-19", order, Fifth));
        EXPECT_TRUE(Reads("05-Nov-19", order, Fifth));
        EXPECT_TRUE(Reads("Tue 5 Nov 19", order, Fifth));
        EXPECT_FALSE(Reads("19-Nov-5", order, Fifth));
    }
    EXPECT_TRUE(Reads("19-Nov-05", DateOrder::YearMonthDay, Fifth));
    EXPECT_TRUE(Reads("19-Nov-5", DateOrder::YearMonthDay, Fifth));
    EXPECT_FALSE(imports::ReadTableDay("5-Nov-19", DateOrder::YearMonthDay)) << "5 is no year";
    EXPECT_TRUE(Reads("05-Nov-2019", DateOrder::YearMonthDay, Fifth));
}

TEST(TableDates, TellTheOrderInWhichTheyAreWritten) {
    for (auto const* cell : {"2019-11-05", "2019-Nov-05"}) {
        EXPECT_EQ(imports::OrderAsWritten(cell), DateOrder::YearMonthDay) << cell;
    }
    for (auto const* cell : {"5-Nov-19", "20-Mar-05", "Tue 5 Nov 19", "5. November 2019"}) {
        EXPECT_EQ(imports::OrderAsWritten(cell), DateOrder::DayMonthYear) << cell;
    }
    for (auto const* cell : {"Nov 5, 2019", "Tue, Nov 5, 2019"}) {
        EXPECT_EQ(imports::OrderAsWritten(cell), DateOrder::MonthDayYear) << cell;
    }
    for (auto const* cell : {"11/05/2019", "20191105", "1572962400"}) {
        EXPECT_EQ(imports::OrderAsWritten(cell), std::nullopt) << cell;
    }
}

TEST(TableDates, KnowTheMonthsOfFourLanguages) {
    int month = 0;
    for (std::string_view const names :
         {"January Jan. januar janvier janv. enero ene",
          "February Feb Februar f\xC3\xA9vrier f\xC3\xA9vr febrero", "March Mar M\xC3\xA4rz Mrz mars marzo",
          "April Apr avril avr abril abr", "May Mai mayo", "June Jun Juni juin junio",
          "July Jul Juli juillet juil. julio", "August Aug ao\xC3\xBBt agosto ago",
          "September Sep Sept septembre septiembre", "October Oct Oktober Okt octobre octubre",
          "November Nov novembre noviembre",
          "December Dec Dezember Dez d\xC3\xA9"
          "cembre diciembre dic"}) {
        ++month;
        for (std::size_t at = 0; at < names.size();) {
            std::size_t const length = std::min(names.find(' ', at), names.size()) - at;
            std::string const cell = "7 " + std::string(names.substr(at, length)) + " 2020";
            EXPECT_TRUE(Reads(cell, DateOrder::MonthDayYear, year{2020} / month / 7)) << cell;
            at += length + 1;
        }
    }
}

TEST(TableDates, PutTwoDigitsIntoTheirCentury) {
    EXPECT_TRUE(Reads("1/2/49", DateOrder::MonthDayYear, year{2049} / 1 / 2));
    EXPECT_TRUE(Reads("1/2/50", DateOrder::MonthDayYear, year{1950} / 1 / 2));
}

TEST(TableDates, RefuseWhatIsNoDay) {
    for (auto const* cell :
         {"", "2014-31-14", "2019-02-29", "2/30/2019", "31/31/2019", "517.25", "1,234", "Foo 5, 2019",
          "5 2019", "2019-11", "2019-11-05x", "2019-11-05 noon", "11/05-2019", "12345", "1234567",
          "12345678901", "mon mon mon 5", "-5", "Date"}) {
        EXPECT_FALSE(imports::IsTableDay(cell)) << cell;
    }
    EXPECT_FALSE(Reads("13/01/2019", DateOrder::MonthDayYear, year{2019} / 1 / 13)) << "never swapped";
}

TEST(TableDates, TellTheTimeBehindTheDay) {
    EXPECT_EQ(imports::ReadTableDay("2019-11-05", DateOrder::YearMonthDay)->Time, "");
    EXPECT_EQ(imports::ReadTableDay("2019-11-05  13:20", DateOrder::YearMonthDay)->Time, "13:20");
    EXPECT_TRUE(imports::IsTimeOfDay("1:20 PM"));
    EXPECT_TRUE(imports::IsTimeOfDay("13:20:00.000+0000"));
    EXPECT_FALSE(imports::IsTimeOfDay("13:2"));
    EXPECT_FALSE(imports::IsTimeOfDay("25:20"));
    EXPECT_FALSE(imports::IsTimeOfDay("1320"));
}

TEST(TableDates, KnowSecondsThatAreNotMidnight) {
    EXPECT_EQ(imports::ReadTableDay("1572912000", DateOrder::YearMonthDay)->Time, "");
    EXPECT_EQ(imports::ReadTableDay("1572962400", DateOrder::YearMonthDay)->Time, "1572962400");
    for (auto const* midnight : {"", "00:00", "0:00", "00:00:00+0000", "12:00 AM"}) {
        EXPECT_TRUE(imports::IsMidnight(midnight)) << midnight;
    }
    EXPECT_FALSE(imports::IsMidnight("22:00"));
    EXPECT_FALSE(imports::IsMidnight("1572962400"));
}

TEST(TableDates, KnowWhatStandsWithThem) {
    EXPECT_TRUE(imports::HasDayBeforeMonth("2019-31-12"));
    for (auto const* other : {"2019-12-31", "2014-31-14", "31-12-2019", "2019", "", "2019-31", "12:30"}) {
        EXPECT_FALSE(imports::HasDayBeforeMonth(other)) << other;
    }
    EXPECT_TRUE(imports::IsWeekday("Tue"));
    EXPECT_TRUE(imports::IsWeekday("mi."));
    EXPECT_FALSE(imports::IsWeekday("Tue 5"));
    EXPECT_FALSE(imports::IsWeekday("ZW"));
    EXPECT_TRUE(imports::IsTimeInDigits("0930"));
    EXPECT_TRUE(imports::IsTimeInDigits("235959"));
    for (auto const* other : {"", "2400", "1260", "093", "093061", "09:30"}) {
        EXPECT_FALSE(imports::IsTimeInDigits(other)) << other;
    }
}

} // namespace
} // namespace quorvex::tests
