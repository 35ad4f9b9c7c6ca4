// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "convert/basRecords.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvex::convert {
namespace {

using Texts = std::vector<std::string>;

// The fields of a record that has so many.
Texts FieldsOf(std::string_view line, std::int16_t count) {
    Fields fields;
    EXPECT_TRUE(SplitRecord(line, count, fields)) << line;
    Texts texts;
    for (std::int16_t field = 1; field <= count; ++field) {
        texts.emplace_back(fields[field]);
    }
    return texts;
}

bool HasFields(std::string_view line, std::int16_t count) {
    Fields fields;
    return SplitRecord(line, count, fields);
}

std::string DateOf(std::string_view field, DatePlaces const& places) {
    std::string line;
    return AppendDate(field, places, line) ? line : "refused" + line;
}

constexpr DatePlaces YearMonthDay = {3, 5, 1};
constexpr DatePlaces MonthDayCentury = {1, 4, 9};

TEST(SplitRecord, SeparatesAtCommasOnly) {
    EXPECT_EQ(FieldsOf("a,b,c", 3), (Texts{"a", "b", "c"}));
    EXPECT_EQ(FieldsOf("a b\tc|d;e", 1), Texts{"a b\tc|d;e"});
    EXPECT_EQ(FieldsOf("\"a,b\"", 2), (Texts{"\"a", "b\""}));
}

TEST(SplitRecord, TrimsBlanksOnly) {
    EXPECT_EQ(FieldsOf("  a ,b  , c d ,\te\t", 4), (Texts{"a", "b", "c d", "\te\t"}));
}

TEST(SplitRecord, AddsNoFieldBehindATrailingComma) {
    EXPECT_TRUE(HasFields("12/31/2001,1,2,3,4,", 5));
    EXPECT_FALSE(HasFields("12/31/2001,1,2,3,4,", 6));
    EXPECT_EQ(FieldsOf("a,", 1), Texts{"a"});
    EXPECT_EQ(FieldsOf("a,,", 2), (Texts{"a", ""}));
    EXPECT_EQ(FieldsOf("a, ", 2), (Texts{"a", ""}));
}

TEST(SplitRecord, CountsEmptyFieldsBetweenCommas) {
    EXPECT_EQ(FieldsOf("a,,c", 3), (Texts{"a", "", "c"}));
    EXPECT_EQ(FieldsOf(",a", 2), (Texts{"", "a"}));
}

TEST(SplitRecord, FindsNoFieldInAnEmptyLine) {
    EXPECT_FALSE(HasFields("", 1));
    EXPECT_EQ(FieldsOf(" ", 1), Texts{""});
}

TEST(SplitRecord, RefusesEveryOtherNumberOfFields) {
    for (std::int16_t count = 1; count <= MostFields; ++count) {
        EXPECT_EQ(HasFields("1,2,3,4,5", count), count == 5);
    }
    EXPECT_FALSE(HasFields("1,2,3,4,5,6,7,8,9,10,11,12", 10));
}

TEST(SplitRecord, OverflowsBeyondA16BitCount) {
    EXPECT_FALSE(HasFields(std::string(32'767, ','), 10));
    Fields fields;
    try {
        static_cast<void>(SplitRecord(std::string(32'768, ','), 10, fields));
        FAIL();
    } catch (text::RunTimeError const& error) {
        EXPECT_EQ(error.Kind(), text::Fault::Overflow);
    }
}

TEST(AppendDate, TakesTwoCharactersAtEachPlace) {
    EXPECT_EQ(DateOf("020115", YearMonthDay), "01/15/02");
    EXPECT_EQ(DateOf("01/15/2002", MonthDayCentury), "01/15/02");
    EXPECT_EQ(DateOf("12/31/1999", MonthDayCentury), "12/31/99");
    EXPECT_EQ(DateOf("000115", YearMonthDay), "01/15/00");
}

TEST(AppendDate, AppendsBehindWhatIsThere) {
    std::string line = "x";
    EXPECT_TRUE(AppendDate("020115", YearMonthDay, line));
    EXPECT_EQ(line, "x01/15/02");
}

TEST(AppendDate, WantsAMonthFrom1To12) {
    EXPECT_EQ(DateOf("020015", YearMonthDay), "refused");
    EXPECT_EQ(DateOf("021215", YearMonthDay), "12/15/02");
    EXPECT_EQ(DateOf("021315", YearMonthDay), "refused");
}

TEST(AppendDate, WantsADayFrom1To31WhateverTheMonth) {
    EXPECT_EQ(DateOf("020100", YearMonthDay), "refused");
    EXPECT_EQ(DateOf("020131", YearMonthDay), "01/31/02");
    EXPECT_EQ(DateOf("020132", YearMonthDay), "refused");
    EXPECT_EQ(DateOf("020231", YearMonthDay), "02/31/02");
}

TEST(AppendDate, ReadsLeadingDigitsOfEachPiece) {
    EXPECT_EQ(DateOf("02 115", YearMonthDay), "01/15/02"); // a blank and a digit
    EXPECT_EQ(DateOf("021/15", YearMonthDay), "01/15/02"); // a digit and something else
    EXPECT_EQ(DateOf("02-115", YearMonthDay), "refused");  // no leading digit
    EXPECT_EQ(DateOf("02+115", YearMonthDay), "refused");
    EXPECT_EQ(DateOf("1/5/2002", MonthDayCentury), "refused"); // the day is "/2"
}

TEST(AppendDate, TakesAnyYear) {
    EXPECT_EQ(DateOf("xx0115", YearMonthDay), "01/15/00");
    EXPECT_EQ(DateOf("-50115", YearMonthDay), "01/15/00");
    EXPECT_EQ(DateOf("5x0115", YearMonthDay), "01/15/05");
    EXPECT_EQ(DateOf("01/05/02", MonthDayCentury), "01/05/00"); // too short for its year
}

TEST(AppendDate, RefusesWhatIsTooShort) {
    for (auto const* field : {"", "0", "02", "020", "0201"}) {
        EXPECT_EQ(DateOf(field, YearMonthDay), "refused") << field;
    }
    EXPECT_EQ(DateOf("02011", YearMonthDay), "01/01/02"); // one digit of the day is there
}

} // namespace
} // namespace quorvex::convert
