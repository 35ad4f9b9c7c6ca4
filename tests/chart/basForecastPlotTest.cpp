// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastPlot.h"

#include "chart/ChartColours.h"
#include "platform/RecordingCanvas.h"
#include "support/Operations.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>

namespace quorvex::chart {
namespace {

using platform::DrawingOperation;
using platform::RecordingCanvas;
using Kind = DrawingOperation::Kind;

// A box whose columns are 100 twips wide, the middle of the first at 1010, and whose frame is 5000 by 5000
// twips with its top left corner at (960, 274).
constexpr double BoxWidth = 6260;
constexpr double BoxHeight = 5578;

// A chart of the prices 105 to 149, which stand at 4974 and 574, so that a price is 100 twips high.
class ForecastChart {
public:
    explicit ForecastChart(int days = 30)
        : Series(tests::SeriesOf(tests::QuoteLines(days))),
          Dates(cycles::ComputeForecastDates(Series->LastQuoteDate)) {
        for (int day = 1; day <= days; ++day) {
            Series->Working[day].Open = 120;
            Series->Working[day].Close = 125;
        }
        Series->Working[days].Close = 149;
        for (int day = 1; day <= cycles::ForecastDays; ++day) {
            Values[day] = 130 - day;
        }
    }

    std::optional<text::RunTimeError> Draw() { return DrawForecast(Box, *Series, Values, Dates); }

    [[nodiscard]] std::vector<DrawingOperation> Drawn(Kind what, platform::Colour colour) const {
        std::vector<DrawingOperation> found;
        std::copy_if(
            Box.Operations().begin(), Box.Operations().end(), std::back_inserter(found),
            [&](auto const& operation) { return operation.What == what && operation.Drawn == colour; });
        return found;
    }

    // Without the frame, which comes first.
    [[nodiscard]] std::vector<DrawingOperation> Bodies() const {
        auto rectangles = Drawn(Kind::Rectangle, QuoteColour);
        rectangles.erase(rectangles.begin());
        return rectangles;
    }

    // Where the text stands, and whether it is there exactly once.
    [[nodiscard]] std::optional<std::array<double, 2>> PlaceOf(std::string_view text) const {
        std::optional<std::array<double, 2>> place;
        auto const& operations = Box.Operations();
        for (std::size_t index = 1; index < operations.size(); ++index) {
            if (operations[index].What == Kind::Print && operations[index].Text == text) {
                if (place || operations[index - 1].What != Kind::TextPosition) {
                    return std::nullopt;
                }
                auto const& at = operations[index - 1].Coordinates;
                place = {at[0], at[1]};
            }
        }
        return place;
    }

    [[nodiscard]] bool IsFinite() const {
        return std::all_of(Box.Operations().begin(), Box.Operations().end(), [](auto const& operation) {
            auto const& at = operation.Coordinates;
            return std::all_of(at.begin(), at.end(), [](double value) { return std::isfinite(value); });
        });
    }

    std::unique_ptr<quotes::QuoteSeries> Series;
    cycles::ForecastDates Dates;
    cycles::ForecastCurve Values;
    RecordingCanvas Box{BoxWidth, BoxHeight};
};

void ExpectAt(DrawingOperation const& operation, std::array<double, 4> const& coordinates) {
    for (std::size_t index = 0; index < coordinates.size(); ++index) {
        EXPECT_NEAR(operation.Coordinates.at(index), coordinates.at(index), 0.01) << index;
    }
}

void ExpectPlace(ForecastChart const& chart, std::string_view text, double x, double y) {
    auto const place = chart.PlaceOf(text);
    ASSERT_TRUE(place) << text;
    EXPECT_NEAR(place->at(0), x, 0.01) << text;
    EXPECT_NEAR(place->at(1), y, 0.01) << text;
}

TEST(ForecastChart, BeginsWithItsFrameOnAClearedBox) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto const& drawn = chart.Box.Operations();
    ASSERT_GT(drawn.size(), 4U);
    EXPECT_EQ(drawn[0].What, Kind::Clear);
    EXPECT_EQ(drawn[1].What, Kind::ForeColour);
    EXPECT_EQ(drawn[1].Drawn, platform::Black);
    EXPECT_EQ(drawn[2].What, Kind::Font);
    EXPECT_EQ(drawn[2].Text, "Arial");
    EXPECT_EQ(drawn[3].What, Kind::Rectangle);
    EXPECT_EQ(drawn[3].Drawn, platform::Black);
    EXPECT_FALSE(drawn[3].Flag);
    ExpectAt(drawn[3], {960, 274, 5960, 5274});
}

TEST(ForecastChart, PutsGridBehindQuotesAndQuotesBeforeTheForecast) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto const& drawn = chart.Box.Operations();
    auto const lastGrid = std::find_if(drawn.rbegin(), drawn.rend(), [](auto const& operation) {
                              return operation.Drawn == GridColour;
                          }).base();
    auto const firstBody = std::find_if(drawn.begin() + 4, drawn.end(), [](auto const& operation) {
        return operation.What == Kind::Rectangle;
    });
    auto const forecast = std::find_if(drawn.begin(), drawn.end(),
                                       [](auto const& operation) { return operation.What == Kind::Point; });
    EXPECT_LT(lastGrid, firstBody);
    EXPECT_EQ(forecast - firstBody, 25);
    EXPECT_EQ(drawn.end() - forecast, 25);
}

TEST(ForecastChart, DrawsTheLastTwentyFiveDaysFromOpenToClose) {
    ForecastChart chart;
    chart.Series->Working[5].Open = 500; // the day before the first shown
    chart.Series->Working[6].Close = 110;
    EXPECT_FALSE(chart.Draw());
    auto const bodies = chart.Bodies();
    ASSERT_EQ(bodies.size(), 25U);
    ExpectAt(bodies.front(), {980, 3474, 1040, 4474});
    ExpectAt(bodies.back(), {3380, 3474, 3440, 574});
}

TEST(ForecastChart, FillsFallingDaysOnly) {
    ForecastChart chart;
    chart.Series->Working[6].Close = 110;
    chart.Series->Working[7].Close = 120;
    EXPECT_FALSE(chart.Draw());
    auto const bodies = chart.Bodies();
    ASSERT_EQ(bodies.size(), 25U);
    EXPECT_TRUE(bodies[0].Flag);
    EXPECT_FALSE(bodies[1].Flag);
    EXPECT_EQ(bodies[1].Coordinates[1], bodies[1].Coordinates[3]);
    EXPECT_FALSE(bodies[2].Flag);
}

TEST(ForecastChart, DrawsTheForecastAsALineBehindTheQuotes) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto const points = chart.Drawn(Kind::Point, ForecastColour);
    ASSERT_EQ(points.size(), 1U);
    ExpectAt(points[0], {3510, 4974 - 24 * 100, 0, 0});
    auto const lines = chart.Drawn(Kind::Line, ForecastColour);
    ASSERT_EQ(lines.size(), 24U);
    ExpectAt(lines.front(), {3510, 2574, 3610, 2674});
    ExpectAt(lines.back(), {5810, 4874, 5910, 4974});
}

TEST(ForecastChart, PartsQuotesFromForecastByALine) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto const lines = chart.Drawn(Kind::Line, BoundaryColour);
    ASSERT_EQ(lines.size(), 1U);
    ExpectAt(lines[0], {3460, 289, 3460, 5259});
}

TEST(ForecastChart, NamesItsHalvesInTheirColours) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    ExpectPlace(chart, "Quotes", (960 + 3460) / 2.0 - 3 * 88, 45);
    ExpectPlace(chart, "Forecast", (3460 + 5960) / 2.0 - 4 * 88, 45);
    platform::Colour fore = platform::Black;
    for (auto const& operation : chart.Box.Operations()) {
        if (operation.What == Kind::ForeColour) {
            fore = operation.Drawn;
        } else if (operation.What == Kind::Print) {
            EXPECT_EQ(fore, operation.Text == "Forecast" ? ForecastColour : platform::Black);
        }
    }
}

TEST(ForecastChart, LabelsPricesFromTheLowestToTheHighest) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto texts = tests::PrintedTexts(chart.Box);
    texts.resize(10);
    EXPECT_EQ(texts, (std::vector<std::string>{" 105.", " 110.", " 115.", " 120.", " 125.", " 130.", " 135.",
                                               " 140.", " 145.", " 149."}));
    ExpectPlace(chart, " 105.", 840 - 5 * 88, 4974 - 92);
    ExpectPlace(chart, " 149.", 840 - 5 * 88, 574 - 92);
    auto const ticks = chart.Drawn(Kind::Line, platform::Black);
    ExpectAt(ticks.at(0), {885, 4974, 960, 4974});
    ExpectAt(ticks.at(9), {885, 574, 960, 574});
}

TEST(ForecastChart, DrawsALineAcrossAtRoundPricesOnly) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    auto const lines = chart.Drawn(Kind::Line, GridColour);
    ASSERT_EQ(lines.size(), 8U);
    ExpectAt(lines.front(), {975, 4474, 5945, 4474});
    ExpectAt(lines.back(), {975, 974, 5945, 974});
}

TEST(ForecastChart, AlignsTheDecimalPointsOfItsPrices) {
    ForecastChart chart;
    chart.Values[25] = 98.125;
    EXPECT_FALSE(chart.Draw());
    auto const lowest = chart.PlaceOf(" 98.125");
    auto const highest = chart.PlaceOf(" 149.");
    ASSERT_TRUE(lowest && highest);
    EXPECT_NEAR(lowest->at(0), 840 - 7 * 88, 0.01);
    EXPECT_NEAR(highest->at(0), 840 - 8 * 88, 0.01);
}

TEST(ForecastChart, KeepsLongPricesInsideTheBox) {
    ForecastChart chart;
    chart.Values[25] = 1234567890.125;
    EXPECT_FALSE(chart.Draw());
    auto const place = chart.PlaceOf(" 1234567890.125");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->at(0), 0);
}

TEST(ForecastChart, LeavesOutRoundPricesThatWouldTouchTheEnds) {
    ForecastChart chart;
    chart.Values[25] = 109; // 110 is 1.1 lines away
    chart.Series->Working[30].Close = 146;
    for (int day = 1; day < 25; ++day) {
        chart.Values[day] = 120;
    }
    EXPECT_FALSE(chart.Draw());
    EXPECT_TRUE(chart.PlaceOf(" 109."));
    EXPECT_FALSE(chart.PlaceOf(" 110."));
    EXPECT_TRUE(chart.PlaceOf(" 115."));
    EXPECT_TRUE(chart.PlaceOf(" 140."));
    EXPECT_FALSE(chart.PlaceOf(" 145."));
    EXPECT_TRUE(chart.PlaceOf(" 146."));
}

TEST(ForecastChart, StepsByOneTwoOrFive) {
    for (auto const& [height, next] : {std::pair{5578.0, " 110."},
                                       {3000.0, " 110."},
                                       {20000.0, " 106."},
                                       {10000.0, " 108."},
                                       {1800.0, " 120."}}) {
        SCOPED_TRACE(height);
        ForecastChart chart;
        RecordingCanvas box(BoxWidth, height);
        EXPECT_FALSE(DrawForecast(box, *chart.Series, chart.Values, chart.Dates));
        std::vector<std::string> texts;
        for (auto const& operation : box.Operations()) {
            if (operation.What == Kind::Print) {
                texts.emplace_back(operation.Text);
            }
        }
        ASSERT_GT(texts.size(), 1U);
        EXPECT_EQ(texts[1], next);
    }
}

TEST(ForecastChart, DatesItsEndsAndItsLastQuote) {
    ForecastChart chart;
    EXPECT_FALSE(chart.Draw());
    EXPECT_EQ(chart.Series->Working[6].Date, "01/08/01");
    EXPECT_EQ(chart.Dates[25], "03/16/01");
    ExpectPlace(chart, "01/08/01", 1010 - 4 * 88, 5274 + 75 + 22.5);
    ExpectPlace(chart, "02/09/01", 3410 - 4 * 88, 5274 + 75 + 22.5);
    ExpectPlace(chart, "03/16/01", 5908 - 4 * 88, 5274 + 75 + 22.5);
    ExpectPlace(chart, chart.Series->Working[18].Date, 2210 - 4 * 88, 5274 + 75 + 22.5);
    ExpectPlace(chart, chart.Dates[13], 4710 - 4 * 88, 5274 + 75 + 22.5);
}

TEST(ForecastChart, PutsFewerDaysNextToTheForecast) {
    ForecastChart chart(3);
    EXPECT_FALSE(chart.Draw());
    auto const bodies = chart.Bodies();
    ASSERT_EQ(bodies.size(), 3U);
    ExpectAt(bodies.front(), {3180, 3474, 3240, 2974});
    ExpectAt(bodies.back(), {3380, 3474, 3440, 574});
    // The dates of the first and the last quote stand side by side.
    ExpectPlace(chart, "01/03/01", 3410 - 4 * 88, 5371.5);
    ExpectPlace(chart, "01/01/01", 3410 - 4 * 88 - 90 - 8 * 88, 5371.5);
    EXPECT_FALSE(chart.PlaceOf("01/02/01"));
}

TEST(ForecastChart, DatesASingleDayOnce) {
    ForecastChart chart(1);
    EXPECT_FALSE(chart.Draw());
    EXPECT_EQ(chart.Bodies().size(), 1U);
    ExpectPlace(chart, "01/01/01", 3410 - 4 * 88, 5371.5);
}

TEST(ForecastChart, WithoutDaysIsTheForecastAlone) {
    ForecastChart chart;
    chart.Series->WorkingCount = 0;
    EXPECT_FALSE(chart.Draw());
    EXPECT_TRUE(chart.Bodies().empty());
    EXPECT_EQ(chart.Drawn(Kind::Line, ForecastColour).size(), 24U);
    EXPECT_TRUE(chart.PlaceOf(" 129."));
    EXPECT_FALSE(chart.PlaceOf(" 149."));
}

TEST(ForecastChart, PutsValuesWithoutARangeInTheMiddle) {
    for (double const residue : {0.0, 1e-13}) {
        ForecastChart chart;
        for (int day = 1; day <= 30; ++day) {
            chart.Series->Working[day].Open = 100.25;
            chart.Series->Working[day].Close = 100.25;
        }
        chart.Values.Fill(100.25);
        chart.Values[9] += residue;
        EXPECT_FALSE(chart.Draw());
        EXPECT_TRUE(chart.IsFinite());
        ExpectPlace(chart, " 100.25", 840 - 7 * 88, 2774 - 92);
        for (auto const& body : chart.Bodies()) {
            EXPECT_EQ(body.Coordinates[1], 2774);
            EXPECT_EQ(body.Coordinates[3], 2774);
        }
        for (auto const& line : chart.Drawn(Kind::Line, ForecastColour)) {
            EXPECT_EQ(line.Coordinates[3], 2774);
        }
    }
}

TEST(ForecastChart, LabelsPricesThatReadTheSameOnce) {
    ForecastChart chart;
    for (int day = 1; day <= 30; ++day) {
        chart.Series->Working[day].Open = 0.0071;
        chart.Series->Working[day].Close = 0.0074;
    }
    chart.Values.Fill(0.0072);
    EXPECT_FALSE(chart.Draw());
    EXPECT_TRUE(chart.PlaceOf(" .007"));
    ExpectAt(chart.Bodies().front(), {980, 4974, 1040, 574});
}

TEST(ForecastChart, OfValuesBeyondEveryScaleLeavesTheBoxAsItIs) {
    for (double const value :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(), -1.7e308}) {
        for (int const day : {1, 7}) {
            ForecastChart chart;
            chart.Series->Working[30].Close = 1.7e308;
            chart.Values[day] = value;
            auto const fault = chart.Draw();
            ASSERT_TRUE(fault);
            EXPECT_EQ(fault->Description(), "Overflow");
            EXPECT_TRUE(chart.Box.Operations().empty());
        }
    }
}

TEST(ForecastChart, OfARangeTooSmallToMagnifyOverflows) {
    ForecastChart chart(1);
    chart.Series->Working[1].Open = 0;
    chart.Series->Working[1].Close = 0;
    chart.Values.Fill(5e-324);
    auto const fault = chart.Draw();
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->Description(), "Overflow");
    EXPECT_TRUE(chart.IsFinite());
}

TEST(ForecastChart, StaysFiniteOnPricesOfAnySize) {
    for (double const price : {1e-300, 1e15, 8e307}) {
        ForecastChart chart;
        chart.Values[3] = price;
        chart.Values[4] = -price;
        EXPECT_FALSE(chart.Draw());
        EXPECT_TRUE(chart.IsFinite());
    }
}

TEST(ForecastChart, LeavesABoxEmptyThatHasNoRoomForTheFrame) {
    for (auto const& [width, height] :
         {std::pair{1260.0, 5578.0}, {6260.0, 578.0}, {0.0, 0.0}, {-10.0, -10.0}}) {
        ForecastChart chart;
        RecordingCanvas box(width, height);
        EXPECT_FALSE(DrawForecast(box, *chart.Series, chart.Values, chart.Dates));
        EXPECT_EQ(box.Operations().size(), 3U);
    }
}

TEST(ForecastChart, WritesNoDateOverAnother) {
    for (double const width : {1400.0, 2000.0, 3000.0, 4000.0, 7000.0, 12000.0}) {
        SCOPED_TRACE(width);
        ForecastChart chart;
        RecordingCanvas box(width, BoxHeight);
        EXPECT_FALSE(DrawForecast(box, *chart.Series, chart.Values, chart.Dates));
        std::vector<double> lefts;
        auto const& drawn = box.Operations();
        for (std::size_t index = 1; index < drawn.size(); ++index) {
            if (drawn[index].What == Kind::Print && drawn[index].Text.find('/') != std::string::npos) {
                lefts.push_back(drawn[index - 1].Coordinates[0]);
            }
        }
        ASSERT_FALSE(lefts.empty());
        std::sort(lefts.begin(), lefts.end());
        EXPECT_GE(lefts.front(), 0);
        EXPECT_LE(lefts.back() + 8 * 88, width);
        for (std::size_t index = 1; index < lefts.size(); ++index) {
            EXPECT_GT(lefts[index] - lefts[index - 1], 8 * 88);
        }
    }
}

} // namespace
} // namespace quorvex::chart
