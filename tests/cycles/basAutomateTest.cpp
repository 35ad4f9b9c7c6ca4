// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cycles/basAutomate.h"

#include "CycleTexts.h"
#include "cycles/basCurves.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"
#include "text/basNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <memory>
#include <optional>

namespace quorvex::cycles {
namespace {

using tests::IsClose;

// What one automation of a moving average left.
struct Automation {
    std::unique_ptr<CycleCurves> curves = std::make_unique<CycleCurves>();
    std::unique_ptr<CycleParameterSet> set = std::make_unique<CycleParameterSet>();
    TextGrid grid;
    std::vector<SinusoidFit> fits;
    std::int16_t count = 0;

    std::optional<text::RunTimeError> Run(int cycles) {
        return text::Trap([&] { AutomateCycles(cycles, count, *curves, *set, grid, fits); });
    }

    void TakeSeries(std::vector<double> const& values) {
        for (double const value : values) {
            curves->MovingAverageCurve[++count] = value;
        }
    }
};

// The moving average of a quote file, read in the currency format that the other vectors use for it.
void TakeQuoteFile(Automation& automation, std::string const& file, std::string const& movingAverageIndex) {
    static auto const quoteFiles = tests::GoldenVector("quote_files");
    for (auto const& entry : quoteFiles) {
        if (entry.at("file") == file) {
            auto const series = tests::GoldenSeries(file, entry.at("currency_format").get<std::string>());
            automation.count = series->WorkingCount;
            ComputeMovingAverage(*series, MovingAverageLength(movingAverageIndex),
                                 automation.curves->MovingAverageCurve);
            return;
        }
    }
    FAIL() << file;
}

void ExpectFit(SinusoidFit const& fit, nlohmann::json const& expected, double tolerance) {
    EXPECT_TRUE(IsClose(fit.Amplitude, expected.at("amplitude"), tolerance));
    EXPECT_TRUE(IsClose(fit.Frequency, expected.at("omega"), tolerance));
    EXPECT_TRUE(IsClose(fit.Phase, expected.at("phase"), tolerance));
    EXPECT_TRUE(IsClose(fit.CosineCoefficient, expected.at("a"), tolerance));
    EXPECT_TRUE(IsClose(fit.SineCoefficient, expected.at("b"), tolerance));
}

TEST(Automation, AgreesWithTheReference) {
    constexpr double FitTolerance = 1e-7;
    // A vote that stands on the edge may be counted or not by the order of additions alone.
    constexpr double FragileTolerance = 1e-2;
    for (auto const& expected : tests::GoldenVector("fits")) {
        Automation automation;
        if (expected.contains("file")) {
            TakeQuoteFile(automation, expected.at("file"), expected.at("moving_average_index"));
        } else {
            automation.TakeSeries(expected.at("series"));
        }
        bool const fragile = expected.at("fragile");
        SCOPED_TRACE(expected.value("file", expected.value("label", "")) + ", " + expected.at("m").dump());
        auto const error = automation.Run(expected.at("m"));
        EXPECT_EQ(error ? nlohmann::json(error->Description()) : nlohmann::json(), expected.at("error"));
        EXPECT_EQ(TextsOf(automation.grid), expected.at("grid"));
        auto const& fits = expected.at("fits");
        ASSERT_EQ(automation.fits.size(), fits.size());
        for (std::size_t index = 0; index < fits.size(); ++index) {
            ExpectFit(automation.fits[index], fits.at(index), fragile ? FragileTolerance : FitTolerance);
        }
    }
}

std::vector<double> Sinusoid(int count, double period, double phase, double amplitude, double level) {
    std::vector<double> values;
    for (int day = 1; day <= count; ++day) {
        values.push_back(level + amplitude * std::sin(TwoPi * day / period + phase));
    }
    return values;
}

TEST(Automation, FindsThePeriodOfAnExactSinusoid) {
    Automation automation;
    automation.TakeSeries(Sinusoid(80, 40, 0.7, 12, 250));
    EXPECT_FALSE(automation.Run(1));
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 1), "50");
    EXPECT_EQ(automation.grid.Text(Parameter::Period, 1), "40");
}

QuoteCurve CurveOf(std::vector<double> const& values) {
    QuoteCurve curve;
    int day = 0;
    for (double const value : values) {
        curve[++day] = value;
    }
    return curve;
}

TEST(FitSinusoid, RecoversEveryPeriodFromFourToHalfTheSeries) {
    constexpr int Count = 120;
    for (int period = 4; period <= Count / 2; ++period) {
        for (double const phase : {0.3, 1.1, 2.9}) {
            auto const fit = FitSinusoid(CurveOf(Sinusoid(Count, period, phase, 8, 0)), Count);
            EXPECT_EQ(text::WholeNumber(TwoPi / fit.Frequency), period) << "phase " << phase;
            // A quarter of a cycle a day makes every quotient one of rounding errors.
            if (period > 4) {
                EXPECT_TRUE(IsClose(TwoPi / fit.Frequency, period, 1e-6)) << "phase " << phase;
                EXPECT_TRUE(IsClose(fit.Amplitude, 8, 1e-6)) << period << ", phase " << phase;
            }
        }
    }
}

TEST(Automation, ThreeCyclesFillThreeRowsWithFixedWeights) {
    Automation automation;
    TakeQuoteFile(automation, "q250.txt", "3");
    automation.grid.SetText(Parameter::Decay, 1, "7");
    automation.grid.SetText(Parameter::Weight, 9, "7");
    EXPECT_FALSE(automation.Run(3));
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 1), "50");
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 2), "34");
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 3), "16");
    EXPECT_EQ(automation.grid.Text(Parameter::Decay, 1), "0");
    for (int cycle = 4; cycle <= CycleCount; ++cycle) {
        for (Parameter const parameter : Parameters) {
            EXPECT_EQ(automation.grid.Text(parameter, cycle), "0");
        }
    }
}

TEST(Automation, StartsFromAnEmptySetAndKeepsTheFileName) {
    Automation automation;
    TakeQuoteFile(automation, "q060.txt", "3");
    automation.set->Cycles[9].Weight = 5;
    automation.set->Cycles[9].Period = 5;
    automation.set->Cycles[9].Values.Fill(5);
    automation.curves->CompositeCurve.Fill(5);
    automation.set->ParameterFileName = "kept.dat";
    EXPECT_FALSE(automation.Run(1));
    EXPECT_FALSE(HasActiveCycle(*automation.set));
    EXPECT_EQ(automation.set->Cycles[9].Values[1], 0);
    EXPECT_EQ(automation.curves->CompositeCurve[1], 0);
    EXPECT_EQ(automation.set->ParameterFileName, "kept.dat");
}

TEST(Automation, WithoutDaysChangesNothing) {
    Automation automation;
    automation.set->Cycles[1].Weight = 5;
    automation.grid.SetText(Parameter::Weight, 1, "5");
    EXPECT_FALSE(automation.Run(3));
    EXPECT_EQ(automation.set->Cycles[1].Weight, 5);
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 1), "5");
    EXPECT_TRUE(automation.fits.empty());
}

TEST(FitSinusoid, ASeriesWithoutAVoteDividesByZero) {
    // Growing as no sinusoid can: every quotient is above 1.
    std::vector<double> values;
    for (int day = 1; day <= 60; ++day) {
        values.push_back(std::exp(day * 0.2));
    }
    auto const error = text::Trap([&] { static_cast<void>(FitSinusoid(CurveOf(values), 60)); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Division by zero");
}

TEST(Automation, AFaultInALaterCycleKeepsWhatWasWritten) {
    // The second cycle has a phase of two millionths, whose Shift is beyond 16 bits.
    Automation automation;
    automation.TakeSeries({2, 2, 2, 2, 1, 0, 2, 0, 0, 1, -1, -1, 0, -1, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0});
    auto const error = automation.Run(3);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Overflow");
    EXPECT_EQ(automation.fits.size(), 2U);
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 1), "50");
    EXPECT_EQ(automation.grid.Text(Parameter::Shift, 1), "6");
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 2), "34");
    EXPECT_EQ(automation.grid.Text(Parameter::Period, 2), "4");
    EXPECT_EQ(automation.grid.Text(Parameter::Shift, 2), "0");
    EXPECT_EQ(automation.grid.Text(Parameter::Weight, 3), "0");
}

TEST(ArcCosine, IsZeroFromOneOnAndAtMinusOne) {
    EXPECT_EQ(ArcCosine(1), 0);
    EXPECT_EQ(ArcCosine(-1), 0);
    EXPECT_EQ(ArcCosine(7), 0);
    EXPECT_EQ(ArcCosine(-7), 0);
}

TEST(ArcCosine, IsTheInverseOfTheCosineInBetween) {
    EXPECT_TRUE(IsClose(ArcCosine(0), 1.570796326794895));
    for (int step = -999; step <= 999; ++step) {
        double const x = step / 1000.0;
        EXPECT_TRUE(IsClose(ArcCosine(x), std::acos(x), 1e-12)) << x;
    }
}

} // namespace
} // namespace quorvex::cycles
