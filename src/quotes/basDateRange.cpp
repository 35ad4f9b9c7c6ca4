// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basDateRange.h"

#include "text/basDates.h"

namespace quorvex::quotes {

namespace {

// Quotes copied behind the one of the end date lie beyond the count and are not used.
void Narrow(QuoteSeries& series, text::CalendarDay start, text::CalendarDay end) {
    std::int16_t slot = 0;
    for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
        auto const date = text::RequireDate(series.Master[day].Date);
        if (date < start) {
            continue;
        }
        ++slot;
        series.Working[slot] = series.Master[day];
        if (date == end) {
            series.WorkingCount = slot;
        }
    }
    TakeDatesOfWorkingCopy(series);
}

} // namespace

RangeChange AdjustQuoteDateRange(QuoteSeries& series, DateRange& range) {
    if (!series.HasQuotes()) {
        return RangeChange::None;
    }
    auto const start = text::RequireDate(range.Start);
    auto const end = text::RequireDate(range.End);
    if (end > start) {
        Narrow(series, start, end);
        return RangeChange::Narrowed;
    }
    AnalyseWholeSeries(series);
    range = {series.FirstQuoteDate, series.LastQuoteDate};
    return RangeChange::Reset;
}

} // namespace quorvex::quotes
