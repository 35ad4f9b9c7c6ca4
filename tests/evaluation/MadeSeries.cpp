// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "MadeSeries.h"

#include <cmath>
#include <random>

namespace quorvex::tests {

std::unique_ptr<quotes::QuoteSeries> SeriesOfCloses(std::vector<double> const& closes) {
    auto series = std::make_unique<quotes::QuoteSeries>();
    for (double const close : closes) {
        ++series->QuoteCount;
        series->Master[series->QuoteCount] = {"01/02/03", close - 0.5, close + 1, close - 1,
                                              close,      100,         1000};
    }
    series->QuoteFileName = "made.txt";
    quotes::AnalyseWholeSeries(*series);
    return series;
}

std::vector<double> WalkingCloses(int days, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::vector<double> closes;
    double close = 1000;
    for (int day = 1; day <= days; ++day) {
        close += static_cast<double>(random() % 17) - 8;
        closes.push_back(close);
    }
    return closes;
}

std::vector<double> CyclicCloses(int days, std::uint32_t seed) {
    constexpr double TwoPi = 6.28318530717958;
    std::mt19937 random(seed);
    std::vector<double> closes;
    for (int day = 1; day <= days; ++day) {
        double const noise = static_cast<double>(random() % 31) - 15;
        closes.push_back(500 + 30 * std::sin(TwoPi * day / 20) + 30 * std::sin(TwoPi * day / 47) + noise);
    }
    return closes;
}

std::vector<quotes::QuoteRecord> RecordsOf(quotes::QuoteSeries const& series) {
    std::vector<quotes::QuoteRecord> records;
    for (int day = 1; day <= series.WorkingCount; ++day) {
        records.push_back(series.Working[day]);
    }
    return records;
}

} // namespace quorvex::tests
