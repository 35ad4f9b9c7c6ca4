// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basEvaluation.h"

#include "MadeSeries.h"
#include "cycles/basCurves.h"
#include "evaluation/Surrogates.h"
#include "evaluation/basVerdicts.h"
#include "search/basSearch.h"
#include "support/Sanitizers.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <random>

namespace quorvex::evaluation {
namespace {

using tests::CyclicCloses;
using tests::SeriesOfCloses;
using tests::WalkingCloses;

bool GoToTheEnd(double) {
    return true;
}

// Few models and samples.
EvaluationRequest SmallRequest() {
    EvaluationRequest request;
    request.Models = {{Method::Automate, 1}, {Method::Search, 1}, {Method::Search, 2}};
    request.MovingAverageLength = 5;
    request.SampleCount = 100;
    request.SurrogateCount = 0;
    return request;
}

Evaluation EvaluationOf(quotes::QuoteSeries const& series, EvaluationRequest const& request) {
    auto outcome = Evaluate(series, request, GoToTheEnd);
    EXPECT_EQ(outcome.Refusal, "");
    return outcome.Result.value();
}

bool AreSame(std::vector<ModelForecast> const& a, std::vector<ModelForecast> const& b) {
    bool same = a.size() == b.size();
    for (std::size_t model = 0; same && model < a.size(); ++model) {
        same = a[model].Fault == b[model].Fault;
        for (ForecastKind const kind : ForecastKinds) {
            auto const& x = a[model].Of(kind);
            auto const& y = b[model].Of(kind);
            same = same && x.has_value() == y.has_value();
            for (int day = 1; same && x && day <= cycles::ForecastDays; ++day) {
                same = (*x)[day] == (*y)[day];
            }
        }
    }
    return same;
}

std::string TextOf(Evaluation const& evaluation) {
    std::string text = DescribeTest(evaluation);
    for (TableRow const& row : TableRows(evaluation)) {
        text += row.Model + row.Kind + row.Days + row.Error + row.Right + row.Correlation + row.Chance + '\n';
    }
    for (ModelReport const& model : evaluation.Models) {
        text += model.Verdict + '\n';
    }
    for (std::string const& line : SurrogateLines(evaluation)) {
        text += line + '\n';
    }
    return text;
}

// The closes with others from the first unknown day on, so many days in all.
std::vector<double> WithAnotherFuture(std::vector<double> closes, std::size_t known, std::size_t days,
                                      std::mt19937& random) {
    closes.resize(days);
    for (std::size_t day = known; day < days; ++day) {
        closes[day] = 1 + static_cast<double>(random() % 5000);
    }
    return closes;
}

class Prefixes : public testing::Test {
protected:
    Prefixes() {
        Parameters->Cycles[1].Weight = 100;
        Parameters->Cycles[1].Period = 33;
        Request.Parameters = Parameters.get();
        Request.SampleCount = 1;
    }

    // Expects the same forecasts from all origins of both series that lie within the known days.
    void ExpectSame(std::vector<double> const& closes, std::vector<double> const& others, std::size_t known) {
        Evaluation const first = EvaluationOf(*SeriesOfCloses(closes), Request);
        Evaluation const second = EvaluationOf(*SeriesOfCloses(others), Request);
        for (Origin const& a : first.Origins) {
            for (Origin const& b : second.Origins) {
                if (a.Day == b.Day && static_cast<std::size_t>(a.Day) <= known) {
                    EXPECT_TRUE(AreSame(a.Forecasts, b.Forecasts)) << a.Day;
                    ++Compared;
                    LatestCompared = std::max(LatestCompared, a.Day);
                }
            }
        }
    }

    std::unique_ptr<cycles::CycleParameterSet> Parameters = std::make_unique<cycles::CycleParameterSet>();
    EvaluationRequest Request = SmallRequest();
    int Compared = 0;
    int LatestCompared = 0;
};

std::vector<Model> const PrefixModels = {
    {Method::Automate, 1},   {Method::Automate, 2}, {Method::Automate, 3}, {Method::Search, 1},
    {Method::Parameters, 0}, {Method::Search, 3},   {Method::Search, 5}};

TEST_F(Prefixes, NoLaterDayChangesAnEarlierForecast) {
    std::mt19937 random(1);
    for (int round = 0; round < tests::Repetitions(999); ++round) {
        SCOPED_TRACE(round);
        // The searches of several cycles take longest and come less often.
        std::size_t const pick = random() % 20;
        Request.Models = {PrefixModels.at(pick < PrefixModels.size() ? pick : pick % 5)};
        // One in twenty is so long that the middle lies behind day 100.
        bool const isLong = round % 20 == 0;
        std::size_t const days = isLong ? 210 + random() % 60 : 127 + random() % 12;
        std::size_t const otherDays = isLong ? days : 127 + random() % 12;
        Request.Every = static_cast<int>(isLong ? 40 + random() % 40 : 7 + random() % 30);
        std::size_t const first = std::max<std::size_t>(100, days / 2);
        std::size_t const known = first + random() % (days - 25 - first + 1);
        auto const seed = static_cast<std::uint32_t>(random());
        auto const closes = WalkingCloses(static_cast<int>(days), seed);
        std::size_t const last = std::max(known, otherDays);
        int const before = Compared;
        ExpectSame(closes, WithAnotherFuture(closes, known, last, random), known);
        EXPECT_GT(Compared, before);
    }
    EXPECT_GT(LatestCompared, 200);
}

TEST_F(Prefixes, NoLaterDayChangesAForecastOfTheLongestSeries) {
    std::mt19937 random(2);
    Request.Models = PrefixModels;
    Request.Every = 45; // days 250, 295 .. 475
    auto const closes = WalkingCloses(500, 3);
    ExpectSame(closes, WithAnotherFuture(closes, 431, 500, random), 431);
    EXPECT_EQ(Compared, 5);
    EXPECT_EQ(LatestCompared, 430);
}

TEST(Evaluate, GivesTheSameWithAnyNumberOfThreads) {
    auto const series = SeriesOfCloses(CyclicCloses(200, 2));
    EvaluationRequest request = SmallRequest();
    request.SurrogateCount = 10;
    auto const one = EvaluationOf(*series, request);
    for (int const jobs : {2, 3, 50}) {
        request.Jobs = jobs;
        auto const more = EvaluationOf(*series, request);
        EXPECT_EQ(TextOf(more), TextOf(one));
        ASSERT_EQ(more.Origins.size(), one.Origins.size());
        for (std::size_t origin = 0; origin < one.Origins.size(); ++origin) {
            EXPECT_TRUE(AreSame(more.Origins[origin].Forecasts, one.Origins[origin].Forecasts));
        }
    }
}

TEST(Evaluate, FindsTheSkillOfCyclesThatAreThere) {
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(CyclicCloses(300, 3)), SmallRequest());
    ModelReport const& search = evaluation.Models.at(2);
    EXPECT_TRUE(search.Of(ForecastKind::Scaled).ByHorizon.at(2).IsBetter);
    EXPECT_TRUE(search.Verdict.starts_with("better than the last close: ")) << search.Verdict;
    EXPECT_EQ(evaluation.Models.front().Verdict, "no better than the last close");
}

TEST(Evaluate, FixedCyclesChangeNothingOfTheOtherModels) {
    auto const parameters = std::make_unique<cycles::CycleParameterSet>();
    parameters->Cycles[1].Weight = 50;
    parameters->Cycles[1].Period = 20;
    parameters->Cycles[2].Weight = 50;
    parameters->Cycles[2].Period = 47;
    auto const series = SeriesOfCloses(CyclicCloses(300, 3));
    EvaluationRequest request = SmallRequest();
    Evaluation const without = EvaluationOf(*series, request);
    request.Models.push_back({Method::Parameters, 0});
    request.Parameters = parameters.get();
    Evaluation const with = EvaluationOf(*series, request);
    int below = 0;
    for (std::size_t model = 0; model < without.Models.size(); ++model) {
        EXPECT_EQ(with.Models[model].Verdict, without.Models[model].Verdict);
        for (ForecastKind const kind : ForecastKinds) {
            for (std::size_t index = 0; index < Horizons.size(); ++index) {
                auto const& chance = without.Models[model].Of(kind).ByHorizon.at(index).Chance;
                EXPECT_EQ(with.Models[model].Of(kind).ByHorizon.at(index).Chance, chance);
                below += chance < 1 ? 1 : 0;
            }
        }
    }
    EXPECT_GT(below, 2);
    EXPECT_TRUE(with.Models.back().Verdict.ends_with("; otherwise they have seen these days"));
}

TEST(Evaluate, ClaimsNothingOfAWalk) {
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(WalkingCloses(300, 4)), SmallRequest());
    for (ModelReport const& model : evaluation.Models) {
        EXPECT_EQ(model.Verdict, "no better than the last close");
    }
}

TEST(Evaluate, DriftIsTheMeanChangeSoFar) {
    std::vector<double> closes;
    for (int day = 0; day < 200; ++day) {
        closes.push_back(100 + day);
    }
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(closes), SmallRequest());
    for (std::size_t index = 0; index < Horizons.size(); ++index) {
        EXPECT_DOUBLE_EQ(evaluation.LastCloseError.at(index), Horizons.at(index));
        EXPECT_NEAR(evaluation.Drift.at(index).Figures.ErrorRatio.value(), 0, 1e-12);
        EXPECT_EQ(evaluation.Drift.at(index).Chance, std::nullopt);
    }
}

TEST(Evaluate, ComparesWithTheCloseOfTheHorizon) {
    auto const closes = WalkingCloses(160, 5);
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(closes), SmallRequest());
    double error = 0;
    double errorOfLastClose = 0;
    for (Origin const& origin : evaluation.Origins) {
        auto const day = static_cast<std::size_t>(origin.Day);
        auto const& prices = origin.Forecasts.at(1).Of(ForecastKind::Composite);
        error += std::fabs(closes.at(day + 9) - (*prices)[10]);
        errorOfLastClose += std::fabs(closes.at(day + 9) - closes.at(day - 1));
    }
    KindReport const& report = evaluation.Models.at(1).Of(ForecastKind::Composite);
    EXPECT_EQ(report.ForecastCount, static_cast<int>(evaluation.Origins.size()));
    EXPECT_NEAR(report.ByHorizon.at(2).Figures.ErrorRatio.value(), error / errorOfLastClose, 1e-12);
}

TEST(Evaluate, ACycleThatComesBackWithinTheHorizonForeseesNoChange) {
    // Rising closes: the slightest rounding upwards would be the right direction.
    std::vector<double> closes;
    for (int day = 0; day < 400; ++day) {
        closes.push_back(1 + day * 0.75 + day % 3 * 0.2);
    }
    auto const series = SeriesOfCloses(closes);
    auto const parameters = std::make_unique<cycles::CycleParameterSet>();
    EvaluationRequest request = SmallRequest();
    request.Models = {{Method::Parameters, 0}};
    request.Parameters = parameters.get();
    for (auto const& [period, first] : {std::pair{5.0, std::size_t{1}}, {25.0, std::size_t{3}}}) {
        for (int shift = -30; shift <= 30; shift += 15) {
            SCOPED_TRACE(testing::Message() << period << ' ' << shift);
            parameters->Cycles[1].Weight = 100;
            parameters->Cycles[1].Period = period;
            parameters->Cycles[1].Shift = shift;
            Evaluation const evaluation = EvaluationOf(*series, request);
            for (ForecastKind const kind : {ForecastKind::Composite, ForecastKind::Scaled}) {
                for (std::size_t horizon = first; horizon < Horizons.size(); ++horizon) {
                    auto const& report = evaluation.Models.front().Of(kind).ByHorizon.at(horizon);
                    EXPECT_EQ(report.Figures.ErrorRatio, 1.0);
                    EXPECT_EQ(report.Figures.RightDirections, 0.5);
                    EXPECT_EQ(report.Figures.Correlation, std::nullopt);
                    EXPECT_EQ(report.Chance, 1.0);
                    EXPECT_FALSE(report.IsBetter);
                }
            }
        }
    }
}

TEST(Evaluate, CountsOriginsWithoutAForecastAndGoesOnWithTheOthers) {
    // Level for the first origins.
    auto closes = WalkingCloses(200, 6);
    std::fill(closes.begin(), closes.begin() + 122, 1000.0);
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(closes), SmallRequest());
    ModelReport const& fit = evaluation.Models.at(0);
    ModelReport const& search = evaluation.Models.at(1);
    EXPECT_EQ(fit.Faults.at("Division by zero"), 5); // days 100, 105 .. 120
    EXPECT_EQ(search.Faults.at("The moving average does not change: there is no cycle in it"), 5);
    EXPECT_EQ(search.Of(ForecastKind::Window).ForecastCount, static_cast<int>(evaluation.Origins.size()) - 5);
}

TEST(Evaluate, ReportsTheSurrogatesOfItsSearches) {
    EvaluationRequest request = SmallRequest();
    request.SurrogateCount = 12;
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(WalkingCloses(130, 7)), request);
    EXPECT_EQ(evaluation.SurrogateCount, 12);
    ASSERT_EQ(evaluation.Surrogates.size(), 2U);
    EXPECT_EQ(evaluation.Surrogates[0].CycleCount, 1);
    EXPECT_EQ(evaluation.Surrogates[1].CycleCount, 2);
    EXPECT_GE(evaluation.Surrogates[1].Correlation, evaluation.Surrogates[0].Correlation);
    auto const searched = [&](std::vector<double> const& closes) {
        auto const curves = std::make_unique<cycles::CycleCurves>();
        cycles::ComputeMovingAverage(*SeriesOfCloses(closes), 5, curves->MovingAverageCurve);
        search::SearchRequest quick;
        quick.CycleCount = 2;
        quick.HowHard = search::Effort::Quick;
        return search::SearchMovingAverage(*curves, 130, quick, [] { return true; }).Models;
    };
    auto const closes = WalkingCloses(130, 7);
    auto const models = searched(closes);
    std::array<int, 2> asWell{};
    for (std::uint64_t number = 1; number <= 12; ++number) {
        auto const ofSurrogate = searched(SurrogateMaker(closes).Make(number));
        for (std::size_t index = 0; index < 2; ++index) {
            asWell.at(index) += ofSurrogate.at(index).Correlation >= models.at(index).Correlation ? 1 : 0;
        }
    }
    for (std::size_t index = 0; index < 2; ++index) {
        EXPECT_EQ(evaluation.Surrogates[index].Correlation, models.at(index).Correlation);
        EXPECT_EQ(evaluation.Surrogates[index].AsWell, asWell.at(index));
    }
    EXPECT_GT(asWell[0] + asWell[1], 0); // so that something was counted
    EXPECT_LT(asWell[0] + asWell[1], 24);
}

TEST(Evaluate, SurrogatesThatDifferByRoundingAloneCorrelateAsWell) {
    // A line has no changes to be given other phases.
    std::vector<double> closes;
    for (int day = 0; day < 130; ++day) {
        closes.push_back(100 + day * 0.1);
    }
    EvaluationRequest request = SmallRequest();
    request.SurrogateCount = 20;
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(closes), request);
    ASSERT_EQ(evaluation.Surrogates.size(), 2U);
    EXPECT_EQ(evaluation.Surrogates[0].AsWell, 20);
    EXPECT_EQ(evaluation.Surrogates[1].AsWell, 20);
}

TEST(Evaluate, WithoutSurrogatesOrSearchesThereIsNoReportOfThem) {
    auto const series = SeriesOfCloses(CyclicCloses(130, 8));
    EXPECT_TRUE(EvaluationOf(*series, SmallRequest()).Surrogates.empty());
    EvaluationRequest request = SmallRequest();
    request.Models = {{Method::Automate, 1}};
    request.SurrogateCount = 5;
    Evaluation const evaluation = EvaluationOf(*series, request);
    EXPECT_TRUE(evaluation.Surrogates.empty());
    EXPECT_EQ(evaluation.SurrogateCount, 0);
}

TEST(Evaluate, RefusesTooFewDays) {
    auto const outcome = Evaluate(*SeriesOfCloses(WalkingCloses(124, 9)), SmallRequest(), GoToTheEnd);
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal, "Forecasts are tested on 125 days at least; there are 124");
}

TEST(Evaluate, TestsNothingOnOneOrigin) {
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(WalkingCloses(125, 10)), SmallRequest());
    EXPECT_EQ(evaluation.Origins.size(), 1U);
    for (ModelReport const& model : evaluation.Models) {
        EXPECT_EQ(model.Verdict, "not tested: 1 forecast is too few");
        EXPECT_FALSE(model.Of(ForecastKind::Window).ByHorizon.at(0).Intervals.ErrorRatio);
    }
}

TEST(Evaluate, SaysThatNothingWasTestedWhereTheCloseStandsStill) {
    auto closes = WalkingCloses(400, 15);
    std::fill(closes.begin() + 195, closes.end(), closes[195]);
    Evaluation const evaluation = EvaluationOf(*SeriesOfCloses(closes), SmallRequest());
    for (ModelReport const& model : evaluation.Models) {
        EXPECT_EQ(model.Verdict, "not tested: the close did not move on the days tested");
    }
}

TEST(Evaluate, RefusesConstantCloses) {
    auto const outcome = Evaluate(*SeriesOfCloses(std::vector<double>(200, 7)), SmallRequest(), GoToTheEnd);
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal, "The closes do not change: there is nothing to forecast");
}

TEST(Evaluate, RefusesPricesWhoseSquaresLeaveTheRange) {
    auto const series = SeriesOfCloses(WalkingCloses(200, 13));
    series->Working[17].High = 2e100;
    auto const outcome = Evaluate(*series, SmallRequest(), GoToTheEnd);
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal, "The prices are too large to be tested");
}

TEST(Evaluate, RefusesAMovingAverageLongerThanTheDaysBeforeTheFirstForecast) {
    auto const series = SeriesOfCloses(WalkingCloses(200, 11));
    EvaluationRequest request = SmallRequest();
    request.MovingAverageLength = 103;
    auto const outcome = Evaluate(*series, request, GoToTheEnd);
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal,
              "A moving average of 103 days does not fit into the 100 days before the first forecast");
    request.MovingAverageLength = 101;
    EXPECT_TRUE(Evaluate(*series, request, GoToTheEnd).Result);
}

TEST(Evaluate, TellsItsProgressAndEndsWhenTheWatchSaysSo) {
    auto const series = SeriesOfCloses(WalkingCloses(500, 12));
    EvaluationRequest request;
    request.MovingAverageLength = 5;
    request.Jobs = 2;
    auto const start = std::chrono::steady_clock::now();
    auto const outcome = Evaluate(*series, request, [](double share) {
        EXPECT_GE(share, 0);
        EXPECT_LE(share, 1);
        return false;
    });
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal, "");
    // Five times what Cancel may take, for a busy machine.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(Evaluate, EndsWhileItJudgesWhenTheWatchSaysSo) {
    EvaluationRequest request = SmallRequest();
    request.Models = {{Method::Automate, 1}};
    request.Every = 1;
    request.SampleCount = 10'000'000; // hours
    int told = 0;
    std::chrono::steady_clock::time_point asked;
    auto const outcome = Evaluate(*SeriesOfCloses(WalkingCloses(300, 14)), request, [&](double share) {
        asked = std::chrono::steady_clock::now();
        told += share == 1 ? 1 : 0;
        return told < 3; // the first is the end of the forecasts
    });
    EXPECT_FALSE(outcome.Result);
    EXPECT_EQ(outcome.Refusal, "");
    EXPECT_LT(std::chrono::steady_clock::now() - asked, std::chrono::seconds(1));
}

} // namespace
} // namespace quorvex::evaluation
