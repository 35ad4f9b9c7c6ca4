// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basScale.h"

#include <gtest/gtest.h>

namespace quorvex::chart {
namespace {

TEST(Columns, LeaveOneEmptyAtEachEnd) {
    EXPECT_EQ(ColumnStep(1010, 100), 10);
    EXPECT_EQ(ColumnStep(1010, 1), 505);
}

TEST(Columns, AreFoundByTheNearestPlace) {
    EXPECT_EQ(ColumnAt(170, 1010, 100), 17);
    EXPECT_EQ(ColumnAt(165.1, 1010, 100), 17);
    EXPECT_EQ(ColumnAt(174.9, 1010, 100), 17);
    EXPECT_EQ(ColumnAt(175, 1010, 100), 18) << "the later one exactly between two";
}

TEST(Columns, EndAtTheFirstAndTheLast) {
    EXPECT_EQ(ColumnAt(0, 1010, 100), 1);
    EXPECT_EQ(ColumnAt(-4000, 1010, 100), 1);
    EXPECT_EQ(ColumnAt(1010, 1010, 100), 100);
    EXPECT_EQ(ColumnAt(1e300, 1010, 100), 100);
    EXPECT_EQ(ColumnAt(1010, 1010, 1), 1);
}

TEST(Columns, AreAllFoundAtTheirOwnPlace) {
    for (int const columns : {25, 500}) {
        for (int column = 1; column <= columns; ++column) {
            EXPECT_EQ(ColumnAt(column * ColumnStep(16'383, columns), 16'383, columns), column);
        }
    }
}

TEST(Columns, OfABoxWithoutWidthAreTheFirst) {
    EXPECT_EQ(ColumnAt(10, 0, 100), 1);
    EXPECT_EQ(ColumnAt(10, -120, 100), 1);
}

} // namespace
} // namespace quorvex::chart
