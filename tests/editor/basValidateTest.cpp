// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basValidate.h"

#include "EditorTest.h"
#include "support/Messages.h"

#include <gmock/gmock.h>

namespace quorvex::tests {
namespace {

using editor::ValidateQuotes;
using platform::Icon;
using testing::ElementsAre;

class ValidatedQuotes : public EditorTest {
protected:
    void SetUp() override {
        OpenDays(5);
        spread.GotoCell(1, 7);
    }

    bool Validate() { return !ValidateQuotes(*edited, dialogs); }

    // Expects the check of the rows to fail at this cell.
    void ExpectBadCell(int row, int column) {
        EXPECT_FALSE(Validate());
        EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data entry on row " + std::to_string(row),
                                  "Edit - Invalid Data Entry", Icon::Exclamation));
        EXPECT_EQ(Cursor(), std::pair(row, column));
    }
};

TEST_F(ValidatedQuotes, PassAsLoaded) {
    EXPECT_TRUE(Validate());
    EXPECT_TRUE(IsQuiet());
    EXPECT_EQ(Cursor(), std::pair(1, 7));
}

TEST_F(ValidatedQuotes, PassWithoutRows) {
    Open(std::make_unique<quotes::QuoteSeries>());
    EXPECT_TRUE(Validate());
    EXPECT_TRUE(IsQuiet());
}

TEST_F(ValidatedQuotes, FailWithADateThatIsNone) {
    for (auto const* date : {"", "13/45/02", "2/30/2001", "soon", "37"}) {
        SCOPED_TRACE(date);
        dialogs.Messages.clear();
        Type(4, 1, date);
        ExpectBadCell(4, 1);
    }
}

TEST_F(ValidatedQuotes, PassWithADateInAnyForm) {
    for (auto const* date : {"1/4/2001", " 01/04/01 ", "2001-01-04", "January 4, 2001", "4 Jan 2001"}) {
        SCOPED_TRACE(date);
        Type(4, 1, date);
        EXPECT_TRUE(Validate());
    }
    EXPECT_TRUE(IsQuiet());
}

TEST_F(ValidatedQuotes, FailWithAPriceThatIsNotAboveZero) {
    for (std::int16_t column = 2; column <= 5; ++column) {
        auto const before = sheet.CellAt(3, column).Text;
        for (auto const* price : {"0", "0.00", "-1", "abc", "", "-", ".", "-12abc", "1e999"}) {
            SCOPED_TRACE(price);
            dialogs.Messages.clear();
            Type(3, column, price);
            ExpectBadCell(3, column);
        }
        Type(3, column, before);
    }
}

TEST_F(ValidatedQuotes, PassWithANumberInFrontOfAText) {
    Type(3, 5, "12abc");
    Type(3, 2, " 1e3");
    EXPECT_TRUE(Validate());
}

TEST_F(ValidatedQuotes, PassWithAnyVolumeAndOpenInterest) {
    for (auto const* text : {"abc", "", "-5"}) {
        Type(2, 6, text);
        Type(2, 7, text);
        EXPECT_TRUE(Validate());
    }
    EXPECT_TRUE(IsQuiet());
}

TEST_F(ValidatedQuotes, PassWithALowAboveTheHigh) {
    Type(2, 4, "999");
    EXPECT_TRUE(Validate());
}

TEST_F(ValidatedQuotes, FailAtTheFirstBadCellRowByRow) {
    Type(4, 1, "");
    Type(3, 5, "0");
    Type(3, 4, "0");
    ExpectBadCell(3, 4);
    Type(3, 4, "1");
    dialogs.Messages.clear();
    ExpectBadCell(3, 5);
    Type(3, 5, "1");
    dialogs.Messages.clear();
    ExpectBadCell(4, 1);
}

TEST_F(ValidatedQuotes, FailInTheLastRow) {
    Type(5, 5, "0");
    ExpectBadCell(5, 5);
}

TEST_F(ValidatedQuotes, StayUnsortedWhenACellIsBad) {
    Type(1, 1, "12/31/48");
    Type(5, 5, "0");
    ExpectBadCell(5, 5);
    EXPECT_EQ(RowTexts(1).front(), "12/31/48");
}

TEST_F(ValidatedQuotes, AreSortedByDate) {
    Type(1, 1, "12/31/2048");
    Type(4, 1, "12/31/99");
    EXPECT_TRUE(Validate());
    EXPECT_TRUE(IsQuiet());
    EXPECT_THAT(RowTexts(1), ElementsAre("12/31/99", "104.25", "104.75", "104.00", "104.00", "1200", "3400"));
    EXPECT_EQ(RowTexts(5).front(), "12/31/2048");
    EXPECT_EQ(RowTexts(5)[1], "101.25");
    EXPECT_EQ(edited->EditQuotes[1].Date, "01/01/01"); // the copy follows later
}

TEST_F(ValidatedQuotes, FailWithOneDateTwice) {
    Type(2, 1, "1/5/2001");
    EXPECT_FALSE(Validate());
    // Rows 3, 4, and then the two of the 5th.
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid date entry on row 4", "Edit - Invalid Date Entry",
                              Icon::Exclamation));
    EXPECT_EQ(Cursor(), std::pair(4, 1));
    EXPECT_EQ(RowTexts(4).front(), "1/5/2001"); // already sorted; the one that stood first comes first
    EXPECT_EQ(RowTexts(4)[1], "102.25");
}

TEST_F(ValidatedQuotes, FailAtTheFirstOfSeveralPairs) {
    Type(5, 1, "01/04/01");
    Type(2, 1, "01/01/01");
    EXPECT_FALSE(Validate());
    EXPECT_EQ(dialogs.Messages[0].Text, "Invalid date entry on row 1");
    EXPECT_EQ(Cursor(), std::pair(1, 1));
}

} // namespace
} // namespace quorvex::tests
