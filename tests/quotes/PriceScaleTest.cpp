// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/PriceScale.h"

#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <memory>

namespace quorvex::quotes {
namespace {

using tests::IsClose;

TEST(PriceScale, AgreesWithTheReference) {
    for (auto const& expected : tests::GoldenVector("curves")) {
        SCOPED_TRACE(expected.at("file").get<std::string>());
        auto const series =
            tests::GoldenSeries(expected.at("file"), expected.at("currency_format").get<std::string>());
        auto const scale = ComputePriceScale(*series);
        EXPECT_TRUE(IsClose(scale.PriceScaleHigh, expected.at("price_scale").at("high")));
        EXPECT_TRUE(IsClose(scale.PriceScaleLow, expected.at("price_scale").at("low")));
    }
}

TEST(PriceScale, HasTheLargerMarginBelow) {
    auto const series = std::make_unique<quotes::QuoteSeries>();
    series->WorkingCount = 1;
    series->Working[1].High = 200;
    series->Working[1].Low = 100;
    auto const scale = ComputePriceScale(*series);
    EXPECT_TRUE(IsClose(scale.PriceScaleHigh, 210));
    EXPECT_TRUE(IsClose(scale.PriceScaleLow, 89));
}

TEST(PriceScale, LooksAtTheWorkingDaysOnly) {
    auto const series = tests::SeriesOf(tests::QuoteLines(30));
    series->WorkingCount = 1;
    auto const scale = ComputePriceScale(*series);
    EXPECT_TRUE(IsClose(scale.PriceScaleHigh, 101.825));
}

} // namespace
} // namespace quorvex::quotes
