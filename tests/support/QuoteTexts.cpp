// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "support/QuoteTexts.h"

#include "quotes/basDisk.h"
#include "support/Golden.h"
#include "text/basDates.h"

#include <chrono>

namespace quorvex::tests {

std::string QuoteLines(int count) {
    using namespace std::chrono;
    std::string text;
    text::CalendarDay day = sys_days{year{2001} / 1 / 1};
    for (int line = 1; line <= count; day += days{1}) {
        if (weekday{day} == Saturday || weekday{day} == Sunday) {
            continue;
        }
        std::string const price = std::to_string(100 + line);
        text += text::FormatDate(day) + ", " + price + ".25, " + price + ".75, " + price + ".00, " + price +
                ".00, 1200.00, 3400.00\r\n";
        ++line;
    }
    return text;
}

std::unique_ptr<quotes::QuoteSeries> SeriesOf(std::string_view text, std::string_view currencyFormat,
                                              std::string_view name) {
    auto series = std::make_unique<quotes::QuoteSeries>();
    text::TextSource source(text);
    series->QuoteCount = quotes::ReadQuotes(source, text::NumberFormat(currencyFormat), *series);
    series->QuoteFileName = name;
    quotes::AnalyseWholeSeries(*series);
    return series;
}

std::unique_ptr<quotes::QuoteSeries> GoldenSeries(std::string const& file, std::string_view currencyFormat) {
    return SeriesOf(GoldenFile("quotes/" + file), currencyFormat, file);
}

} // namespace quorvex::tests
