// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basQuoteFiles.h"

#include "import/basConversion.h"
#include "quotes/QuoteSeries.h"
#include "text/basDates.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace quorvex::imports {

namespace {

// Nothing when the fields are no quote of this form.
std::optional<DayQuote> TakeQuote(text::FieldReader& fields) {
    auto const day = text::ParseDate(fields.Take());
    DayQuote quote;
    bool isQuote = day.has_value();
    for (std::size_t index = 0; index < FigureCount && isQuote; ++index) {
        auto const number = fields.AtEnd() ? std::nullopt : text::PlainDecimal(fields.Take());
        isQuote = number && (index < PriceCount ? *number > 0 : *number >= 0);
        quote.Figures.at(index) = number.value_or(0);
    }
    auto const [open, high, low, close, volume, openInterest] = quote.Figures;
    if (!isQuote || std::max(open, close) > high || std::min(open, close) < low) {
        return std::nullopt;
    }
    quote.Day = *day;
    return quote;
}

} // namespace

bool IsQuoteFile(text::ByteSource& source) {
    text::FieldReader fields(source);
    std::optional<text::CalendarDay> last;
    int count = 0;
    while (!fields.AtEnd()) {
        auto const quote = TakeQuote(fields);
        if (!quote || (last && quote->Day <= *last) || ++count > quotes::MaxQuotes) {
            return false;
        }
        last = quote->Day;
    }
    return count >= quotes::MinQuotes;
}

} // namespace quorvex::imports
