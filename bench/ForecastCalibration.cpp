// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Whether the verdicts of the forecast test can be trusted: how often it claims skill on random walks, where
// there is none, and how often it finds the skill of models of series that are two cycles and noise.
//
//     quorvex-bench-forecasts [walks of 500 days] [walks of each other length] [planted series]

#include "evaluation/basEvaluation.h"
#include "text/basNumbers.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <numbers>
#include <random>
#include <span>
#include <thread>
#include <vector>

namespace quorvex::bench {

namespace {

// The same numbers on every machine, as far as its logarithms and sines are.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : random_(seed) {}

    // A whole number, both ends included.
    int Between(int least, int most) {
        return least + static_cast<int>(random_() % static_cast<std::uint64_t>(most - least + 1));
    }

    // Normally distributed about 0 with a standard deviation of 1.
    double Normal() {
        double const radius = std::sqrt(-2 * std::log(Uniform()));
        return radius * std::cos(2 * std::numbers::pi * Uniform());
    }

private:
    // Above 0 and below 1.
    double Uniform() {
        constexpr double Parts = 1ULL << 53U;
        return (static_cast<double>(random_() >> 11U) + 0.5) / Parts;
    }

    std::mt19937_64 random_;
};

using Series = std::unique_ptr<quotes::QuoteSeries>;

// A series with these closes, rounded to hundredths, and highs and lows a little off them.
Series SeriesOf(std::vector<double> const& closes, double reach, Chance& chance) {
    auto series = std::make_unique<quotes::QuoteSeries>();
    series->QuoteFileName = "made";
    for (double const close : closes) {
        ++series->WorkingCount;
        quotes::QuoteRecord& record = series->Working[series->WorkingCount];
        record.Date = "01/01/01";
        record.Close = std::round(close * 100) / 100;
        record.Open = record.Close;
        record.High = record.Close + reach * std::fabs(chance.Normal());
        record.Low = record.Close - reach * std::fabs(chance.Normal());
    }
    return series;
}

// Changes of 1 % a day about prices of 40, 400 or 4000, since the forecast window swings by the same amounts
// whatever the prices are.
Series RandomWalk(int days, std::uint64_t seed) {
    Chance chance(seed);
    double const level = 40 * std::pow(10.0, static_cast<double>(seed % 3));
    double close = level;
    std::vector<double> closes;
    for (int day = 1; day <= days; ++day) {
        close *= 1 + 0.01 * chance.Normal();
        closes.push_back(close);
    }
    return SeriesOf(closes, 0.005 * level, chance);
}

double DeviationOf(std::vector<double> const& values) {
    auto const n = static_cast<double>(values.size());
    double mean = 0;
    for (double const value : values) {
        mean += value / n;
    }
    double square = 0;
    for (double const value : values) {
        square += (value - mean) * (value - mean) / n;
    }
    return std::sqrt(square);
}

// Two different cycles out of those that the search knows on the first day of a forecast, each 30 to 70 %,
// and noise with half their standard deviation.
Series PlantedCycles(int days, std::uint64_t seed) {
    constexpr double TwoPi = 2 * std::numbers::pi;
    Chance chance(seed);
    int const longest = days / 4;
    int const period = chance.Between(5, longest);
    int other = period;
    while (other == period) {
        other = chance.Between(5, longest);
    }
    int const weight = chance.Between(30, 70);
    int const shift = chance.Between(1, 99);
    int const otherShift = chance.Between(-99, -1);
    std::vector<double> closes;
    for (int day = 1; day <= days; ++day) {
        closes.push_back(500 + weight * std::sin(TwoPi * day / period + TwoPi / shift) +
                         (100 - weight) * std::sin(TwoPi * day / other + TwoPi / otherShift));
    }
    double const noise = DeviationOf(closes) / 2;
    for (double& close : closes) {
        close += noise * chance.Normal();
    }
    return SeriesOf(closes, 1, chance);
}

// Whether any model is said to be better than the last close.
bool ClaimsSkill(quotes::QuoteSeries const& series) {
    evaluation::EvaluationRequest request;
    request.MovingAverageLength = 3; // what the program starts with
    request.SurrogateCount = 0;
    request.Jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    auto const outcome = evaluation::Evaluate(series, request, [](double) { return true; });
    if (!outcome.Result) {
        std::fprintf(stderr, "%s\n", outcome.Refusal.c_str());
        std::exit(EXIT_FAILURE);
    }
    auto const& models = outcome.Result->Models;
    return std::any_of(models.begin(), models.end(), [](evaluation::ModelReport const& model) {
        return model.Verdict.starts_with("better");
    });
}

using Maker = Series (*)(int, std::uint64_t);

void Report(char const* what, Maker make, int days, int count) {
    auto const start = std::chrono::steady_clock::now();
    constexpr int Pause = 50;
    int claims = 0;
    for (int number = 1; number <= count; ++number) {
        claims += ClaimsSkill(*make(days, static_cast<std::uint64_t>(number))) ? 1 : 0;
        if (number % Pause == 0 && number < count) {
            std::fprintf(stderr, "%s of %d days: %d of %d so far\n", what, days, claims, number);
        }
    }
    std::chrono::duration<double> const time = std::chrono::steady_clock::now() - start;
    std::printf("%s of %d days: skill claimed for %d of %d (%.1f %%), %.0f s\n", what, days, claims, count,
                100.0 * claims / std::max(1, count), time.count());
    std::fflush(stdout);
}

int CountOf(std::span<char*> arguments, std::size_t position, int usual) {
    return position < arguments.size()
               ? static_cast<int>(text::WholeNumber(text::StrictNumber(arguments[position])))
               : usual;
}

} // namespace

} // namespace quorvex::bench

int main(int argc, char** argv) {
    using namespace quorvex::bench;
    std::span<char*> const arguments(argv, static_cast<std::size_t>(argc));
    Report("Two cycles and noise", PlantedCycles, 400, CountOf(arguments, 3, 100));
    for (int const days : {180, 250, 350}) {
        Report("Random walks", RandomWalk, days, CountOf(arguments, 2, 200));
    }
    Report("Random walks", RandomWalk, 500, CountOf(arguments, 1, 1000));
    return EXIT_SUCCESS;
}
