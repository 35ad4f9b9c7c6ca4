// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basCurves.h"

#include "CycleTexts.h"
#include "ReferenceCurves.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <string>

namespace quorvex::cycles {
namespace {

using tests::GoldenSeries;
using tests::GoldenVector;
using tests::IsClose;

// A series of these closes; the other prices are of no account.
std::unique_ptr<quotes::QuoteSeries> SeriesOfCloses(std::vector<double> const& closes) {
    auto series = std::make_unique<quotes::QuoteSeries>();
    for (double const close : closes) {
        series->Working[++series->WorkingCount].Close = close;
    }
    return series;
}

std::unique_ptr<quotes::QuoteSeries> RisingCloses(int count) {
    std::vector<double> closes;
    for (int day = 1; day <= count; ++day) {
        closes.push_back(day);
    }
    return SeriesOfCloses(closes);
}

std::string FormatOf(std::string const& file) {
    static std::map<std::string, std::string> const formats = [] {
        std::map<std::string, std::string> found;
        for (auto const& entry : GoldenVector("quote_files")) {
            found.emplace(entry.at("file"), entry.at("currency_format"));
        }
        return found;
    }();
    return formats.at(file);
}

QuoteCurve MovingAverage(quotes::QuoteSeries const& series, int length) {
    QuoteCurve curve;
    ComputeMovingAverage(series, static_cast<std::int16_t>(length), curve);
    return curve;
}

TEST(MovingAverage, AgreesWithTheReference) {
    for (auto const& expected : GoldenVector("moving_average")) {
        auto const series = expected.contains("file")
                                ? GoldenSeries(expected.at("file"), FormatOf(expected.at("file")))
                                : SeriesOfCloses(expected.at("closes"));
        int const length = expected.at("k");
        SCOPED_TRACE(expected.value("file", "closes") + ", length " + std::to_string(length));
        auto const curve = MovingAverage(*series, length);
        auto const& days = expected.at("days");
        for (std::size_t index = 0; index < days.size(); ++index) {
            EXPECT_TRUE(IsClose(curve[days.at(index)], expected.at("values").at(index))) << days.at(index);
        }
    }
}

TEST(MovingAverage, ShrinksItsWindowTowardsBothEnds) {
    auto const curve = MovingAverage(*RisingCloses(30), 5);
    EXPECT_EQ(curve[1], 1);
    EXPECT_EQ(curve[2], 2);
    EXPECT_EQ(curve[3], 3);
    EXPECT_EQ(curve[29], 29);
    EXPECT_EQ(curve[30], 30);
}

TEST(MovingAverage, DividesFiveClosesByFourForALengthOfFour) {
    auto const curve = MovingAverage(*RisingCloses(30), 4);
    EXPECT_EQ(curve[10], (8 + 9 + 10 + 11 + 12) / 4.0);
}

TEST(MovingAverage, RetracesTheClosesBelowALengthOfTwo) {
    auto const series = RisingCloses(30);
    for (int const length : {-7, 0, 1}) {
        auto const curve = MovingAverage(*series, length);
        for (int day = 1; day <= 30; ++day) {
            EXPECT_EQ(curve[day], day);
        }
    }
}

TEST(MovingAverage, HasOneMiddleDayWhenItsLengthIsTheSeries) {
    auto const curve = MovingAverage(*RisingCloses(25), 25);
    EXPECT_TRUE(IsClose(curve[12], 12));
    EXPECT_TRUE(IsClose(curve[13], 13));
    EXPECT_TRUE(IsClose(curve[14], 14));
}

TEST(MovingAverage, OfAConstantIsThatConstantForOddLengths) {
    auto const series = SeriesOfCloses(std::vector<double>(120, 245.25));
    for (int length = 1; length <= 119; length += 2) {
        auto const curve = MovingAverage(*series, length);
        for (int day = 1; day <= 120; ++day) {
            ASSERT_TRUE(IsClose(curve[day], 245.25)) << "length " << length << ", day " << day;
        }
    }
}

TEST(MovingAverage, LongerThanTheSeriesReachesBeyondTheArrays) {
    auto const series = RisingCloses(25);
    QuoteCurve curve;
    EXPECT_THROW(ComputeMovingAverage(*series, 101, curve), text::RunTimeError);
}

TEST(MovingAverage, SumsBeyondADoubleOverflow) {
    auto const series = SeriesOfCloses(std::vector<double>(30, 1e308));
    QuoteCurve curve;
    EXPECT_THROW(ComputeMovingAverage(*series, 3, curve), text::RunTimeError);
}

TEST(MovingAverage, TakesItsLengthFromTheLeadingNumberOfTheText) {
    EXPECT_EQ(MovingAverageLength("3"), 3);
    EXPECT_EQ(MovingAverageLength("2.5"), 2);
    EXPECT_EQ(MovingAverageLength("3.5 days"), 4);
    EXPECT_EQ(MovingAverageLength("abc"), 0);
    EXPECT_EQ(MovingAverageLength(""), 0);
    EXPECT_THROW(static_cast<void>(MovingAverageLength("40000")), text::RunTimeError);
}

template <class Curve>
void ExpectCurve(Curve const& curve, nlohmann::json const& days, nlohmann::json const& values) {
    ASSERT_EQ(days.size(), values.size());
    for (std::size_t index = 0; index < days.size(); ++index) {
        EXPECT_TRUE(IsClose(curve[days.at(index)], values.at(index))) << "day " << days.at(index);
    }
}

TEST(Curves, AgreeWithTheReference) {
    for (auto const& expected : GoldenVector("curves")) {
        SCOPED_TRACE(expected.at("file").get<std::string>());
        ReferenceCurves const actual(expected);
        ExpectCurve(actual.curves->CompositeCurve, expected.at("curve_days"), expected.at("composite"));
        ExpectCurve(actual.curves->ResidualCurve, expected.at("residual_days"), expected.at("residual"));
        for (auto const& [cycle, values] : expected.at("cycle_values").items()) {
            ExpectCurve(actual.set->Cycles[std::stoi(cycle)].Values, expected.at("cycle_value_days"), values);
        }
        auto const scale = ScaleResidual(actual.curves->ResidualCurve, actual.series->WorkingCount);
        EXPECT_TRUE(IsClose(scale.High, expected.at("residual_scale").at("high")));
        EXPECT_TRUE(IsClose(scale.Low, expected.at("residual_scale").at("low")));
    }
}

TEST(Curves, InactiveCyclesKeepAddingTheirLastCurve) {
    auto const expected = GoldenVector("curve_sequence");
    auto set = std::make_unique<CycleParameterSet>();
    CycleCurve composite;
    auto store = [&set, &expected](int cycle) {
        auto const& row = expected.at("cycles").at(static_cast<std::size_t>(cycle - 1));
        CycleRecord& record = set->Cycles[cycle];
        record.Weight = row.at(0);
        record.Period = row.at(1);
        record.Shift = row.at(2);
        record.Decay = row.at(3);
    };
    store(1);
    store(2);
    for (auto const& step : expected.at("steps")) {
        std::string const action = step.at("action");
        SCOPED_TRACE(action);
        if (action.starts_with("set weight of cycle 1 to 0")) {
            set->Cycles[1].Weight = 0;
        } else if (action.starts_with("clear")) {
            ClearCycles(*set, composite);
            store(2);
        }
        std::int16_t const n = step.at("n");
        ComputeCycleValues(*set, n);
        ComputeComposite(*set, n, composite);
        auto const& values = step.at("composite");
        ASSERT_EQ(static_cast<int>(values.size()), (n == 0 ? 100 : n) + 25);
        for (std::size_t index = 0; index < values.size(); ++index) {
            EXPECT_TRUE(IsClose(composite[static_cast<int>(index) + 1], values.at(index)));
        }
    }
}

TEST(Curves, OneCyclePeaksAtAQuarterOfItsPeriod) {
    auto set = SetOf({{50, 20, 0, 3}});
    CycleCurve composite;
    ComputeCycleValues(*set, 30);
    ComputeComposite(*set, 30, composite);
    EXPECT_TRUE(IsClose(set->Cycles[1].Values[5], 50));
    EXPECT_TRUE(IsClose(composite[5], 50));
    EXPECT_TRUE(IsClose(composite[10], 0));
}

TEST(Curves, AShiftIsAPeriodOfThePhase) {
    auto set = SetOf({{50, 20, 4, 0}});
    ComputeCycleValues(*set, 30);
    for (int day = 1; day <= 55; ++day) {
        EXPECT_TRUE(IsClose(set->Cycles[1].Values[day], 50 * std::cos(TwoPi * day / 20)));
    }
    EXPECT_EQ(set->Cycles[1].Values[56], 0);
}

TEST(Curves, AnInactiveCycleIsNotRecomputed) {
    auto set = SetOf({{0, 20, 4, 0}, {50, 0, 4, 0}});
    set->Cycles[1].Values[7] = 3;
    set->Cycles[2].Values[7] = 4;
    CycleCurve composite;
    ComputeCycleValues(*set, 30);
    ComputeComposite(*set, 30, composite);
    EXPECT_EQ(composite[7], 7);
    EXPECT_EQ(composite[8], 0);
}

TEST(Curves, WithoutQuotesAHundredDaysAndTheForecastAreComputed) {
    auto set = SetOf({{50, 20, 0, 0}});
    ComputeCycleValues(*set, 0);
    EXPECT_NE(set->Cycles[1].Values[125], 0);
    EXPECT_EQ(set->Cycles[1].Values[126], 0);
}

TEST(Curves, AFrequencyBeyondADoubleOverflows) {
    auto set = SetOf({{50, 1e-320, 0, 0}});
    EXPECT_THROW(ComputeCycleValues(*set, 30), text::RunTimeError);
    set = SetOf({{50, 1e-307, 0, 0}});
    EXPECT_THROW(ComputeCycleValues(*set, 30), text::RunTimeError);
    set = SetOf({{50, 20, 1e-320, 0}});
    EXPECT_THROW(ComputeCycleValues(*set, 30), text::RunTimeError);
}

TEST(Curves, ACompositeBeyondADoubleOverflows) {
    auto set = SetOf({{1.5e308, 20, 0, 0}, {1.5e308, 20, 0, 0}});
    CycleCurve composite;
    ComputeCycleValues(*set, 30);
    EXPECT_THROW(ComputeComposite(*set, 30, composite), text::RunTimeError);
}

TEST(Residual, MapsThePriceScaleOntoCycleUnits) {
    auto curves = std::make_unique<CycleCurves>();
    curves->MovingAverageCurve[1] = 300;
    curves->MovingAverageCurve[2] = 200;
    curves->MovingAverageCurve[3] = 250;
    curves->CompositeCurve[3] = 40;
    ComputeResidual(*curves, {300, 200}, 3);
    EXPECT_EQ(curves->ResidualCurve[1], 100);
    EXPECT_EQ(curves->ResidualCurve[2], -100);
    EXPECT_EQ(curves->ResidualCurve[3], -40);
}

TEST(Residual, OnAScaleWithoutHeightDividesByZero) {
    auto curves = std::make_unique<CycleCurves>();
    auto const error = text::Trap([&] { ComputeResidual(*curves, {250, 250}, 3); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
}

TEST(Residual, ItsChartHasTheLargerMarginBelow) {
    QuoteCurve residual;
    residual[1] = -10;
    residual[2] = 90;
    residual[3] = 20;
    auto const scale = ScaleResidual(residual, 3);
    EXPECT_TRUE(IsClose(scale.High, 100));
    EXPECT_TRUE(IsClose(scale.Low, -21));
}

} // namespace
} // namespace quorvex::cycles
