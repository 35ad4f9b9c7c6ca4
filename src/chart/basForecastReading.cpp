// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "chart/basForecastReading.h"

#include "chart/basForecastScale.h"
#include "text/basFormats.h"

namespace quorvex::chart {

namespace {

std::string QuoteDays(quotes::QuoteSeries const& series) {
    int const first = QuoteDayAt(series, FirstQuoteColumn(series));
    int const last = series.WorkingCount;
    if (last < 1) {
        return "no quotes";
    }
    if (first == last) {
        return "quotes of " + series.Working[last].Date;
    }
    return "quotes of " + std::to_string(last - first + 1) + " days from " + series.Working[first].Date +
           " to " + series.Working[last].Date;
}

} // namespace

std::string DescribeForecastDay(ForecastReading const& reading, int column) {
    text::NumberFormat const price(reading.CurrencyFormat);
    if (int const day = QuoteDayAt(reading.Series, column); day > 0) {
        quotes::QuoteRecord const& quote = reading.Series.Working[day];
        return "Day " + std::to_string(day) + ", " + quote.Date + ": Open " + price.Format(quote.Open) +
               ", Close " + price.Format(quote.Close);
    }
    if (column <= LastQuoteColumn || column > LastForecastColumn) {
        return {};
    }
    int const day = column - LastQuoteColumn;
    return "Forecast day " + std::to_string(day) + ", " + reading.Dates[day] + ": " +
           price.Format(reading.Values[day]);
}

std::string DescribeForecast(ForecastReading const& reading) {
    text::NumberFormat const price(reading.CurrencyFormat);
    auto const range = ComputeForecastScale(reading.Series, reading.Values);
    int const last = reading.Series.WorkingCount;
    std::string text = "Forecast chart: " + QuoteDays(reading.Series) + ", then a forecast of " +
                       std::to_string(cycles::ForecastDays) + " days from " + reading.Dates[1] + " to " +
                       reading.Dates[cycles::ForecastDays] + ". Lowest value " +
                       price.Format(range.PriceScaleLow) + ", highest " + price.Format(range.PriceScaleHigh) +
                       ". ";
    if (last > 0) {
        text += "Last close " + price.Format(reading.Series.Working[last].Close) + ". ";
    }
    return text + "Last forecast value " + price.Format(reading.Values[cycles::ForecastDays]) + ".";
}

} // namespace quorvex::chart
