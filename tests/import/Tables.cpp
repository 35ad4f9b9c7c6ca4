// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "Tables.h"

#include "text/basFields.h"

#include <algorithm>
#include <chrono>

namespace quorvex::tests {

imports::Conversion ImportText(std::string_view table, imports::Choices const& choices,
                               imports::Limits const& limits) {
    text::TextSource source(table);
    return imports::ImportTable(source, choices, limits);
}

std::string RefusalOf(imports::Conversion const& conversion) {
    auto const& refused = conversion.Refused;
    return refused ? std::to_string(refused->Told.Line) + ": " + refused->Told.Text : std::string();
}

std::size_t Below(std::mt19937& random, std::size_t limit) {
    return random() % limit;
}

std::vector<imports::DayQuote> RandomSeries(std::mt19937& random, std::size_t count, double price) {
    std::vector<imports::DayQuote> series;
    text::CalendarDay day = std::chrono::year{2018} / 3 / 1;
    auto const ticks = [&](std::size_t most) { return static_cast<double>(Below(random, most)) * 0.25; };
    while (series.size() < count) {
        if (std::chrono::weekday(day).iso_encoding() <= 5) {
            double const open = price + ticks(3) - 0.25;
            double const close = open + ticks(41) - 5;
            double const high = std::max(open, close) + ticks(9);
            double const low = std::min(open, close) - ticks(9);
            series.push_back({day,
                              {open, high, low, close, static_cast<double>(1000 + Below(random, 200'000)),
                               static_cast<double>(90'000 + Below(random, 400'000))}});
            price = close;
        }
        day += std::chrono::days(1);
    }
    return series;
}

bool AreSameDays(std::vector<imports::DayQuote> const& left, std::vector<imports::DayQuote> const& right) {
    return std::ranges::equal(left, right, [](imports::DayQuote const& one, imports::DayQuote const& other) {
        return one.IsSameAs(other);
    });
}

} // namespace quorvex::tests
