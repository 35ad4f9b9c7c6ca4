// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/Sheet.h"

#include "editor/PlainSpread.h"
#include "editor/basSpread.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

namespace quorvex::editor {
namespace {

using text::RunTimeError;

Sheet& WithDates(Sheet& sheet, std::vector<std::string> const& dates) {
    sheet.SetRowCount(static_cast<std::int16_t>(dates.size()));
    for (std::size_t index = 0; index < dates.size(); ++index) {
        auto const row = static_cast<std::int16_t>(index + 1);
        sheet.SetText(row, 1, dates[index]);
        sheet.SetText(row, 7, std::to_string(row));
    }
    return sheet;
}

std::string Column(Sheet const& sheet, std::int16_t column) {
    std::string texts;
    for (std::int16_t row = 1; row <= sheet.RowCount(); ++row) {
        texts += sheet.CellAt(row, column).Text + '|';
    }
    return texts;
}

TEST(Sheet, StartsWithoutRowsAndWithoutCursor) {
    Sheet const sheet;
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_EQ(PlainSpread(sheet).ActiveRow(), 0);
}

TEST(Sheet, KeepsTheTextOfEachCell) {
    Sheet sheet;
    sheet.SetRowCount(2);
    sheet.SetText(2, 7, "99");
    sheet.SetText(0, 1, "Date");
    EXPECT_EQ(sheet.Text(2, 7), "99");
    EXPECT_EQ(sheet.Text(2, 6), "");
    EXPECT_EQ(sheet.Text(0, 1), "Date");
}

TEST(Sheet, HasNoOtherCells) {
    Sheet sheet;
    sheet.SetRowCount(2);
    EXPECT_THROW(sheet.SetText(3, 1, ""), RunTimeError);
    EXPECT_THROW(sheet.SetText(-1, 1, ""), RunTimeError);
    EXPECT_THROW(sheet.SetText(1, 8, ""), RunTimeError);
    EXPECT_THROW(PlainSpread(sheet).GotoCell(3, 1), RunTimeError);
    EXPECT_THROW(sheet.SetRowCount(-1), RunTimeError);
    EXPECT_THROW(static_cast<void>(sheet.CellAt(3, 1)), RunTimeError);
}

TEST(Sheet, NewRowsAreEmpty) {
    Sheet sheet;
    WithDates(sheet, {"01/01/01", "01/02/01"});
    sheet.SetBackColour({2, 1, 2, 7}, platform::Black);
    sheet.SetRowCount(1);
    sheet.SetRowCount(2);
    EXPECT_EQ(Column(sheet, 1), "01/01/01||");
    EXPECT_FALSE(sheet.CellAt(2, 1).BackColour);
}

TEST(Sheet, TheCursorStaysInsideTheRows) {
    Sheet sheet;
    PlainSpread spread(sheet);
    sheet.SetRowCount(3);
    spread.GotoCell(3, 4);
    sheet.SetRowCount(2);
    EXPECT_EQ(spread.ActiveRow(), 2);
    EXPECT_EQ(spread.ActiveColumn(), 4);
    sheet.SetRowCount(0);
    EXPECT_EQ(spread.ActiveRow(), 0);
}

TEST(Sheet, SortsByTheDayWhateverItsForm) {
    Sheet sheet;
    WithDates(sheet, {"12/30/48", "3/5/2002", "1999-12-31", "March 4, 2002"});
    sheet.SortByDate({1, 1, 4, 7}, 1);
    EXPECT_EQ(Column(sheet, 1), "1999-12-31|March 4, 2002|3/5/2002|12/30/48|");
    EXPECT_EQ(Column(sheet, 7), "3|4|2|1|");
}

TEST(Sheet, RowsOfOneDayKeepTheirOrder) {
    Sheet sheet;
    WithDates(sheet, {"03/15/02", "03/14/02", "3/15/2002", "2002-03-15"});
    sheet.SortByDate({1, 1, 4, 7}, 1);
    EXPECT_EQ(Column(sheet, 7), "2|1|3|4|");
}

TEST(Sheet, TextsThatAreNoDatesComeFirst) {
    Sheet sheet;
    WithDates(sheet, {"03/15/02", "soon", "", "03/14/02"});
    sheet.SortByDate({1, 1, 4, 7}, 1);
    EXPECT_EQ(Column(sheet, 7), "2|3|4|1|");
}

TEST(Sheet, SortsTheBlockAloneAndLeavesColours) {
    Sheet sheet;
    WithDates(sheet, {"04/01/02", "03/01/02", "02/01/02", "01/01/02"});
    StripeRows(sheet);
    sheet.SortByDate({2, 1, 4, 6}, 1);
    EXPECT_EQ(Column(sheet, 1), "04/01/02|01/01/02|02/01/02|03/01/02|");
    EXPECT_EQ(Column(sheet, 7), "1|2|3|4|");
    EXPECT_TRUE(sheet.CellAt(2, 1).BackColour);
    EXPECT_FALSE(sheet.CellAt(3, 1).BackColour);
    sheet.SortByDate({1, 1, 0, 7}, 1);
    EXPECT_EQ(Column(sheet, 1), "04/01/02|01/01/02|02/01/02|03/01/02|");
}

TEST(StripeRows, PaintsEverySecondRowPaleYellow) {
    Sheet sheet;
    sheet.SetRowCount(5);
    StripeRows(sheet);
    for (std::int16_t row = 1; row <= 5; ++row) {
        for (std::int16_t column = 1; column <= 7; ++column) {
            auto const expected =
                row % 2 == 0 ? std::optional<platform::Colour>(0xFFFF80) : std::optional<platform::Colour>();
            EXPECT_EQ(sheet.CellAt(row, column).BackColour, expected) << row << ", " << column;
        }
    }
}

TEST(StripeRows, GoesToTheEndOfTheLargestGrid) {
    Sheet sheet;
    sheet.SetRowCount(32767);
    StripeRows(sheet);
    EXPECT_TRUE(sheet.CellAt(32766, 7).BackColour);
    EXPECT_FALSE(sheet.CellAt(32767, 7).BackColour);
}

} // namespace
} // namespace quorvex::editor
