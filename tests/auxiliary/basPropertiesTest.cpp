// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/basProperties.h"

#include "quotes/basDateRange.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::auxiliary {
namespace {

nlohmann::json CaptionsOf(quotes::QuoteSeries const& series, std::string const& currencyFormat) {
    nlohmann::json captions;
    for (auto const& caption : DescribeQuotes(series, currencyFormat)) {
        captions[std::string(caption.Label)] = caption.Caption;
    }
    return captions;
}

TEST(Properties, AgreeWithTheReference) {
    for (auto const& expected : tests::GoldenVector("properties")) {
        std::string const format = expected.at("currency_format");
        std::string const label = expected.value("label", "");
        SCOPED_TRACE(expected.at("file").get<std::string>() + " " + label);
        auto const series = tests::GoldenSeries(expected.at("file"), format);
        if (!expected.at("range").is_null()) {
            quotes::DateRange range{expected.at("range").at(0), expected.at("range").at(1)};
            quotes::AdjustQuoteDateRange(*series, range);
        }
        if (label.starts_with("every low 120000")) {
            for (int day = 1; day <= series->WorkingCount; ++day) {
                series->Working[day].Low = 120000;
                series->Working[day].High = 121000.5;
            }
        } else if (label == "first day only") {
            series->WorkingCount = 1;
        }
        EXPECT_EQ(CaptionsOf(*series, format), expected.at("captions"));
    }
}

TEST(Properties, OfOneDayAreThatDay) {
    auto const series = tests::SeriesOf(tests::QuoteLines(1));
    auto const captions = CaptionsOf(*series, "####0.00");
    EXPECT_EQ(captions.at("lblStartDate"), captions.at("lblEndDate"));
    EXPECT_EQ(captions.at("lblRange"), "  0.75");
    EXPECT_EQ(captions.at("lblMean"), "  101.00");
}

TEST(Properties, CountTheWorkingDaysAndNotTheFile) {
    auto const series = tests::SeriesOf(tests::QuoteLines(40));
    quotes::DateRange range{"01/08/01", "01/19/01"};
    quotes::AdjustQuoteDateRange(*series, range);
    EXPECT_EQ(CaptionsOf(*series, "####0.00").at("lblNumQuotes"), "  10");
}

TEST(Properties, KeepTheBoundsOfTheirSearch) {
    auto const series = tests::SeriesOf(tests::QuoteLines(30));
    for (int day = 1; day <= 30; ++day) {
        series->Working[day].Low = 120000;
        series->Working[day].High = 120001;
    }
    auto const captions = CaptionsOf(*series, "####0.00");
    EXPECT_EQ(captions.at("lblLow"), "  99999");
    EXPECT_EQ(captions.at("lblRange"), "  20002.00");
    for (int day = 1; day <= 30; ++day) {
        series->Working[day].High = -100000;
        series->Working[day].Low = -100001;
    }
    EXPECT_EQ(CaptionsOf(*series, "####0.00").at("lblHigh"), "  -99999");
}

TEST(Properties, WithoutDaysDivideByZero) {
    auto const series = std::make_unique<quotes::QuoteSeries>();
    EXPECT_THROW(static_cast<void>(DescribeQuotes(*series, "####0.00")), text::RunTimeError);
}

} // namespace
} // namespace quorvex::auxiliary
