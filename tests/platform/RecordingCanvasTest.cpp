// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/RecordingCanvas.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

namespace quorvex::platform {
namespace {

TEST(RecordingCanvas, DrawsALineToAPointFromTheCurrentOne) {
    RecordingCanvas canvas(100, 50);
    canvas.Point(1, 2, Black);
    canvas.LineTo(3, 4, Magenta);
    canvas.LineTo(5, 6, Magenta);
    canvas.Line(7, 8, 9, 10, Black);
    canvas.LineTo(11, 12, Black);
    auto const& drawn = canvas.Operations();
    ASSERT_EQ(drawn.size(), 5U);
    EXPECT_EQ(drawn[1].Coordinates, (std::array<double, 4>{1, 2, 3, 4}));
    EXPECT_EQ(drawn[1].Drawn, Magenta);
    EXPECT_EQ(drawn[2].Coordinates, (std::array<double, 4>{3, 4, 5, 6}));
    EXPECT_EQ(drawn[4].Coordinates, (std::array<double, 4>{9, 10, 11, 12}));
}

TEST(RecordingCanvas, MeasuresTextInANominalFontWithoutRecordingIt) {
    RecordingCanvas canvas(100, 50);
    EXPECT_NEAR(canvas.TextWidth("12.5"), 4 * 88, 0.01);
    EXPECT_NEAR(canvas.TextHeight(), 184, 0.01);
    EXPECT_TRUE(canvas.Operations().empty());
    canvas.SetFont("Arial", 16, true);
    EXPECT_NEAR(canvas.TextWidth("12.5"), 8 * 88, 0.01);
    EXPECT_NEAR(canvas.TextHeight(), 368, 0.01);
    EXPECT_EQ(canvas.TextWidth(""), 0);
    EXPECT_EQ(canvas.Operations().size(), 1U);
}

TEST(RecordingCanvas, KeepsItsOwnCopyOfEveryText) {
    constexpr int Count = 1000;
    RecordingCanvas canvas(100, 50);
    for (int number = 0; number < Count; ++number) {
        canvas.Print("text " + std::to_string(number));
    }
    canvas.SetFont(std::string("Arial"), 8, false);
    ASSERT_EQ(canvas.Operations().size(), Count + 1U);
    for (std::size_t number = 0; number < Count; ++number) {
        EXPECT_EQ(canvas.Operations()[number].Text, "text " + std::to_string(number));
    }
    EXPECT_EQ(canvas.Operations().back().Text, "Arial");
}

TEST(RecordingCanvas, ForgetsWhatCameBeforeAClearWhereThatIsWanted) {
    RecordingCanvas canvas(100, 50, Keep::SinceClear);
    canvas.Print("before");
    canvas.Clear();
    canvas.Print("behind");
    ASSERT_EQ(canvas.Operations().size(), 2U);
    EXPECT_EQ(canvas.Operations()[0].What, DrawingOperation::Kind::Clear);
    EXPECT_EQ(canvas.Operations()[1].Text, "behind");
}

} // namespace
} // namespace quorvex::platform
