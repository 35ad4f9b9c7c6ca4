// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/ParameterGrid.h"

#include "CycleTexts.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::cycles {
namespace {

class CountingMessages final : public platform::PendingMessages {
public:
    void Process() override { ++Times; }

    int Times = 0;
};

class Grid : public testing::Test {
protected:
    void Type(int cycle, std::array<char const*, 4> const& texts) {
        for (Parameter const parameter : Parameters) {
            grid.SetText(parameter, cycle, texts.at(static_cast<std::size_t>(parameter)));
        }
    }

    [[nodiscard]] std::string Weight(int cycle) const { return grid.Text(Parameter::Weight, cycle); }

    bool Read() { return ReadGrid(grid, *set, pending); }

    TextGrid grid;
    std::unique_ptr<CycleParameterSet> set = std::make_unique<CycleParameterSet>();
    CountingMessages pending;
};

TEST_F(Grid, ReadsTheReferenceGrids) {
    for (auto const& expected : tests::GoldenVector("read_grid")) {
        SCOPED_TRACE(expected.at("label").get<std::string>());
        SetTexts(grid, expected.at("grid"));
        SetRows(*set, expected.at("previous"));
        pending.Times = 0;
        EXPECT_EQ(Read(), expected.at("stored"));
        EXPECT_EQ(TextsOf(grid), expected.at("grid_after"));
        EXPECT_EQ(RowsOf(*set), expected.at("set_after"));
        EXPECT_EQ(pending.Times, expected.at("stored") ? 1 : 0);
    }
}

TEST_F(Grid, KeepsWeightsThatArePercentages) {
    ClearGrid(grid);
    Type(1, {"50", "20", "0", "0"});
    Type(2, {"50", "30", "0", "0"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(Weight(1), "50");
    EXPECT_EQ(Weight(2), "50");
}

TEST_F(Grid, ScalesWeightsToPercent) {
    ClearGrid(grid);
    Type(1, {"1", "20", "0", "0"});
    Type(2, {"3", "30", "0", "0"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(Weight(1), "25");
    EXPECT_EQ(Weight(2), "75");
    for (int cycle = 1; cycle <= 3; ++cycle) {
        Type(cycle, {"30", "20", "0", "0"});
    }
    EXPECT_TRUE(Read());
    for (int cycle = 1; cycle <= 3; ++cycle) {
        EXPECT_EQ(Weight(cycle), "33");
        EXPECT_EQ(set->Cycles[cycle].Weight, 33);
    }
}

TEST_F(Grid, CountsTheWeightOfEveryCycle) {
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        ClearGrid(grid);
        Type(cycle, {"7", "20", "0", "0"});
        EXPECT_TRUE(Read()) << cycle;
        EXPECT_EQ(Weight(cycle), "100");
        EXPECT_EQ(SumOfWeights(grid), 100);
    }
}

TEST_F(Grid, DropsAWeightAboveAHundredAndKeepsAHundred) {
    ClearGrid(grid);
    Type(1, {"100.4", "20", "0", "0"});
    Type(2, {"100", "20", "0", "0"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(Weight(1), "0");
    EXPECT_EQ(Weight(2), "100");
}

TEST_F(Grid, StoresAndShowsWholeNumbers) {
    ClearGrid(grid);
    Type(1, {"10", "12.6", "0", "0"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(set->Cycles[1].Period, 13);
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "13");
}

TEST_F(Grid, WithAllWeightsZeroTypedPeriodsHaveNoEffect) {
    *set = *SetOf({{50, 20, 3, 1}});
    ClearGrid(grid);
    grid.SetText(Parameter::Period, 1, "44");
    EXPECT_FALSE(Read());
    EXPECT_EQ(set->Cycles[1].Period, 20);
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "44");
    grid.SetText(Parameter::Weight, 1, "1");
    EXPECT_TRUE(Read());
    EXPECT_EQ(set->Cycles[1].Period, 44);
}

TEST_F(Grid, ReadingTwiceScalesTwice) {
    ClearGrid(grid);
    Type(1, {"57", "20", "3", "1"});
    Type(2, {"2", "30", "-4", "0"});
    Type(3, {"66", "30", "-4.5", "0"});
    EXPECT_TRUE(Read());
    EXPECT_EQ(set->Cycles[3].Weight, 53) << "46, 2 and 53 are 101 percent";
    EXPECT_TRUE(Read());
    EXPECT_EQ(set->Cycles[1].Weight, 46);
    EXPECT_EQ(set->Cycles[2].Weight, 2);
    EXPECT_EQ(set->Cycles[3].Weight, 52);
    EXPECT_EQ(set->Cycles[1].Period, 20);
}

TEST_F(Grid, ReadingPercentagesTwiceChangesNothingMore) {
    ClearGrid(grid);
    Type(1, {"7", "20.5", "3", "1"});
    Type(2, {"1", "30", "-4", "0"});
    EXPECT_TRUE(Read());
    auto const texts = TextsOf(grid);
    auto const rows = RowsOf(*set);
    EXPECT_TRUE(Read());
    EXPECT_EQ(TextsOf(grid), texts);
    EXPECT_EQ(RowsOf(*set), rows);
}

TEST_F(Grid, AnOverflowingWeightEndsTheReadingQuietly) {
    *set = *SetOf({{50, 20, 3, 1}});
    ClearGrid(grid);
    Type(1, {"50", "44", "0", "0"});
    Type(2, {"1e999", "44", "0", "0"});
    auto const rows = RowsOf(*set);
    EXPECT_FALSE(Read());
    EXPECT_EQ(RowsOf(*set), rows);
    EXPECT_EQ(pending.Times, 0);
}

TEST_F(Grid, AnOverflowingPeriodEndsTheReadingWhereItStands) {
    *set = *SetOf({{50, 20, 3, 1}, {50, 30, 3, 1}, {0, 30, 3, 1}});
    ClearGrid(grid);
    Type(1, {"50", "44", "0", "0"});
    Type(2, {"50", "1e999", "0", "0"});
    EXPECT_FALSE(Read());
    EXPECT_EQ(set->Cycles[1].Period, 44);
    EXPECT_EQ(set->Cycles[2].Period, 30);
    EXPECT_EQ(set->Cycles[3].Period, 30);
}

TEST_F(Grid, APeriodTooLargeToShowIsStoredAllTheSame) {
    ClearGrid(grid);
    Type(1, {"50", "40000", "5", "0"});
    EXPECT_FALSE(Read());
    EXPECT_EQ(set->Cycles[1].Period, 40000);
    EXPECT_EQ(set->Cycles[1].Shift, 5);
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "40000");
}

TEST_F(Grid, ClearingWritesZerosAndLeavesTheSet) {
    *set = *SetOf({{50, 20, 3, 1}});
    ClearGrid(grid);
    for (int cycle = 1; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            EXPECT_EQ(grid.Text(parameter, cycle), "0");
        }
    }
    EXPECT_EQ(set->Cycles[1].Weight, 50);
}

TEST_F(Grid, ShowsHalvesAtTheEvenNeighbour) {
    WriteGrid(*SetOf({{12.5, 13.5, -0.5, 0.5}}), grid);
    EXPECT_EQ(Weight(1), "12");
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "14");
    EXPECT_EQ(grid.Text(Parameter::Shift, 1), "0");
    EXPECT_EQ(grid.Text(Parameter::Decay, 1), "0");
    EXPECT_EQ(grid.Text(Parameter::Decay, 10), "0");
}

TEST_F(Grid, CannotShowANumberBeyondSixteenBits) {
    EXPECT_THROW(WriteGrid(*SetOf({{1, 32768, 0, 0}}), grid), text::RunTimeError);
    WriteGrid(*SetOf({{1, 32767, -32768, 0}}), grid);
    EXPECT_EQ(grid.Text(Parameter::Period, 1), "32767");
    EXPECT_EQ(grid.Text(Parameter::Shift, 1), "-32768");
}

TEST_F(Grid, SumsTheWeightsByTheirLeadingNumbers) {
    ClearGrid(grid);
    EXPECT_EQ(SumOfWeights(grid), 0);
    grid.SetText(Parameter::Weight, 1, "12abc");
    grid.SetText(Parameter::Weight, 10, ".5");
    EXPECT_EQ(SumOfWeights(grid), 12.5);
    grid.SetText(Parameter::Weight, 2, "-12.5");
    EXPECT_EQ(SumOfWeights(grid), 0);
}

} // namespace
} // namespace quorvex::cycles
