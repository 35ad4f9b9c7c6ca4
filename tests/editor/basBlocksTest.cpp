// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basBlocks.h"

#include "EditorTest.h"

#include <gmock/gmock.h>

namespace quorvex::tests {
namespace {

using editor::BlockText;
using editor::ClearBlock;
using editor::PasteText;
using testing::ElementsAre;

class Blocks : public EditorTest {
protected:
    void SetUp() override { OpenDays(3); }
};

TEST_F(Blocks, AreLinesOfCellsBetweenTabs) {
    EXPECT_EQ(BlockText(sheet, {1, 1, 1, 1}), "01/01/01\n");
    EXPECT_EQ(BlockText(sheet, {2, 1, 3, 3}), "01/02/01\t102.25\t102.75\n01/03/01\t103.25\t103.75\n");
}

TEST_F(Blocks, AreEmptiedWithinTheirBounds) {
    ClearBlock(sheet, {1, 2, 2, 6});
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "", "", "", "", "", "3400"));
    EXPECT_THAT(RowTexts(2), ElementsAre("01/02/01", "", "", "", "", "", "3400"));
    EXPECT_EQ(RowTexts(3)[1], "103.25");
}

TEST_F(Blocks, ComeBackWhereverTheyArePut) {
    std::string const text = BlockText(sheet, {1, 2, 2, 4});
    EXPECT_TRUE(PasteText(sheet, {2, 3, 2, 3}, text));
    EXPECT_THAT(RowTexts(2), ElementsAre("01/02/01", "102.25", "101.25", "101.75", "101.00", "1200", "3400"));
    EXPECT_THAT(RowTexts(3), ElementsAre("01/03/01", "103.25", "102.25", "102.75", "102.00", "1200", "3400"));
}

TEST_F(Blocks, ComeWithAnyLineEnds) {
    EXPECT_TRUE(PasteText(sheet, {1, 2, 1, 2}, "1\t2\r\n3\t4"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "1", "2", "101.00", "101.00", "1200", "3400"));
    EXPECT_THAT(RowTexts(2), ElementsAre("01/02/01", "3", "4", "102.00", "102.00", "1200", "3400"));
    EXPECT_EQ(RowTexts(3)[1], "103.25");
}

TEST_F(Blocks, KeepEmptyCells) {
    EXPECT_TRUE(PasteText(sheet, {1, 2, 1, 2}, "\t2\t\n\n"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "", "2", "", "101.00", "1200", "3400"));
    EXPECT_EQ(RowTexts(2)[1], "");
    EXPECT_EQ(RowTexts(2)[2], "102.75");
}

TEST_F(Blocks, LeaveOutWhatLiesBehindTheLastRowOrColumn) {
    EXPECT_FALSE(PasteText(sheet, {3, 1, 3, 1}, "a\nb\n"));
    EXPECT_EQ(sheet.RowCount(), 3);
    EXPECT_EQ(RowTexts(3)[0], "a");
    EXPECT_FALSE(PasteText(sheet, {1, 6, 1, 6}, "1\t2\t3\n4\t5\t6\n"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "101.25", "101.75", "101.00", "101.00", "1", "2"));
    EXPECT_THAT(RowTexts(2), ElementsAre("01/02/01", "102.25", "102.75", "102.00", "102.00", "4", "5"));
}

TEST_F(Blocks, AreFilledByASingleCell) {
    EXPECT_TRUE(PasteText(sheet, {1, 6, 3, 7}, "5\n"));
    for (std::int16_t row = 1; row <= 3; ++row) {
        EXPECT_EQ(RowTexts(row)[5], "5");
        EXPECT_EQ(RowTexts(row)[6], "5");
        EXPECT_NE(RowTexts(row)[4], "5");
    }
}

TEST_F(Blocks, TakeQuotedCellsOfSeveralLinesAsOne) {
    EXPECT_TRUE(PasteText(sheet, {1, 2, 1, 2}, "\"a\r\nb\"\t\"2\"\n3\t\"say \"\"x\"\"\ty\"\r\n"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "a b", "2", "101.00", "101.00", "1200", "3400"));
    EXPECT_THAT(RowTexts(2),
                ElementsAre("01/02/01", "3", "say \"x\"\ty", "102.00", "102.00", "1200", "3400"));
    EXPECT_EQ(RowTexts(3)[1], "103.25");
}

TEST_F(Blocks, KeepQuotationMarksThatSeparateNothing) {
    EXPECT_TRUE(PasteText(sheet, {1, 2, 1, 2}, "\"a\"\t\"b\nc\t\"d\n"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "\"a\"", "\"b", "101.00", "101.00", "1200", "3400"));
    EXPECT_THAT(RowTexts(2), ElementsAre("01/02/01", "c", "\"d", "102.00", "102.00", "1200", "3400"));
}

TEST_F(Blocks, LoseOneCarriageReturnAtTheEndOfARow) {
    EXPECT_TRUE(PasteText(sheet, {1, 2, 1, 2}, "1\r\t2\r\r\n3\r"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "1\r", "2\r", "101.00", "101.00", "1200", "3400"));
    EXPECT_EQ(RowTexts(2)[1], "3");
}

TEST_F(Blocks, OfNothingChangeNothing) {
    auto const before = GridTexts();
    EXPECT_TRUE(PasteText(sheet, {1, 1, 3, 7}, ""));
    EXPECT_EQ(GridTexts(), before);
}

} // namespace
} // namespace quorvex::tests
