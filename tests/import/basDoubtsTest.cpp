// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basDoubts.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace quorvex::imports {
namespace {

constexpr Limits NoLimits{};

RowCells CellsOf(std::string_view date, std::string_view close = "5.5") {
    return {3, date, {}, {"5", "6", "4", close, "1", ""}};
}

std::string TextOf(std::optional<Refusal> const& refusal) {
    return refusal ? std::to_string(refusal->Told.Line) + ": " + refusal->Told.Text : std::string();
}

text::CalendarDay DayOfMay(unsigned day) {
    return std::chrono::year{2024} / 5 / static_cast<int>(day);
}

TEST(Doubts, AboutAMarkAreThoseOfPricesAlone) {
    RowResult result;
    result.Kind = RowKind::NoFigure;
    result.Of = Role::Close;
    EXPECT_EQ(
        WhyLeftOut(result, CellsOf("2019-10-29", "5.5a")),
        "the close \"5.5a\" is no number: of the marks behind a price only the s of a settlement is known");
    EXPECT_EQ(WhyLeftOut(result, CellsOf("2019-10-29", "a5.5")), "the close \"a5.5\" is no number");
    EXPECT_EQ(WhyLeftOut(result, CellsOf("2019-10-29", "5.5 a")), "the close \"5.5 a\" is no number");
    result.Of = Role::Volume;
    RowCells cells = CellsOf("2019-10-29");
    cells.Figures[VolumeIndex] = "100x";
    EXPECT_EQ(WhyLeftOut(result, cells), "the volume \"100x\" is no number");
    EXPECT_EQ(WhyLeftOut({}, cells), "") << "it is a quote";
}

TEST(Doubts, AboutARowTellWhatItIs) {
    RowResult result;
    EXPECT_EQ(TextOf(RefuseRow(result, CellsOf("2019-10-29"))), "");
    result.OtherLine = 2;
    result.Kind = RowKind::Conflict;
    EXPECT_EQ(TextOf(RefuseRow(result, CellsOf("2019-10-29"))),
              "3: The day of line 2 again with other figures: take one of both rows out");
    result.Kind = RowKind::Intraday;
    EXPECT_EQ(TextOf(RefuseRow(result, CellsOf("2019-10-29"))),
              "3: The day of line 2 again at another time: rows of less than a day. Download daily ones");
}

TEST(Doubts, AboutTheOrderOfDatesNeedAnotherReadingThatFits) {
    Plan plan;
    Reading const reading(DateOrder::MonthDayYear, DecimalMark::Point, std::nullopt, NoLimits);
    RowResult result;
    result.Kind = RowKind::NoDay;
    result.Of = Role::Date;
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("13/01/2019"))),
              "3: \"13/01/2019\" does not have the order of the other dates: month, day, year");
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("2019-31-12"))),
              "3: \"2019-31-12\" has the day in front of the month, behind the year");
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("32/32/2019"))), "");
    plan.IsDateChosen = true;
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("13/01/2019"))), "");
}

TEST(Doubts, AboutTheDecimalMarkNeedAnotherReadingThatFits) {
    Plan plan;
    Reading const reading(DateOrder::YearMonthDay, DecimalMark::Point, std::nullopt, NoLimits);
    RowResult result;
    result.Kind = RowKind::NoFigure;
    result.Of = Role::Close;
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("2019-10-29", "5,5"))),
              "3: \"5,5\" does not have the decimal mark of the other numbers: point");
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("2019-10-29", "5x"))), "");
    plan.IsDecimalChosen = true;
    EXPECT_EQ(TextOf(RefuseContradiction(plan, reading, result, CellsOf("2019-10-29", "5,5"))), "");
}

TEST(Doubts, AboutACenturyBeginAtNinetyYears) {
    text::CalendarDay const day = std::chrono::year{2049} / 12 / 30;
    EXPECT_EQ(TextOf(RefuseTurn(day, day + std::chrono::days(90 * 365), CellsOf("x"))), "");
    std::string const refused =
        "3: \"1/3/50\" is a century away from the day before: years of two digits are 1950 "
        "to 2049. Take the days of one side alone";
    EXPECT_EQ(TextOf(RefuseTurn(day, day - std::chrono::days(90 * 365 + 1), CellsOf("1/3/50"))), refused);
    EXPECT_EQ(TextOf(RefuseTurn(day, day + std::chrono::days(90 * 365 + 1), CellsOf("1/3/50"))), refused);
}

TEST(Doubts, BetweenTwoReadingsNameWhatDiffers) {
    Reading american(DateOrder::MonthDayYear, DecimalMark::Point, std::nullopt, NoLimits);
    Reading const british(DateOrder::DayMonthYear, DecimalMark::Point, std::nullopt, NoLimits);
    EXPECT_EQ(TextOf(RefuseDoubt(american, british, {"01/02/2019", 2})),
              "2: \"01/02/2019\" and all other dates can be month, day, year or day, month, year");
    Reading comma(DateOrder::MonthDayYear, DecimalMark::Comma, std::nullopt, NoLimits);
    RowCells const cells = {3, "05/01/2024", {}, {"5", "6.000", "4", "5", "", ""}};
    EXPECT_EQ(TextOf(RefuseDoubt(american, comma, {})), "0: The decimal mark can be a point or a comma");
    EXPECT_EQ(american.Take(cells, false).Kind, RowKind::Quote);
    EXPECT_EQ(comma.Take(cells, false).Kind, RowKind::Quote);
    EXPECT_EQ(TextOf(RefuseDoubt(american, comma, {})), "3: the high can be 6 or 6000");
}

TEST(Doubts, AboutDaysOfWeeksAreLeftToTheUser) {
    Plan plan;
    Reading const reading(DateOrder::YearMonthDay, DecimalMark::Point, std::nullopt, NoLimits);
    std::vector<DayQuote> const days = {{DayOfMay(3), {}, 1}, {DayOfMay(10), {}, 2}, {DayOfMay(17), {}, 3}};
    EXPECT_EQ(TextOf(RefuseDays(plan, reading, days, 4)), "");
    auto const refused = RefuseDays(plan, reading, days, 7);
    EXPECT_EQ(TextOf(refused), "0: The rows look weekly, not daily: the median distance of the days is 7");
    EXPECT_EQ(refused->SettledBy, Choice::Bars);
    plan.TakesAnyBars = true;
    EXPECT_EQ(TextOf(RefuseDays(plan, reading, days, 7)), "");
}

} // namespace
} // namespace quorvex::imports
