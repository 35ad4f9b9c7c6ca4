// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/RowPlaces.h"

#include <gtest/gtest.h>

#include <string_view>
#include <utility>
#include <vector>

namespace quorvex::imports {
namespace {

Plan PlanOf(std::vector<std::pair<std::string_view, Role>> const& columns) {
    Plan plan;
    for (auto const& [heading, role] : columns) {
        plan.Columns.push_back({std::string(heading), role, "heading"});
    }
    return plan;
}

Plan UsualPlan() {
    return PlanOf({{"Name", Role::Symbol},
                   {"Close", Role::Close},
                   {"Date", Role::Date},
                   {"Open", Role::Open},
                   {"High", Role::High},
                   {"Low", Role::Low},
                   {"Vol", Role::Volume},
                   {"OI", Role::OpenInterest}});
}

std::vector<Field> FieldsOf(std::vector<std::string_view> const& cells) {
    std::vector<Field> fields;
    for (std::string_view const cell : cells) {
        fields.push_back({cell, false});
    }
    return fields;
}

TEST(RowPlaces, GiveTheCellsByWhatTheyAre) {
    Plan const plan = UsualPlan();
    RowCells const cells = RowPlaces(plan).CellsOf(FieldsOf({"ZW", "4", "2019-10-29", "1", "2", "3"}), 7);
    EXPECT_EQ(cells.Line, 7U);
    EXPECT_EQ(cells.Date, "2019-10-29");
    EXPECT_EQ(cells.Time, "");
    EXPECT_EQ(cells.Figures, (std::array<std::string_view, 6>{"1", "2", "3", "4", "", ""}));
    EXPECT_EQ(RowPlaces(plan).Contract(), std::vector<std::size_t>{0});
}

TEST(RowPlaces, TellNotesAndHeadsFromRows) {
    Plan const plan = UsualPlan();
    RowPlaces const places(plan);
    EXPECT_TRUE(places.IsNote(FieldsOf({"The end", "", ""})));
    EXPECT_TRUE(places.IsNote(FieldsOf({"", "5", ""})));
    EXPECT_FALSE(places.IsNote(FieldsOf({"", "", "2019-10-29"}))) << "a day without prices";
    EXPECT_FALSE(places.IsNote(FieldsOf({"The end", "5"})));
    EXPECT_TRUE(RowPlaces::IsHead(FieldsOf({"Date", "Open", "High"})));
    EXPECT_FALSE(RowPlaces::IsHead(FieldsOf({"Date", "Open", "5"})));
    EXPECT_TRUE(places.RepeatsTheHead(FieldsOf({"name", "CLOSE", "", "Open", "High", "Low", "Vol", "OI"})));
    EXPECT_FALSE(places.RepeatsTheHead(FieldsOf({"Name", "Open"})));
    EXPECT_FALSE(places.IsTooWide(FieldsOf({"1", "2", "3", "4", "5", "6", "7", "8", "", ""})));
    EXPECT_TRUE(places.IsTooWide(FieldsOf({"1", "2", "3", "4", "5", "6", "7", "8", "", "9"})));
}

TEST(RowPlaces, KnowLinesOfVolumesWhereThereAreAny) {
    Plan plan = UsualPlan();
    RowPlaces const places(plan);
    EXPECT_FALSE(places.IsVolumeLine(FieldsOf({"z2003"})));
    EXPECT_FALSE(places.IsOfAllMonths(FieldsOf({"dvl"})));
    plan.HasVolumeLines = true;
    EXPECT_TRUE(places.IsVolumeLine(FieldsOf({"z2003"})));
    EXPECT_FALSE(places.IsVolumeLine(FieldsOf({"Z2003"})));
    EXPECT_FALSE(places.IsVolumeLine(FieldsOf({"", "z2003"})));
    EXPECT_TRUE(places.IsOfAllMonths(FieldsOf({"dvl"})));
}

TEST(RowPlaces, FindCountsThatACommaHasSplit) {
    Plan plan = UsualPlan();
    std::vector<std::string_view> const cells = {"ZW", "4", "2019-10-29", "1", "2", "3", "25", "086"};
    EXPECT_EQ(RowPlaces(plan).HalfOfCount(FieldsOf(cells)), "086");
    auto quoted = FieldsOf(cells);
    quoted[7].WasQuoted = true;
    EXPECT_FALSE(RowPlaces(plan).IsPriceQuoted(quoted));
    EXPECT_EQ(RowPlaces(plan).HalfOfCount(quoted), std::nullopt);
    quoted[3].WasQuoted = true;
    EXPECT_TRUE(RowPlaces(plan).IsPriceQuoted(quoted));
    EXPECT_EQ(RowPlaces(plan).HalfOfCount(FieldsOf({"ZW", "4", "2019-10-29", "1", "2", "3", "25"})),
              std::nullopt);
    plan.SeparatedBy = Separator::Semicolon;
    EXPECT_EQ(RowPlaces(plan).HalfOfCount(FieldsOf(cells)), std::nullopt);
    plan = UsualPlan();
    plan.Columns[7].Reason = ReasonChosen;
    EXPECT_EQ(RowPlaces(plan).HalfOfCount(FieldsOf(cells)), std::nullopt);
}

} // namespace
} // namespace quorvex::imports
