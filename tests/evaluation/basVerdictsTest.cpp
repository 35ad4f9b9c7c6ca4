// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basVerdicts.h"

#include <gtest/gtest.h>

namespace quorvex::evaluation {
namespace {

// A model whose forecasts were tested, and which is better at these horizons.
ModelReport Tested(std::vector<int> const& window, std::vector<int> const& scaled = {}) {
    ModelReport model;
    model.Model = {Method::Search, 3};
    for (KindReport& kind : model.ByKind) {
        kind.ForecastCount = 40;
        for (HorizonReport& report : kind.ByHorizon) {
            report.Chance = 1;
        }
    }
    auto const improve = [&model](ForecastKind kind, std::vector<int> const& horizons) {
        for (int const horizon : horizons) {
            model.ByKind.at(static_cast<std::size_t>(kind))
                .ByHorizon.at(static_cast<std::size_t>(horizon))
                .IsBetter = true;
        }
    };
    improve(ForecastKind::Window, window);
    improve(ForecastKind::Scaled, scaled);
    return model;
}

Evaluation SmallEvaluation() {
    Evaluation evaluation;
    evaluation.Dates = {"01/02/03", "01/03/03", "01/06/03"};
    evaluation.Every = 5;
    evaluation.Origins = {{1, {}}, {3, {}}};
    evaluation.Models = {Tested({})};
    return evaluation;
}

TEST(Verdicts, NameTheModels) {
    EXPECT_EQ(ModelName({Method::Automate, 1}), "Fit of 1 cycle");
    EXPECT_EQ(ModelName({Method::Automate, 3}), "Fit of 3 cycles");
    EXPECT_EQ(ModelName({Method::Search, 5}), "Search of 5 cycles");
    EXPECT_EQ(ModelName({Method::Parameters, 0}), "Parameter file");
    EXPECT_EQ(StandardModels(false).size(), 7U);
    EXPECT_EQ(StandardModels(true).back(), (Model{Method::Parameters, 0}));
}

TEST(Verdicts, SayWhereAModelIsBetter) {
    EXPECT_EQ(VerdictOf(Tested({})), "no better than the last close");
    EXPECT_EQ(VerdictOf(Tested({0})), "better than the last close: window at 1 day");
    EXPECT_EQ(VerdictOf(Tested({0, 1})), "better than the last close: window at 1 and 5 days");
    EXPECT_EQ(VerdictOf(Tested({1, 2, 3})), "better than the last close: window at 5, 10 and 25 days");
    EXPECT_EQ(VerdictOf(Tested({2}, {3})),
              "better than the last close: window at 10 days and scaled at 25 days");
}

TEST(Verdicts, SayWhyAModelWasNotTested) {
    ModelReport model;
    model.Faults = {{"Division by zero", 1}, {"Overflow", 3}};
    EXPECT_EQ(VerdictOf(model), "no forecasts: Division by zero at 1 origin and Overflow at 3 origins");
    model.ByKind.at(1).ForecastCount = 1;
    EXPECT_EQ(VerdictOf(model), "not tested: 1 forecast is too few");
    model.ByKind.at(1).ForecastCount = 9;
    EXPECT_EQ(VerdictOf(model), "not tested: 9 forecasts are too few");
}

TEST(Verdicts, DescribeTheTest) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_EQ(
        DescribeTest(evaluation),
        "Forecasts from 2 days, every 5 days from 01/02/03 to 01/06/03, each made of nothing but the days "
        "up to it. Errors are ratios to those of the last close: below 1 is better.");
    evaluation.Every = 1;
    evaluation.Origins.pop_back();
    EXPECT_TRUE(
        DescribeTest(evaluation).starts_with("Forecasts from 1 day, every day from 01/02/03 to 01/02/03, "));
}

TEST(Verdicts, SpellTheTable) {
    Evaluation evaluation = SmallEvaluation();
    HorizonReport& report = evaluation.Models.front().ByKind.at(1).ByHorizon.at(2);
    report.Figures = {0.7149, 0.625, -0.304};
    report.Intervals = {Interval{0.6, 0.899}, Interval{0.5, 0.75}, std::nullopt};
    report.Chance = 0.0123;
    report.IsBetter = true;
    evaluation.Models.front().ByKind.at(1).ByHorizon.at(3).Chance = 0.0001;
    auto const rows = TableRows(evaluation);
    ASSERT_EQ(rows.size(), 4U + 3 * 4);
    EXPECT_EQ(rows[0].Model, "Drift");
    EXPECT_EQ(rows[0].Kind, "-");
    EXPECT_EQ(rows[0].Error, "-");
    EXPECT_EQ(rows[0].Chance, "-");
    TableRow const& row = rows[4 + 4 + 2];
    EXPECT_EQ(row.Model, "Search of 3 cycles");
    EXPECT_EQ(row.Kind, "composite");
    EXPECT_EQ(row.Days, "10");
    EXPECT_EQ(row.Error, "0.71 [0.60, 0.90]");
    EXPECT_EQ(row.Right, "63% [50%, 75%]");
    EXPECT_EQ(row.Correlation, "-0.30");
    EXPECT_EQ(row.Chance, "0.012 *");
    EXPECT_EQ(rows[4 + 4 + 3].Chance, "<0.001");
    EXPECT_EQ(TableHead().Right, "Right direction");
}

TEST(Verdicts, TellOfSurrogates) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_TRUE(SurrogateLines(evaluation).empty());
    evaluation.SurrogateCount = 200;
    evaluation.Surrogates = {{1, 0.8349, 53}, {5, 0.9, 1}};
    EXPECT_EQ(SurrogateLines(evaluation),
              (std::vector<std::string>{
                  "Search of 1 cycle: 83.5%, p = 0.265 (53 of 200 surrogates correlate at least as well)",
                  "Search of 5 cycles: 90.0%, p = 0.005 (1 of 200 surrogates correlates at least as well)"}));
}

TEST(Verdicts, TellOfOriginsWithoutAForecast) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_TRUE(FaultLines(evaluation).empty());
    evaluation.Models.front().Faults = {{"Overflow", 2}};
    EXPECT_EQ(FaultLines(evaluation),
              std::vector<std::string>{"Search of 3 cycles: no forecast, Overflow at 2 origins"});
}

} // namespace
} // namespace quorvex::evaluation
