// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basCyclePlot.h"

#include "chart/ChartColours.h"
#include "cycles/basCurves.h"
#include "platform/RecordingCanvas.h"
#include "quotes/PriceScale.h"
#include "support/Golden.h"
#include "support/Operations.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::chart {
namespace {

using nlohmann::json;
using platform::DrawingOperation;
using platform::RecordingCanvas;

// Compares one polyline: fore colour, a point, and a line to each day.
void ExpectPolyline(std::vector<DrawingOperation> const& drawn, std::size_t first, json const& points,
                    platform::Colour colour) {
    ASSERT_LE(first + points.size() + 2, drawn.size());
    EXPECT_EQ(drawn[first].What, DrawingOperation::Kind::ForeColour);
    EXPECT_EQ(drawn[first].Drawn, colour);
    EXPECT_TRUE(tests::IsOperation(tests::OperationJson(drawn[first + 1]),
                                   {"point", points.at(0).at(0), points.at(0).at(1), colour}));
    for (std::size_t index = 0; index < points.size(); ++index) {
        auto const& from = points.at(index == 0 ? 0 : index - 1);
        auto const& to = points.at(index);
        EXPECT_TRUE(tests::IsOperation(tests::OperationJson(drawn[first + 2 + index]),
                                       {"line", from.at(0), from.at(1), to.at(0), to.at(1), colour}));
    }
}

TEST(CyclePlot, DrawsTheReferencePolylines) {
    int compared = 0;
    for (auto const& expected : tests::GoldenVector("curves")) {
        if (!expected.contains("box")) {
            continue;
        }
        SCOPED_TRACE(expected.at("file").get<std::string>());
        auto const series =
            tests::GoldenSeries(expected.at("file"), expected.at("currency_format").get<std::string>());
        auto const n = series->WorkingCount;
        auto set = std::make_unique<cycles::CycleParameterSet>();
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            auto const& row = expected.at("cycles").at(static_cast<std::size_t>(cycle - 1));
            set->Cycles[cycle].Weight = row.at(0);
            set->Cycles[cycle].Period = row.at(1);
            set->Cycles[cycle].Shift = row.at(2);
        }
        auto curves = std::make_unique<cycles::CycleCurves>();
        cycles::ComputeMovingAverage(
            *series, cycles::MovingAverageLength(expected.at("moving_average_index").get<std::string>()),
            curves->MovingAverageCurve);
        cycles::ComputeCycleValues(*set, n);
        cycles::ComputeComposite(*set, n, curves->CompositeCurve);
        cycles::ComputeResidual(*curves, quotes::ComputePriceScale(*series), n);

        double const width = expected.at("box").at(0);
        double const height = expected.at("box").at(1);
        RecordingCanvas single(width, height);
        DrawCycles(single, *set, n);
        std::size_t first = 0;
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            if (set->Cycles[cycle].IsActive()) {
                auto const& points = expected.at("cycle_polylines").at(std::to_string(cycle));
                ExpectPolyline(single.Operations(), first, points, CycleColour(cycle));
                first += points.size() + 2;
            }
        }
        EXPECT_EQ(first, single.Operations().size());

        RecordingCanvas composite(width, height);
        DrawComposite(composite, curves->CompositeCurve, n);
        ExpectPolyline(composite.Operations(), 0, expected.at("composite_polyline"), CompositeColour);
        EXPECT_EQ(composite.Operations().size(), static_cast<std::size_t>(n) + 2);

        RecordingCanvas residual(width, height);
        DrawResidual(residual, curves->ResidualCurve, n);
        ExpectPolyline(residual.Operations(), 0, expected.at("residual_polyline"), ResidualColour);
        EXPECT_EQ(residual.Operations().size(), static_cast<std::size_t>(n) + 2);
        ++compared;
    }
    EXPECT_GT(compared, 3);
}

TEST(CyclePlot, ShowsAHundredDaysWithoutQuotes) {
    auto const curve = std::make_unique<cycles::CycleCurve>();
    RecordingCanvas box(1010, 200);
    DrawComposite(box, *curve, 0);
    EXPECT_EQ(box.Operations().size(), 102U);
    EXPECT_NEAR(box.Operations().back().Coordinates[2], 1000, 0.01);
    EXPECT_NEAR(box.Operations().back().Coordinates[3], 100, 0.01);
}

TEST(CyclePlot, AResidualWithoutASpreadDividesByZero) {
    cycles::QuoteCurve residual;
    residual.Fill(7);
    RecordingCanvas box(1000, 200);
    EXPECT_THROW(DrawResidual(box, residual, 25), text::RunTimeError);
}

} // namespace
} // namespace quorvex::chart
