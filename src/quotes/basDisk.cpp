// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basDisk.h"

#include "platform/basMessages.h"
#include "text/RunTimeError.h"

#include <limits>
#include <memory>
#include <string_view>
#include <tuple>
#include <utility>

namespace quorvex::quotes {

namespace {

using text::Fault;
using text::RunTimeError;

// The numbers of a line, in the order in which they stand.
constexpr std::array<double QuoteRecord::*, 6> NumberFields = {
    &QuoteRecord::Open,  &QuoteRecord::High,   &QuoteRecord::Low,
    &QuoteRecord::Close, &QuoteRecord::Volume, &QuoteRecord::OpenInterest};
constexpr std::size_t NumberCount = NumberFields.size();
static_assert(NumberCount == std::tuple_size_v<decltype(QuoteLine::Numbers)>);

// A file that ends inside a line leaves its last fields empty.
std::string_view TakeOrEmpty(text::FieldReader& fields) {
    return fields.AtEnd() ? std::string_view() : fields.Take();
}

text::SpelledNumber NumberOrInfinity(std::string_view field) {
    text::SpelledNumber number{std::numeric_limits<double>::infinity()};
    static_cast<void>(text::Trap([&] { number = text::LeadingSpelledNumber(field); }));
    return number;
}

text::SpelledNumber TakeNumber(text::FieldReader& fields) {
    auto const plain = fields.TakePlainDecimal();
    return plain.Decimals >= 0 ? plain : NumberOrInfinity(TakeOrEmpty(fields));
}

void StoreRounded(QuoteLine const& line, text::NumberFormat const& format, QuoteRecord& record) {
    record.Date = text::FormatDate(*line.Date);
    for (std::size_t index = 0; index < NumberCount; ++index) {
        double const number = line.Number(index);
        bool const isRound = format.Keeps(line.Numbers[index].Decimals);
        record.*NumberFields[index] = isRound ? number : format.Round(number);
    }
}

void RefuseQuoteFile(QuoteSeries& series, platform::Dialogs& dialogs) {
    dialogs.Show({"A minimum of 25 daily quotes is required to perform cyclical analysis",
                  "Quorvex Requirements", platform::Icon::Information});
    CloseQuoteFile(series);
}

// The days that the source has, up to the last one that is kept. Returns their count.
std::int16_t ReadRecords(text::ByteSource& source, text::NumberFormat const& format, QuoteRecords& records) {
    text::FieldReader fields(source);
    std::int16_t count = 0;
    while (!fields.AtEnd()) {
        QuoteLine const line = ReadQuoteLine(fields);
        if (!line.IsQuote()) {
            continue;
        }
        if (count == MaxQuotes) {
            break;
        }
        ++count;
        StoreRounded(line, format, records[count]);
    }
    return count;
}

} // namespace

// One beyond a double matters only when the line comes to need it.
double QuoteLine::Number(std::size_t index) const {
    return text::RequireFinite(Numbers.at(index).Value);
}

bool QuoteLine::IsQuote() const {
    return Date && text::RequireFinite(Number(0) * Number(1) * Number(2) * Number(3)) > 0;
}

QuoteLine ReadQuoteLine(text::FieldReader& fields) {
    auto const date = text::ParseDate(TakeOrEmpty(fields));
    auto const next = [&] { return TakeNumber(fields); };
    return {date, {next(), next(), next(), next(), next(), next()}}; // in this order
}

std::int16_t ReadQuotes(text::ByteSource& source, text::NumberFormat const& format, QuoteSeries& series) {
    // Read aside: a file that breaks off must not cost the contract that is open.
    auto const records = std::make_unique<QuoteRecords>();
    std::int16_t const count = ReadRecords(source, format, *records);
    for (std::int16_t day = 1; day <= count; ++day) {
        series.Master[day] = (*records)[day];
        series.Working[day] = std::move((*records)[day]);
    }
    return count;
}

std::int16_t LoadQuoteFile(QuoteSeries& series, settings::Settings const& settings,
                           platform::Files const& files, platform::Dialogs& dialogs) {
    std::int16_t count = 0;
    bool const wasRead = platform::RunReported(dialogs, [&] {
        auto const source = files.OpenForInput(settings.DataPath + series.QuoteFileName);
        count = ReadQuotes(*source, text::NumberFormat(settings.CurrencyFormat), series);
    });
    if (!wasRead) {
        return 0;
    }
    if (count < MinQuotes) {
        RefuseQuoteFile(series, dialogs);
        return 0;
    }
    series.QuoteCount = count;
    series.WorkingCount = count;
    TakeDatesOfWorkingCopy(series);
    return count;
}

void AppendReadableNumber(std::string& text, double value, text::NumberFormat const& format) {
    std::size_t const begin = text.size();
    format.AppendTo(text, value);
    std::string_view const field = std::string_view(text).substr(begin);
    if (field.find(',') != std::string_view::npos || !format.RoundsOnly() ||
        text::LeadingNumber(field) != format.Round(value)) {
        throw RunTimeError(Fault::TypeMismatch);
    }
}

std::string QuoteFileText(QuoteSeries const& series, text::NumberFormat const& format) {
    constexpr std::size_t UsualLineLength = 80;
    std::string text;
    text.reserve(static_cast<std::size_t>(series.WorkingCount) * UsualLineLength);
    for (std::int16_t day = 1; day <= series.WorkingCount; ++day) {
        QuoteRecord const& record = series.Working[day];
        text += record.Date;
        for (auto const number : NumberFields) {
            text += ", ";
            AppendReadableNumber(text, record.*number, format);
        }
        text += "\r\n";
    }
    return text;
}

bool SaveQuoteFile(std::string const& fileName, QuoteSeries& series, settings::Settings const& settings,
                   platform::Files& files, platform::Dialogs& dialogs) {
    bool const saved = platform::RunReported(dialogs, [&] {
        files.Replace(settings.DataPath + fileName,
                      QuoteFileText(series, text::NumberFormat(settings.CurrencyFormat)));
    });
    if (!saved) {
        return false;
    }
    for (std::int16_t day = 1; day <= series.WorkingCount; ++day) {
        series.Master[day] = series.Working[day];
    }
    series.QuoteCount = series.WorkingCount;
    if (series.WorkingCount > 0) {
        TakeDatesOfWorkingCopy(series);
    }
    return true;
}

} // namespace quorvex::quotes
