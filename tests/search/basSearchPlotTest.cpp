// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/basSearchPlot.h"

#include "platform/RecordingCanvas.h"
#include "search/basSearch.h"
#include "support/Operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvex::search {
namespace {

using platform::DrawingOperation;
using platform::RecordingCanvas;
using Kind = DrawingOperation::Kind;

constexpr platform::Colour CurveBlue = 0x0000C0;
constexpr double BoxWidth = 6000;
constexpr double BoxHeight = 4000;

// Models of 1, 2 .. cycles with these correlations.
std::vector<CycleModel> ModelsWith(std::vector<double> const& correlations) {
    std::vector<CycleModel> models;
    for (double const correlation : correlations) {
        models.push_back({{}, correlation});
    }
    return models;
}

class SearchPlot : public testing::Test {
protected:
    void Draw(std::vector<double> const& correlations, int chosen) {
        DrawSearchPlot(Box, ModelsWith(correlations), chosen);
    }

    [[nodiscard]] std::vector<DrawingOperation> Drawn(Kind what, platform::Colour colour) const {
        std::vector<DrawingOperation> found;
        std::ranges::copy_if(Box.Operations(), std::back_inserter(found), [&](auto const& operation) {
            return operation.What == what && operation.Drawn == colour;
        });
        return found;
    }

    // The middle of a mark.
    [[nodiscard]] static std::pair<double, double> Middle(DrawingOperation const& mark) {
        auto const& at = mark.Coordinates;
        return {(at[0] + at[2]) / 2, (at[1] + at[3]) / 2};
    }

    RecordingCanvas Box{BoxWidth, BoxHeight};
};

TEST_F(SearchPlot, WithoutModelsThereAreAxesAlone) {
    Draw({}, 3);
    EXPECT_TRUE(Drawn(Kind::Rectangle, CurveBlue).empty());
    EXPECT_THAT(tests::PrintedTexts(Box),
                testing::IsSupersetOf({"0%", "100%", "1", "10", "Number of cycles"}));
}

TEST_F(SearchPlot, EachModelStandsAboveItsNumberAndHigherWithItsCorrelation) {
    Draw({0.61, 0.72, 0.8, 0.8}, 2);
    auto const marks = Drawn(Kind::Rectangle, CurveBlue);
    ASSERT_EQ(marks.size(), 4U);
    EXPECT_EQ(Drawn(Kind::Line, CurveBlue).size(), 3U);
    for (int count = 1; count <= 4; ++count) {
        auto const [x, y] = Middle(marks[static_cast<std::size_t>(count - 1)]);
        EXPECT_NEAR(x, PlaceOfCount(BoxWidth, count), 0.01);
        EXPECT_GT(y, 0);
        EXPECT_LT(y, BoxHeight);
    }
    EXPECT_GT(Middle(marks[0]).second, Middle(marks[1]).second);
    EXPECT_GT(Middle(marks[1]).second, Middle(marks[2]).second);
    EXPECT_NEAR(Middle(marks[2]).second, Middle(marks[3]).second, 0.01);
}

TEST_F(SearchPlot, TheChosenModelHasALargerMarkWithItsCorrelation) {
    Draw({0.61, 0.72, 0.8}, 2);
    auto const marks = Drawn(Kind::Rectangle, CurveBlue);
    auto const width = [&](std::size_t index) {
        return marks.at(index).Coordinates[2] - marks.at(index).Coordinates[0];
    };
    EXPECT_GT(width(1), width(0));
    EXPECT_EQ(width(0), width(2));
    EXPECT_THAT(tests::PrintedTexts(Box), testing::Contains("72.00%"));
    EXPECT_THAT(tests::PrintedTexts(Box), testing::Not(testing::Contains("61.00%")));
}

TEST_F(SearchPlot, TheSharesBeginBelowTheFirstModel) {
    Draw({0.67, 0.9}, 1);
    EXPECT_THAT(tests::PrintedTexts(Box), testing::IsSupersetOf({"60%", "100%"}));
    EXPECT_THAT(tests::PrintedTexts(Box), testing::Not(testing::Contains("50%")));
}

TEST_F(SearchPlot, APerfectModelStandsOnTheTopLine) {
    Draw({1}, 1);
    auto const marks = Drawn(Kind::Rectangle, CurveBlue);
    ASSERT_EQ(marks.size(), 1U);
    auto const frame = Drawn(Kind::Rectangle, platform::Black);
    ASSERT_EQ(frame.size(), 1U);
    EXPECT_NEAR(Middle(marks[0]).second, frame[0].Coordinates[1], 0.01);
}

// Wherever the curve runs, and at every size that a window gives the box.
TEST_F(SearchPlot, NothingIsWrittenOutsideOfTheBoxOrOverAnotherText) {
    for (auto const& correlations :
         {std::vector<double>{0.05, 0.1}, {0.5, 0.99}, {0.99, 0.991}, {1, 1}, std::vector<double>(10, 0.3)}) {
        for (int chosen = 1; chosen <= MostCycles; ++chosen) {
            for (auto const& [width, height] :
                 {std::pair(4800.0, 3000.0), {9000.0, 3000.0}, {20000.0, 16000.0}}) {
                RecordingCanvas box(width, height);
                DrawSearchPlot(box, ModelsWith(correlations), chosen);

                struct Text {
                    double Left = 0, Top = 0, Right = 0, Bottom = 0;
                };

                std::vector<Text> texts;
                auto const& operations = box.Operations();
                for (std::size_t index = 1; index < operations.size(); ++index) {
                    if (operations[index].What == Kind::Print) {
                        ASSERT_EQ(operations[index - 1].What, Kind::TextPosition);
                        auto const& at = operations[index - 1].Coordinates;
                        texts.push_back({at[0], at[1], at[0] + box.TextWidth(operations[index].Text),
                                         at[1] + box.TextHeight()});
                    }
                }
                for (auto const& text : texts) {
                    EXPECT_GE(text.Left, 0);
                    EXPECT_GE(text.Top, 0);
                    EXPECT_LE(text.Right, width);
                    EXPECT_LE(text.Bottom, height);
                    auto const isOver = [&](Text const& other) {
                        return &other != &text && other.Left < text.Right && text.Left < other.Right &&
                               other.Top < text.Bottom && text.Top < other.Bottom;
                    };
                    EXPECT_TRUE(std::ranges::none_of(texts, isOver));
                }
            }
        }
    }
}

TEST_F(SearchPlot, ABoxThatIsTooSmallStaysEmpty) {
    for (auto const& [width, height] : {std::pair(0.0, 0.0), {700.0, 4000.0}, {6000.0, 300.0}}) {
        RecordingCanvas box(width, height);
        DrawSearchPlot(box, ModelsWith({0.5}), 1);
        EXPECT_EQ(box.Operations().front().What, Kind::Clear);
        EXPECT_TRUE(std::ranges::none_of(box.Operations(), [](auto const& operation) {
            return operation.What == Kind::Rectangle || operation.What == Kind::Print;
        }));
        EXPECT_EQ(CountAtPlace(700, 650), 0);
    }
}

TEST_F(SearchPlot, APlaceTellsTheNearestNumber) {
    for (int count = 1; count <= MostCycles; ++count) {
        EXPECT_EQ(CountAtPlace(BoxWidth, PlaceOfCount(BoxWidth, count)), count);
        EXPECT_EQ(CountAtPlace(BoxWidth, PlaceOfCount(BoxWidth, count) + 200), count);
    }
    EXPECT_EQ(CountAtPlace(BoxWidth, 100), 0);
    EXPECT_EQ(CountAtPlace(BoxWidth, BoxWidth - 10), 0);
}

} // namespace
} // namespace quorvex::search
