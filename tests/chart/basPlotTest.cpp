// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basPlot.h"

#include "chart/basScale.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/Operations.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace quorvex::chart {
namespace {

using nlohmann::json;
using platform::DrawingOperation;
using platform::RecordingCanvas;
using tests::AreOperations;

// The chart of one reference quote file.
class QuoteChart {
public:
    explicit QuoteChart(std::string const& file, std::string const& currencyFormat = "####0.00")
        : series(tests::GoldenSeries(file, currencyFormat)) {
        settings.CurrencyFormat = currencyFormat;
    }

    cycles::ChartStates const& Draw(platform::Canvas& box) {
        DrawQuoteChart(box, *series, settings, *curves);
        return curves->States;
    }

    // Whether nothing ended the drawing early.
    bool DrawWhole(platform::Canvas& box) {
        auto const& states = Draw(box);
        return states.Quotes.IsReady() && states.MovingAverage.IsReady();
    }

    std::unique_ptr<quotes::QuoteSeries> series;
    settings::Settings settings = settings::DefaultSettings("./");
    std::unique_ptr<cycles::CycleCurves> curves = std::make_unique<cycles::CycleCurves>();
};

// The operations number first..last of a drawing, which a reference part gives some of.
void ExpectPart(std::vector<DrawingOperation> const& drawn, std::size_t first, json const& part) {
    for (auto const& entry : part.at("ops")) {
        std::size_t const index = first + entry.at(0).get<std::size_t>();
        ASSERT_LT(index, drawn.size());
        EXPECT_TRUE(tests::IsOperation(tests::OperationJson(drawn[index]), entry.at(1))) << entry.at(0);
    }
}

TEST(QuoteChart, DrawsEveryReferenceFileInThreeStyles) {
    for (auto const& expected : tests::GoldenVector("charts")) {
        auto const& parts = expected.at("parts");
        for (std::string const type : {"Daily Bar Chart", "Candlestick Chart", "Line Chart"}) {
            SCOPED_TRACE(expected.at("file").get<std::string>() + ", " + type);
            QuoteChart chart(expected.at("file"), expected.at("currency_format"));
            chart.settings.ChartType = type;
            chart.settings.MovingAverageIndex = expected.at("moving_average_index");
            RecordingCanvas box(expected.at("box").at(0), expected.at("box").at(1));
            EXPECT_TRUE(chart.DrawWhole(box));
            EXPECT_TRUE(tests::IsClose(chart.curves->PriceScale.PriceScaleHigh,
                                       expected.at("price_scale").at("high")));
            EXPECT_TRUE(
                tests::IsClose(chart.curves->PriceScale.PriceScaleLow, expected.at("price_scale").at("low")));

            // From the end, where no dash is there or not by rounding.
            auto const& drawn = box.Operations();
            std::size_t const labels = drawn.size() - parts.at("labels").at("count").get<std::size_t>();
            std::size_t const average = labels - parts.at("moving_average").at("count").get<std::size_t>();
            std::size_t const quotes = average - parts.at("quotes: " + type).at("count").get<std::size_t>();
            ExpectPart(drawn, labels, parts.at("labels"));
            ExpectPart(drawn, average, parts.at("moving_average"));
            ExpectPart(drawn, quotes, parts.at("quotes: " + type));
            EXPECT_EQ(drawn[quotes - 1].What, DrawingOperation::Kind::ForeColour);
            EXPECT_EQ(drawn.front().What, DrawingOperation::Kind::Clear);
        }
    }
}

TEST(QuoteChart, PreparesAndTicksEveryReferenceFile) {
    for (auto const& expected : tests::GoldenVector("charts")) {
        SCOPED_TRACE(expected.at("file").get<std::string>());
        RecordingCanvas prepared(expected.at("box").at(0), expected.at("box").at(1));
        PrepareChart(prepared, expected.at("n"));
        auto const& prepare = expected.at("parts").at("prepare");
        if (prepare.at("ops").size() == prepare.at("count")) {
            auto operations = json::array();
            for (auto const& entry : prepare.at("ops")) {
                operations.push_back(entry.at(1));
            }
            EXPECT_TRUE(AreOperations(prepared.Operations(), operations, prepared.Width()));
        } else {
            // Part of the list: up to the last dash of the first row no rounding can move its places.
            json first = prepare;
            first["ops"] = json::array();
            for (auto const& entry : prepare.at("ops")) {
                if (entry.at(0) < expected.at("n")) {
                    first["ops"].push_back(entry);
                }
            }
            EXPECT_FALSE(first.at("ops").empty());
            ExpectPart(prepared.Operations(), 0, first);
        }
        RecordingCanvas ticked(expected.at("box").at(0), expected.at("box").at(1));
        DrawTimeTicks(ticked, expected.at("n"));
        auto const& ticks = expected.at("parts").at("ticks");
        EXPECT_EQ(ticked.Operations().size(), ticks.at("count"));
        ExpectPart(ticked.Operations(), 0, ticks);
    }
}

TEST(QuoteChart, DrawsTheSingleReferenceCases) {
    int drawn = 0;
    for (auto const& expected : tests::GoldenVector("chart_cases")) {
        std::string const label = expected.at("label");
        SCOPED_TRACE(label);
        RecordingCanvas box(expected.at("box").at(0), expected.at("box").at(1));
        if (label == "prepare with no quotes") {
            PrepareChart(box, 0);
        } else if (label == "ticks with no quotes") {
            DrawTimeTicks(box, 0);
        } else if (label.starts_with("whole quote chart, q025.txt, Line Chart, index ")) {
            QuoteChart chart("q025.txt");
            chart.settings.ChartType = "Line Chart";
            chart.settings.MovingAverageIndex = label.substr(label.rfind(' ') + 1);
            EXPECT_TRUE(chart.DrawWhole(box));
        } else {
            continue;
        }
        EXPECT_TRUE(AreOperations(box.Operations(), expected.at("ops"), box.Width()));
        ++drawn;
    }
    EXPECT_EQ(drawn, 4);
}

TEST(QuoteChart, OfPricesWithoutARangeLeavesTheBoxAsItIs) {
    QuoteChart chart("q025.txt");
    for (int day = 1; day <= 25; ++day) {
        chart.series->Working[day].High = 100;
        chart.series->Working[day].Low = 100;
    }
    RecordingCanvas box(7000, 2500);
    auto const error = chart.Draw(box).Quotes.Fault;
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
    EXPECT_TRUE(box.Operations().empty());
    EXPECT_EQ(chart.curves->PriceScale.PriceScaleHigh, 100);
    EXPECT_EQ(chart.curves->MovingAverageCurve[1], 0);
}

TEST(QuoteChart, WithoutAFileIsNotDrawn) {
    QuoteChart chart("q025.txt");
    chart.series->QuoteFileName.clear();
    RecordingCanvas box(7000, 2500);
    EXPECT_EQ(chart.Draw(box).Quotes.Missing, cycles::Need::QuoteFile);
    EXPECT_TRUE(box.Operations().empty());
}

TEST(QuoteChart, DrawsTheLineChartForAnyOtherType) {
    std::vector<std::size_t> counts;
    for (auto const* type : {"Line Chart", "", "daily bar chart"}) {
        QuoteChart chart("q025.txt");
        chart.settings.ChartType = type;
        RecordingCanvas box(7000, 2500);
        EXPECT_TRUE(chart.DrawWhole(box));
        counts.push_back(box.Operations().size());
    }
    EXPECT_EQ(counts[0], counts[1]);
    EXPECT_EQ(counts[0], counts[2]);
}

TEST(QuoteChart, DrawsAnUnchangedDayAsAHollowCandleWithoutHeight) {
    QuoteChart chart("q025.txt");
    chart.settings.ChartType = "Candlestick Chart";
    chart.series->Working[1].Open = chart.series->Working[1].Close;
    chart.series->Working[2].Open = chart.series->Working[2].Close + 1;
    RecordingCanvas box(7000, 2500);
    EXPECT_TRUE(chart.DrawWhole(box));
    std::vector<DrawingOperation> rectangles;
    std::copy_if(box.Operations().begin(), box.Operations().end(), std::back_inserter(rectangles),
                 [](auto const& operation) { return operation.What == DrawingOperation::Kind::Rectangle; });
    EXPECT_FALSE(rectangles.at(2).Flag);
    EXPECT_EQ(rectangles.at(2).Coordinates[1], rectangles.at(2).Coordinates[3]);
    EXPECT_TRUE(rectangles.at(5).Flag);
}

TEST(QuoteChart, HasNoMagentaCurveForAnIndexOfZero) {
    QuoteChart chart("q025.txt");
    chart.settings.MovingAverageIndex = "0";
    RecordingCanvas box(7000, 2500);
    EXPECT_TRUE(chart.DrawWhole(box));
    for (auto const& operation : box.Operations()) {
        EXPECT_NE(operation.Drawn, platform::Magenta);
    }
    EXPECT_EQ(chart.curves->MovingAverageCurve[25], chart.series->Working[25].Close);
}

TEST(QuoteChart, GoesOnWithItsLabelsWhenTheMovingAverageFails) {
    QuoteChart chart("q025.txt");
    chart.settings.MovingAverageIndex = "1001";
    RecordingCanvas box(7000, 2500);
    auto const& states = chart.Draw(box);
    EXPECT_TRUE(states.Quotes.IsReady());
    ASSERT_TRUE(states.MovingAverage.Fault);
    EXPECT_EQ(states.MovingAverage.Fault->Description(), "Subscript out of range");
    EXPECT_EQ(box.Operations().back().What, DrawingOperation::Kind::Print);
}

TEST(QuoteChart, FillsTheMovingAverageOfASeriesOfItsOwnLength) {
    QuoteChart chart("q025.txt");
    RecordingCanvas box(7000, 2500);
    EXPECT_TRUE(chart.DrawWhole(box));
    chart.settings.MovingAverageIndex = "25";
    DrawMovingAverage(box, *chart.series, chart.settings, *chart.curves);
    EXPECT_TRUE(chart.curves->States.MovingAverage.IsReady());
    EXPECT_EQ(chart.curves->MovingAverageCurve[1], chart.series->Working[1].Close);
    EXPECT_EQ(chart.curves->MovingAverageCurve[25], chart.series->Working[25].Close);
}

TEST(QuoteChart, EndsAtAPriceBeyondEveryHeight) {
    QuoteChart chart("q025.txt");
    chart.series->Working[3].Open = 1e308;
    RecordingCanvas box(7000, 2500);
    auto const error = chart.Draw(box).Quotes.Fault;
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Overflow");
    // The first two days are there, the third is not, nor anything after it.
    EXPECT_EQ(box.Operations().back().What, DrawingOperation::Kind::Rectangle);
    EXPECT_LT(box.Operations().back().Coordinates[0], 3 * ColumnStep(7000, 25) + 1);
}

TEST(PrepareChart, EndsOnABoxWithoutWidth) {
    for (double const width : {0.0, -100.0}) {
        RecordingCanvas box(width, 100);
        PrepareChart(box, 25);
        EXPECT_EQ(box.Operations().size(), 3U);
    }
}

TEST(PriceMapping, PutsTheScaleFiveTwipsInsideTheBox) {
    auto const mapping = ScalePrices({250, 200}, 1000);
    EXPECT_TRUE(tests::IsClose(mapping.Y(250), 5));
    EXPECT_TRUE(tests::IsClose(mapping.Y(200), 995));
}

} // namespace
} // namespace quorvex::chart
