// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basReading.h"

#include "cycles/basComputation.h"
#include "quotes/basQuotes.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "text/basFormats.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

namespace quorvex::chart {
namespace {

void SetCycle(cycles::CycleParameterSet& set, int cycle, double weight, double period, double shift = 0) {
    set.Cycles[cycle].Weight = weight;
    set.Cycles[cycle].Period = period;
    set.Cycles[cycle].Shift = shift;
}

// The data of the four charts.
class Charts {
public:
    void Load(std::string const& file, std::string const& currencyFormat = "####0.00") {
        Series = tests::GoldenSeries(file, currencyFormat);
        Settings.CurrencyFormat = currencyFormat;
    }

    void Compute() { cycles::ComputeCurves(*Series, Settings, *Set, *Curves); }

    [[nodiscard]] ChartReading Read(ChartKind kind) const {
        ChartReading reading;
        ReadInto(reading, kind);
        return reading;
    }

    void ReadInto(ChartReading& reading, ChartKind kind) const {
        ReadChart(kind, {*Series, Settings, *Set, *Curves}, NameDays(*Series), reading);
    }

    [[nodiscard]] ChartReading ComputeAndRead(ChartKind kind) {
        Compute();
        return Read(kind);
    }

    std::unique_ptr<quotes::QuoteSeries> Series = std::make_unique<quotes::QuoteSeries>();
    settings::Settings Settings = settings::DefaultSettings("./");
    std::unique_ptr<cycles::CycleParameterSet> Set = std::make_unique<cycles::CycleParameterSet>();
    std::unique_ptr<cycles::CycleCurves> Curves = std::make_unique<cycles::CycleCurves>();
};

// 25 days with the two active cycles and the inactive one of the reference.
Charts LoadReference() {
    Charts charts;
    charts.Load("q025.txt");
    charts.Settings.MovingAverageIndex = "6";
    SetCycle(*charts.Set, 1, 67, 82, 22);
    SetCycle(*charts.Set, 2, 8, 87, -14);
    SetCycle(*charts.Set, 3, 24, 0, 5);
    return charts;
}

// The charts of prices without a range.
Charts LoadFlatPrices() {
    Charts charts = LoadReference();
    for (int day = 1; day <= 25; ++day) {
        charts.Series->Working[day].High = 100;
        charts.Series->Working[day].Low = 100;
    }
    return charts;
}

void ExpectEmpty(ChartReading const& reading, std::string const& description) {
    EXPECT_EQ(reading.Description, description);
    EXPECT_EQ(CountDays(reading), 0);
    EXPECT_EQ(DescribeDay(reading, 1), "");
}

TEST(QuoteReading, NamesStyleDaysExtremesAndMovingAverage) {
    Charts charts = LoadReference();
    EXPECT_EQ(charts.ComputeAndRead(ChartKind::Quotes).Description,
              "Daily bar chart of 25 days, 11/30/00 to 01/03/01. Lowest 212.41, highest 249.33, last close "
              "242.10. 6-day moving average, last value 242.10.");
    charts.Settings.ChartType = "Candlestick Chart";
    charts.Settings.MovingAverageIndex = "0";
    EXPECT_EQ(charts.ComputeAndRead(ChartKind::Quotes).Description,
              "Candlestick chart of 25 days, 11/30/00 to 01/03/01. Lowest 212.41, highest 249.33, last close "
              "242.10.");
}

TEST(QuoteReading, OfALineChartSpeaksOfTheClosesAlone) {
    Charts charts = LoadReference();
    for (auto const* type : {"Line Chart", "", "daily bar chart"}) {
        charts.Settings.ChartType = type;
        auto const reading = charts.ComputeAndRead(ChartKind::Quotes);
        EXPECT_EQ(reading.Description,
                  "Line chart of 25 days, 11/30/00 to 01/03/01. Lowest close 215.88, highest close 247.72, "
                  "last close 242.10. 6-day moving average, last value 242.10.");
        EXPECT_EQ(DescribeDay(reading, 17), "12/22/00\nClose: 241.72\nMoving average: 284.42");
    }
}

TEST(QuoteReading, OfADayGivesItsFourPricesAndTheMovingAverage) {
    Charts charts = LoadReference();
    EXPECT_EQ(DescribeDay(charts.ComputeAndRead(ChartKind::Quotes), 17),
              "12/22/00\nOpen: 244.82\nHigh: 244.85\nLow: 241.27\nClose: 241.72\nMoving average: 284.42");
    charts.Settings.MovingAverageIndex = "0";
    EXPECT_EQ(DescribeDay(charts.ComputeAndRead(ChartKind::Quotes), 25),
              "01/03/01\nOpen: 242.92\nHigh: 243.88\nLow: 241.57\nClose: 242.10");
}

TEST(QuoteReading, SpellsPricesInTheCurrencyFormat) {
    Charts charts;
    charts.Load("q025.txt", "####0");
    EXPECT_EQ(DescribeDay(charts.ComputeAndRead(ChartKind::Quotes), 1),
              "11/30/00\nOpen: 215\nHigh: 217\nLow: 213\nClose: 216\nMoving average: 216");
    charts.Settings.CurrencyFormat = "no price";
    EXPECT_EQ(DescribeDay(charts.ComputeAndRead(ChartKind::Quotes), 1),
              "11/30/00\nOpen: no price\nHigh: no price\nLow: no price\nClose: no price\n"
              "Moving average: no price");
    charts.Settings.CurrencyFormat.clear();
    EXPECT_EQ(DescribeDay(charts.ComputeAndRead(ChartKind::Quotes), 1),
              "11/30/00\nOpen: 215\nHigh: 217\nLow: 213\nClose: 216\nMoving average: 216");
}

TEST(QuoteReading, CallsAMovingAverageOfTheClosesThemselvesOneOfOneDay) {
    Charts charts = LoadReference();
    for (auto const* length : {"1", "-3"}) {
        charts.Settings.MovingAverageIndex = length;
        auto const reading = charts.ComputeAndRead(ChartKind::Quotes);
        EXPECT_TRUE(reading.Description.ends_with(" 1-day moving average, last value 242.10."))
            << reading.Description;
        EXPECT_TRUE(DescribeDay(reading, 17).ends_with("Close: 241.72\nMoving average: 241.72"));
    }
}

TEST(QuoteReading, SaysWhyTheMovingAverageIsMissing) {
    Charts charts = LoadReference();
    charts.Settings.MovingAverageIndex = "1001";
    auto const reading = charts.ComputeAndRead(ChartKind::Quotes);
    EXPECT_EQ(reading.Description,
              "Daily bar chart of 25 days, 11/30/00 to 01/03/01. Lowest 212.41, highest 249.33, last close "
              "242.10. The moving average could not be drawn: Subscript out of range.");
    EXPECT_EQ(DescribeDay(reading, 25), "01/03/01\nOpen: 242.92\nHigh: 243.88\nLow: 241.57\nClose: 242.10");

    charts.Settings.MovingAverageIndex = "99999";
    EXPECT_TRUE(charts.ComputeAndRead(ChartKind::Quotes)
                    .Description.ends_with(" The moving average could not be drawn: Overflow."));
}

TEST(QuoteReading, OfPricesThatCannotBeDrawnClaimsNothing) {
    Charts flat = LoadFlatPrices();
    ExpectEmpty(flat.ComputeAndRead(ChartKind::Quotes), "The quotes could not be drawn: Division by zero.");
    Charts steep = LoadReference();
    steep.Series->Working[3].Open = 1e308;
    ExpectEmpty(steep.ComputeAndRead(ChartKind::Quotes), "The quotes could not be drawn: Overflow.");
}

TEST(QuoteReading, WithoutQuotesSaysSo) {
    Charts charts;
    ExpectEmpty(charts.ComputeAndRead(ChartKind::Quotes), "No quote file is open.");
    charts.Series->QuoteFileName = "unread.txt";
    ExpectEmpty(charts.ComputeAndRead(ChartKind::Quotes), "There are no quotes to show.");
}

TEST(QuoteReading, OfASingleDayNamesItOnce) {
    Charts charts = LoadReference();
    charts.Settings.MovingAverageIndex = "0";
    charts.Series->WorkingCount = 1;
    EXPECT_EQ(charts.ComputeAndRead(ChartKind::Quotes).Description,
              "Daily bar chart of 1 day, 11/30/00. Lowest 213.48, highest 216.85, last close 215.88.");
}

TEST(QuoteReading, CoversFiveHundredDays) {
    Charts charts;
    charts.Load("q500.txt", "####0.0");
    auto const reading = charts.ComputeAndRead(ChartKind::Quotes);
    EXPECT_TRUE(reading.Description.starts_with("Daily bar chart of 500 days, 11/25/98 to 11/16/00. Lowest "))
        << reading.Description;
    EXPECT_EQ(DescribeDay(reading, 500),
              "11/16/00\nOpen: 12338.4\nHigh: 12397.8\nLow: 11907.8\nClose: 12087.3\n"
              "Moving average: 12087.3");
    EXPECT_EQ(DescribeDay(reading, 501), "");
}

TEST(CycleReading, NamesTheActiveCyclesAndTheirExtremes) {
    Charts charts = LoadReference();
    auto const reading = charts.ComputeAndRead(ChartKind::Cycles);
    EXPECT_EQ(
        reading.Description,
        "2 component cycles over 25 days, 11/30/00 to 01/03/01. Cycle 1: weight 67, period 82. Cycle 2: "
        "weight 8, period 87. Lowest -2.9, highest 67.0.");
    EXPECT_EQ(DescribeDay(reading, 17), "12/22/00\nCycle 1: 67.0\nCycle 2: 5.6");
}

TEST(CycleReading, OfASingleCycleWithoutQuotesCoversAHundredDays) {
    Charts charts;
    SetCycle(*charts.Set, 10, 100, 20);
    auto const reading = charts.ComputeAndRead(ChartKind::Cycles);
    EXPECT_EQ(reading.Description, "1 component cycle over 100 days. Cycle 10: weight 100, period 20. "
                                   "Lowest -100.0, highest 100.0.");
    EXPECT_EQ(DescribeDay(reading, 15), "Day 15\nCycle 10: -100.0");
    EXPECT_EQ(DescribeDay(reading, 100), "Day 100\nCycle 10: 0.0");
    EXPECT_EQ(DescribeDay(reading, 101), "");
}

TEST(CompositeReading, GivesExtremesAndLastValueOfTheDaysShown) {
    Charts charts = LoadReference();
    auto const reading = charts.ComputeAndRead(ChartKind::Composite);
    EXPECT_EQ(reading.Description, "Composite estimate cycle over 25 days, 11/30/00 to 01/03/01. Lowest "
                                   "20.8, highest 72.7, last value 61.9.");
    EXPECT_EQ(DescribeDay(reading, 17), "12/22/00\nComposite: 72.6");
}

TEST(CompositeReading, WithoutQuotesHasNoDates) {
    Charts charts;
    SetCycle(*charts.Set, 1, 100, 20);
    auto const reading = charts.ComputeAndRead(ChartKind::Composite);
    EXPECT_EQ(reading.Description,
              "Composite estimate cycle over 100 days. Lowest -100.0, highest 100.0, last value 0.0.");
    EXPECT_EQ(DescribeDay(reading, 5), "Day 5\nComposite: 100.0");
}

TEST(ResidualReading, GivesExtremesAndLastValue) {
    Charts charts = LoadReference();
    auto const reading = charts.ComputeAndRead(ChartKind::Residual);
    EXPECT_EQ(reading.Description, "Residual, moving average minus composite cycle, over 25 days, 11/30/00 "
                                   "to 01/03/01. Lowest -90.9, highest 177.7, last value -10.8.");
    EXPECT_EQ(DescribeDay(reading, 17), "12/22/00\nResidual: 168.0");
}

TEST(ResidualReading, NeedsQuotesAndACycle) {
    Charts charts;
    SetCycle(*charts.Set, 1, 100, 20);
    ExpectEmpty(charts.ComputeAndRead(ChartKind::Residual), "No quote file is open.");
    charts.Load("q025.txt");
    SetCycle(*charts.Set, 1, 0, 20);
    ExpectEmpty(charts.ComputeAndRead(ChartKind::Residual), "No cycle is active.");
}

TEST(ResidualReading, OfPricesWithoutARangeClaimsNothing) {
    Charts charts = LoadFlatPrices();
    ExpectEmpty(charts.ComputeAndRead(ChartKind::Residual),
                "The residual could not be drawn: Division by zero.");
    EXPECT_TRUE(charts.Read(ChartKind::Composite).Description.starts_with("Composite estimate cycle over 25"))
        << "the composite was drawn all the same";
}

TEST(CycleReading, WithoutAnActiveCycleSaysSo) {
    Charts charts;
    charts.Load("q025.txt");
    SetCycle(*charts.Set, 1, 100, 0);
    charts.Compute();
    for (ChartKind const kind : {ChartKind::Cycles, ChartKind::Composite}) {
        ExpectEmpty(charts.Read(kind), "No cycle is active.");
    }
}

TEST(CycleReading, OfCyclesThatCannotBeComputedClaimsNothing) {
    Charts charts;
    charts.Load("q025.txt");
    SetCycle(*charts.Set, 1, 1, 1e-320);
    charts.Compute();
    ExpectEmpty(charts.Read(ChartKind::Cycles), "The cycles could not be drawn: Overflow.");
    ExpectEmpty(charts.Read(ChartKind::Composite),
                "The composite estimate cycle could not be drawn: Overflow.");
    ExpectEmpty(charts.Read(ChartKind::Residual), "The residual could not be drawn: Overflow.");
    EXPECT_EQ(CountDays(charts.Read(ChartKind::Quotes)), 25);
}

TEST(ChartReading, HoldsWhatWasDrawnWhenTheQuotesAreClosed) {
    Charts charts = LoadReference();
    auto const drawn = charts.ComputeAndRead(ChartKind::Composite);
    quotes::CloseQuoteFile(*charts.Series);
    cycles::MarkEmptyCharts(*charts.Series, *charts.Set, charts.Curves->States);
    ExpectEmpty(charts.Read(ChartKind::Quotes), "No quote file is open.");
    ExpectEmpty(charts.Read(ChartKind::Residual), "No quote file is open.");
    cycles::ClearCycles(*charts.Set, charts.Curves->CompositeCurve);
    cycles::MarkEmptyCharts(*charts.Series, *charts.Set, charts.Curves->States);
    EXPECT_EQ(DescribeDay(drawn, 17), "12/22/00\nComposite: 72.6");
    EXPECT_EQ(DescribeDay(drawn, 26), "");
    ExpectEmpty(charts.Read(ChartKind::Composite), "No cycle is active.");
}

TEST(ChartReading, TakesThePlaceOfTheOneBefore) {
    Charts charts = LoadReference();
    charts.Compute();
    ChartReading reading;
    charts.ReadInto(reading, ChartKind::Quotes);
    charts.Settings.ChartType = "Line Chart";
    for (ChartKind const kind :
         {ChartKind::Quotes, ChartKind::Cycles, ChartKind::Composite, ChartKind::Quotes}) {
        charts.ReadInto(reading, kind);
        EXPECT_EQ(DescribeDay(reading, 3), DescribeDay(charts.Read(kind), 3));
        EXPECT_EQ(reading.Rows.size(), charts.Read(kind).Rows.size());
        EXPECT_EQ(reading.Description, charts.Read(kind).Description);
    }
    SetCycle(*charts.Set, 1, 1, 1e-320);
    charts.Compute();
    charts.ReadInto(reading, ChartKind::Cycles);
    ExpectEmpty(reading, "The cycles could not be drawn: Overflow.");
}

TEST(ChartReading, HasNoDayOutsideItsDays) {
    Charts charts = LoadReference();
    auto const reading = charts.ComputeAndRead(ChartKind::Quotes);
    for (int const day : {-1, 0, 26, 500}) {
        EXPECT_EQ(DescribeDay(reading, day), "") << day;
    }
}

TEST(ChartReading, TakesAValueThatIsNoNumberForAFault) {
    Charts charts = LoadReference();
    charts.Compute();
    charts.Curves->CompositeCurve[4] = HUGE_VAL;
    ExpectEmpty(charts.Read(ChartKind::Composite),
                "The composite estimate cycle could not be drawn: Overflow.");
}

TEST(ChartReading, AgreesWithEveryReferenceCurve) {
    int compared = 0;
    for (auto const& expected : tests::GoldenVector("curves")) {
        SCOPED_TRACE(expected.at("file").get<std::string>());
        Charts charts;
        charts.Load(expected.at("file"), expected.at("currency_format").get<std::string>());
        charts.Settings.MovingAverageIndex = expected.at("moving_average_index");
        for (int cycle = 1; cycle <= cycles::CycleCount; ++cycle) {
            auto const& row = expected.at("cycles").at(static_cast<std::size_t>(cycle - 1));
            SetCycle(*charts.Set, cycle, row.at(0), row.at(1), row.at(2));
        }
        charts.Compute();
        auto const reading = charts.Read(ChartKind::Residual);
        auto const& days = expected.at("residual_days");
        for (std::size_t index = 0; index < days.size(); ++index) {
            int const day = days.at(index);
            EXPECT_EQ(DescribeDay(reading, day),
                      charts.Series->Working[day].Date +
                          "\nResidual: " + text::FormatNumber(expected.at("residual").at(index), "##0.0"));
            ++compared;
        }
    }
    EXPECT_GT(compared, 500);
}

} // namespace
} // namespace quorvex::chart
