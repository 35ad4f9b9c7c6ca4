// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/QuoteSeries.h"

namespace quorvex::quotes {

void CloseQuoteFile(QuoteSeries& series) {
    series.QuoteFileName.clear();
    series.WorkingCount = 0;
    series.QuoteCount = 0;
}

void AnalyseWholeSeries(QuoteSeries& series) {
    for (std::int16_t day = 1; day <= series.QuoteCount; ++day) {
        series.Working[day] = series.Master[day];
    }
    series.WorkingCount = series.QuoteCount;
    TakeDatesOfWorkingCopy(series);
}

void TakeDatesOfWorkingCopy(QuoteSeries& series) {
    series.FirstQuoteDate = series.Working[1].Date;
    series.LastQuoteDate = series.Working[series.WorkingCount].Date;
}

} // namespace quorvex::quotes
