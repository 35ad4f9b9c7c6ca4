// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "auxiliary/basProperties.h"

#include "text/RunTimeError.h"
#include "text/basDates.h"
#include "text/basFormats.h"
#include "text/basNumbers.h"

namespace quorvex::auxiliary {

namespace {

struct Statistics {
    double Highest = -99999;
    double Lowest = 99999;
    double Sum = 0;
};

Statistics Measure(quotes::QuoteSeries const& series) {
    Statistics found;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        quotes::QuoteRecord const& quote = series.Working[day];
        found.Sum += quote.Close;
        if (quote.High >= found.Highest) {
            found.Highest = quote.High;
        }
        if (quote.Low < found.Lowest) {
            found.Lowest = quote.Low;
        }
    }
    return found;
}

std::string DateText(quotes::QuoteRecord const& quote) {
    return text::FormatDate(text::RequireDate(quote.Date));
}

} // namespace

std::vector<PropertyCaption> DescribeQuotes(quotes::QuoteSeries const& series,
                                            std::string_view currencyFormat) {
    Statistics const found = Measure(series);
    double const mean = text::Divide(text::RequireFinite(found.Sum), series.WorkingCount);
    quotes::QuoteRecord const& first = series.Working[1];
    quotes::QuoteRecord const& last = series.Working[series.WorkingCount];
    text::NumberFormat const price(currencyFormat);
    std::vector<PropertyCaption> captions = {
        {"lblQuoteFileName", "Quote file", series.QuoteFileName},
        {"lblStartDate", "Start date", DateText(first)},
        {"lblEndDate", "End date", DateText(last)},
        {"lblNumQuotes", "No. of quotes", text::PlainNumber(series.WorkingCount)},
        {"lblOpen", "Open", price.Format(first.Open)},
        {"lblHigh", "High", text::PlainNumber(found.Highest)},
        {"lblLow", "Low", text::PlainNumber(found.Lowest)},
        {"lblClose", "Close", price.Format(last.Close)},
        {"lblRange", "Range", price.Format(text::RequireFinite(found.Highest - found.Lowest))},
        {"lblMean", "Mean", price.Format(mean)},
    };
    for (PropertyCaption& caption : captions) {
        caption.Caption.insert(0, "  ");
    }
    return captions;
}

} // namespace quorvex::auxiliary
