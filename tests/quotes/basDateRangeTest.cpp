// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basDateRange.h"

#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::quotes {
namespace {

TEST(DateRange, FollowsTheReferenceSteps) {
    std::unique_ptr<QuoteSeries> series;
    std::string file;
    for (auto const& step : tests::GoldenVector("date_range")) {
        SCOPED_TRACE(step.dump());
        if (step.at("file") != file) {
            file = step.at("file");
            series = tests::GoldenSeries(file, step.at("currency_format").get<std::string>());
        }
        ASSERT_EQ(series->WorkingCount, step.at("count_before"));
        DateRange range{step.at("start"), step.at("end")};
        auto change = RangeChange::None;
        auto const error = text::Trap([&] { change = AdjustQuoteDateRange(*series, range); });

        EXPECT_EQ(error ? nlohmann::json(error->Description()) : nlohmann::json(), step.at("error"));
        EXPECT_EQ(series->WorkingCount, step.at("count"));
        EXPECT_EQ(series->Working[1].Date, step.at("first"));
        EXPECT_EQ(series->Working[series->WorkingCount].Date, step.at("last"));
        EXPECT_EQ(series->Working[1].Date, series->Master[step.at("first_master_day").get<int>()].Date);
        EXPECT_EQ(range.Start, step.at("start_text"));
        EXPECT_EQ(range.End, step.at("end_text"));
        EXPECT_EQ(change == RangeChange::Narrowed, !step.at("txtNumQuotes").is_null());
        EXPECT_EQ(change == RangeChange::Reset, !step.at("lblNumQuotes").is_null());
        // The forecast starts from the last day that is analysed.
        if (!error) {
            EXPECT_EQ(series->FirstQuoteDate, step.at("first"));
            EXPECT_EQ(series->LastQuoteDate, step.at("last"));
        }
    }
}

TEST(DateRange, WithoutQuotesDoesNothing) {
    auto const series = std::make_unique<QuoteSeries>();
    DateRange range{"nonsense", "01/01/01"};
    EXPECT_EQ(AdjustQuoteDateRange(*series, range), RangeChange::None);
}

TEST(DateRange, RunsFromTheFirstQuoteOnOrAfterTheStart) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    DateRange range{"01/06/01", "01/19/01"}; // a Saturday, and the Friday behind it
    EXPECT_EQ(AdjustQuoteDateRange(*series, range), RangeChange::Narrowed);
    EXPECT_EQ(series->WorkingCount, 10);
    EXPECT_EQ(series->FirstQuoteDate, "01/08/01");
    EXPECT_EQ(series->LastQuoteDate, "01/19/01");
    EXPECT_EQ(series->QuoteCount, 40);
}

TEST(DateRange, AnEndOnTheStartResetsToTheWholeSeries) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    DateRange range{"01/08/01", "01/19/01"};
    AdjustQuoteDateRange(*series, range);
    range = {"01/08/01", "01/08/01"};
    EXPECT_EQ(AdjustQuoteDateRange(*series, range), RangeChange::Reset);
    EXPECT_EQ(series->WorkingCount, 40);
    EXPECT_EQ(range.Start, "01/01/01");
    EXPECT_EQ(range.End, series->Master[40].Date);
}

} // namespace
} // namespace quorvex::quotes
