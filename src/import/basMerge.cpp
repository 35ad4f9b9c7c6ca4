// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basMerge.h"

#include "quotes/basDisk.h"
#include "text/DecimalNumber.h"
#include "text/basFormats.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

namespace quorvex::imports {

namespace {

constexpr int FewestDecimals = 2;
constexpr int MostPadding = 6;

int DecimalsOf(double number) {
    return std::max(-text::ToDecimal(number).Exponent, 0);
}

int MostDecimals(std::span<DayQuote const> days) {
    int most = 0;
    for (DayQuote const& quote : days) {
        for (std::size_t index = 0; index < PriceCount; ++index) {
            most = std::max(most, DecimalsOf(quote.Figures.at(index)));
        }
    }
    return most;
}

std::string FormatOf(int decimals) {
    return "0." + std::string(static_cast<std::size_t>(decimals), '0');
}

double Rounded(double number, int decimals) {
    return text::ToDouble(text::RoundHalfAway(text::ToDecimal(number), decimals));
}

// Whether the figures say the same, prices to so many decimals.
bool IsSameQuote(DayQuote const& left, DayQuote const& right, int decimals) {
    for (std::size_t index = 0; index < FigureCount; ++index) {
        double const one = left.Figures.at(index);
        double const other = right.Figures.at(index);
        bool const isSame =
            one == other || (index < PriceCount && Rounded(one, decimals) == Rounded(other, decimals));
        if (!isSame) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string QuoteText(std::span<DayQuote const> days) {
    int const padding = std::clamp(MostDecimals(days), FewestDecimals, MostPadding);
    text::NumberFormat const usual(FormatOf(padding));
    text::NumberFormat const plain("");
    std::string text;
    for (DayQuote const& quote : days) {
        text += text::FormatDate(quote.Day);
        for (std::size_t index = 0; index < FigureCount; ++index) {
            double const figure = quote.Figures.at(index);
            bool const isUsual = index < PriceCount && DecimalsOf(figure) <= padding;
            text += ", ";
            quotes::AppendReadableNumber(text, figure, isUsual ? usual : plain);
        }
        text += "\r\n";
    }
    return text;
}

std::span<DayQuote const> LatestOf(std::span<DayQuote const> days, std::size_t count) {
    return days.last(std::min(count, days.size()));
}

QuoteFileDays ReadQuoteFileDays(text::ByteSource& source) {
    QuoteFileDays file;
    std::map<text::CalendarDay, DayQuote> days;
    text::FieldReader fields(source);
    while (!fields.AtEnd()) {
        quotes::QuoteLine const line = quotes::ReadQuoteLine(fields);
        if (!line.IsQuote()) {
            ++file.PassedCount;
            continue;
        }
        DayQuote quote{*line.Date, {}, 0};
        for (std::size_t index = 0; index < FigureCount; ++index) {
            quote.Figures.at(index) = line.Number(index);
        }
        auto const [there, isNew] = days.emplace(quote.Day, quote);
        if (!isNew && there->second.Figures != quote.Figures) {
            file.Refused =
                Refusal{{0, "The quote file has " + text::FormatDate(quote.Day) + " twice"}, Choice::None};
        }
    }
    for (auto const& [day, quote] : days) {
        file.Days.push_back(quote);
    }
    return file;
}

Merge MergeDays(std::span<DayQuote const> file, std::span<DayQuote const> days, bool replaces,
                std::size_t most) {
    constexpr std::chrono::days Week{7};
    Merge merge;
    int const decimals = MostDecimals(file);
    std::map<text::CalendarDay, DayQuote> all;
    for (DayQuote const& quote : file) {
        all.emplace(quote.Day, quote);
    }
    for (DayQuote const& quote : days) {
        if (!file.empty() && quote.Day < file.front().Day) {
            ++merge.OlderCount;
            continue;
        }
        auto const [there, isNew] = all.emplace(quote.Day, quote);
        if (isNew) {
            bool const isBehind = file.empty() || quote.Day > file.back().Day;
            (isBehind ? merge.Appended : merge.Inserted).push_back(quote);
        } else if (IsSameQuote(there->second, quote, decimals)) {
            ++merge.EqualCount;
        } else {
            merge.Changed.push_back({there->second, quote});
            there->second = replaces ? quote : there->second;
        }
    }
    merge.HasGap =
        !file.empty() && !merge.Appended.empty() && merge.Appended.front().Day - file.back().Day > Week;
    merge.LeavingCount = all.size() - std::min(all.size(), most);
    for (auto one = std::next(all.begin(), static_cast<std::ptrdiff_t>(merge.LeavingCount)); one != all.end();
         ++one) {
        merge.Days.push_back(one->second);
    }
    return merge;
}

} // namespace quorvex::imports
