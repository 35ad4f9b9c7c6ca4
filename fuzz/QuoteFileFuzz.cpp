// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The input is the currency format on a line of its own and behind it a quote file.

#include "Require.h"
#include "quotes/QuoteSeries.h"
#include "quotes/basDisk.h"
#include "text/RunTimeError.h"
#include "text/basDates.h"
#include "text/basFields.h"
#include "text/basFormats.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorvex::fuzz {

namespace {

using quotes::MaxQuotes;
using quotes::QuoteRecord;
using quotes::QuoteSeries;

constexpr std::array<std::string_view, 5> OfferedFormats = {"####0", "####0.0", "####0.00", "####0.000",
                                                            "####0.0000"};

// The number of days read, nothing after a fault.
std::optional<std::int16_t> Read(std::string_view file, text::NumberFormat const& format,
                                 QuoteSeries& series) {
    std::int16_t count = 0;
    text::TextSource source(file);
    auto const error = text::Trap([&] { count = quotes::ReadQuotes(source, format, series); });
    return error ? std::nullopt : std::optional(count);
}

bool IsSameQuote(QuoteRecord const& left, QuoteRecord const& right) {
    return left.Date == right.Date && left.Open == right.Open && left.High == right.High &&
           left.Low == right.Low && left.Close == right.Close && left.Volume == right.Volume &&
           left.OpenInterest == right.OpenInterest;
}

bool IsFinite(QuoteRecord const& record) {
    return std::isfinite(record.Open) && std::isfinite(record.High) && std::isfinite(record.Low) &&
           std::isfinite(record.Close) && std::isfinite(record.Volume) && std::isfinite(record.OpenInterest);
}

bool HasGoodDate(QuoteRecord const& record) {
    auto const day = text::ParseDate(record.Date);
    return day && text::FormatDate(*day) == record.Date;
}

void CheckRecords(QuoteSeries const& series, std::optional<std::int16_t> count) {
    for (std::int16_t day = 1; day <= MaxQuotes; ++day) {
        QuoteRecord const& record = series.Working[day];
        Require(IsSameQuote(record, series.Master[day]));
        Require(IsFinite(record));
        Require(record.Date.empty() || HasGoodDate(record));
        Require(!count || record.Date.empty() == (day > *count));
    }
}

// Prices may round to zero, which makes the day unreadable, and their product may leave the range of a
// double, which makes the file so. All other days come back as they were.
void CheckSavedQuotes(QuoteSeries& series, std::int16_t count, text::NumberFormat const& format) {
    series.WorkingCount = count;
    std::string const file = quotes::QuoteFileText(series, format);
    auto const again = std::make_unique<QuoteSeries>();
    auto const countAgain = Read(file, format, *again);

    auto const productOf = [&](std::int16_t day) {
        QuoteRecord const& record = series.Working[day];
        return record.Open * record.High * record.Low * record.Close;
    };
    std::int16_t expected = 0;
    bool isReadable = true;
    for (std::int16_t day = 1; day <= count; ++day) {
        isReadable = isReadable && std::isfinite(productOf(day));
    }
    Require(isReadable == countAgain.has_value());
    if (!isReadable) {
        return; // a file that is refused leaves no day
    }
    for (std::int16_t day = 1; day <= count; ++day) {
        if (productOf(day) > 0) {
            ++expected;
            Require(IsSameQuote(again->Working[expected], series.Working[day]));
        }
    }
    Require(countAgain == expected);
}

void CheckQuoteFile(std::string_view formatText, std::string_view file) {
    text::NumberFormat const format(formatText);
    auto const series = std::make_unique<QuoteSeries>();
    auto const count = Read(file, format, *series);
    Require(!count || (*count >= 0 && *count <= MaxQuotes));
    CheckRecords(*series, count);
    if (count &&
        std::find(OfferedFormats.begin(), OfferedFormats.end(), formatText) != OfferedFormats.end()) {
        CheckSavedQuotes(*series, *count, format);
    }
}

} // namespace

} // namespace quorvex::fuzz

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    std::string_view const input(reinterpret_cast<char const*>(data), size);
    std::size_t const lineEnd = std::min(input.find('\n'), size);
    quorvex::fuzz::CheckQuoteFile(input.substr(0, lineEnd), input.substr(std::min(lineEnd + 1, size)));
    return 0;
}
