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
    EXPECT_EQ(ModelName({Method::Search, 5}), "Quick search of 5 cycles");
    EXPECT_EQ(ModelName({Method::Parameters, 0}), "Parameters (fixed cycles)");
    EXPECT_EQ(StandardModels(false).size(), 7U);
    EXPECT_EQ(StandardModels(true).back(), (Model{Method::Parameters, 0}));
}

TEST(Verdicts, SayWhereAModelIsBetter) {
    Evaluation const evaluation = SmallEvaluation();
    auto const verdict = [&evaluation](ModelReport const& model) { return VerdictOf(model, evaluation); };
    EXPECT_EQ(verdict(Tested({})), "no better than the last close");
    EXPECT_EQ(verdict(Tested({0})), "better than the last close: window at 1 day");
    EXPECT_EQ(verdict(Tested({0, 1})), "better than the last close: window at 1 and 5 days");
    EXPECT_EQ(verdict(Tested({1, 2, 3})), "better than the last close: window at 5, 10 and 25 days");
    EXPECT_EQ(verdict(Tested({2}, {3})),
              "better than the last close: window at 10 days and scaled at 25 days");
}

TEST(Verdicts, SayThatFixedCyclesMayHaveSeenTheDays) {
    Evaluation evaluation = SmallEvaluation();
    ModelReport fixed = Tested({0}, {2});
    fixed.Model = {Method::Parameters, 0};
    EXPECT_EQ(VerdictOf(fixed, evaluation),
              "better than the last close: window at 1 day and scaled at 10 days, if its cycles were chosen "
              "before 01/02/03; otherwise they have seen these days");
    ModelReport useless = Tested({});
    useless.Model = fixed.Model;
    EXPECT_EQ(VerdictOf(useless, evaluation), "no better than the last close");
    EXPECT_EQ(ConditionOfFixedCycles(evaluation), "");
    evaluation.Models.push_back(useless);
    EXPECT_EQ(ConditionOfFixedCycles(evaluation), "; fixed cycles only if chosen before 01/02/03");
}

TEST(Verdicts, SayWhatTheDriftWouldHaveDoneAsWell) {
    Evaluation evaluation = SmallEvaluation();
    ModelReport model = Tested({1, 2}, {2});
    for (KindReport& kind : model.ByKind) {
        for (HorizonReport& report : kind.ByHorizon) {
            report.Figures.ErrorRatio = 0.7;
        }
    }
    auto const setDrift = [&evaluation](double five, double ten) {
        evaluation.Drift.at(1).Figures.ErrorRatio = five;
        evaluation.Drift.at(2).Figures.ErrorRatio = ten;
    };
    std::string const better = "better than the last close: window at 5 and 10 days and scaled at 10 days";
    setDrift(0.71, 0.71);
    EXPECT_EQ(VerdictOf(model, evaluation), better);
    setDrift(0.7, 0.6);
    EXPECT_EQ(VerdictOf(model, evaluation), better + ", but no better than the drift");
    setDrift(0.8, 0.6);
    EXPECT_EQ(VerdictOf(model, evaluation),
              better + ", but no better than the drift: window at 10 days and scaled at 10 days");
    model.Model = {Method::Parameters, 0};
    setDrift(0.7, 0.6);
    EXPECT_EQ(VerdictOf(model, evaluation),
              better + ", but no better than the drift, if its cycles were chosen before 01/02/03; otherwise "
                       "they have seen these days");
}

TEST(Verdicts, SayWhyAModelWasNotTested) {
    Evaluation const evaluation = SmallEvaluation();
    ModelReport model;
    model.Faults = {{"Division by zero", 1}, {"Overflow", 3}};
    EXPECT_EQ(VerdictOf(model, evaluation),
              "no forecasts: Division by zero at 1 origin and Overflow at 3 origins");
    model.ByKind.at(1).ForecastCount = 20;
    EXPECT_EQ(VerdictOf(model, evaluation), "not tested: the close did not move on the days tested");
    model.ByKind.at(1).ByHorizon.at(3).Figures.ErrorRatio = 1.5;
    EXPECT_EQ(VerdictOf(model, evaluation), "not tested: 20 forecasts are too few where they overlap");
    model.ByKind.at(1).ForecastCount = 1;
    EXPECT_EQ(VerdictOf(model, evaluation), "not tested: 1 forecast is too few");
    model.ByKind.at(1).ForecastCount = 9;
    EXPECT_EQ(VerdictOf(model, evaluation), "not tested: 9 forecasts are too few");
}

TEST(Verdicts, SayFirstWhichModelsAreBetter) {
    ModelReport untested;
    untested.Faults = {{"Overflow", 3}};
    Evaluation evaluation = SmallEvaluation();
    evaluation.Models = {Tested({}), Tested({})};
    EXPECT_EQ(VerdictOf(evaluation), "None of the 2 models forecasts better than the last close.");
    evaluation.Models.push_back(untested);
    EXPECT_EQ(VerdictOf(evaluation),
              "None of the 2 models that could be tested forecasts better than the last close.");
    evaluation.Models[0] = Tested({2});
    EXPECT_EQ(VerdictOf(evaluation),
              "1 of 3 models forecasts better than the last close: Quick search of 3 cycles.");
    evaluation.Models[1] = Tested({}, {0});
    evaluation.Models[1].Model = {Method::Automate, 1};
    EXPECT_EQ(
        VerdictOf(evaluation),
        "2 of 3 models forecast better than the last close: Quick search of 3 cycles and Fit of 1 cycle.");
    evaluation.Models = {untested};
    EXPECT_EQ(VerdictOf(evaluation),
              "There are too few forecasts to tell whether any model is better than the last close.");
    EXPECT_FALSE(HasSkill(Tested({})));
    EXPECT_TRUE(HasSkill(Tested({}, {3})));
}

TEST(Verdicts, SayApartThatFixedCyclesLookBetter) {
    Evaluation evaluation = SmallEvaluation();
    evaluation.Models = {Tested({}), Tested({})};
    evaluation.Models[1].Model = {Method::Parameters, 0};
    EXPECT_EQ(VerdictOf(evaluation), "None of the 2 models forecasts better than the last close.");
    evaluation.Models[1] = Tested({}, {3});
    evaluation.Models[1].Model = {Method::Parameters, 0};
    EXPECT_EQ(VerdictOf(evaluation),
              "The model forecasts no better than the last close. The fixed cycles look better, which counts "
              "only if they were chosen before 01/02/03.");
}

TEST(Verdicts, DescribeTheTest) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_EQ(
        DescribeTest(evaluation),
        "Forecasts from 2 days, every 5 days from 01/02/03 to 01/06/03, each made of nothing but the days "
        "up to it. Errors are ratios to those of the last close: below 1 is better.");
    evaluation.Every = 1;
    EXPECT_TRUE(
        DescribeTest(evaluation).starts_with("Forecasts from 2 days, every day from 01/02/03 to 01/06/03, "));
    evaluation.Models.push_back({{Method::Parameters, 0}, {}, {}, {}});
    evaluation.Origins.pop_back();
    EXPECT_EQ(DescribeTest(evaluation),
              "Forecasts from one day, 01/02/03, made of nothing but the days up to it, except that fixed "
              "cycles may have been chosen later. Errors are ratios to those of the last close: below 1 is "
              "better.");
}

TEST(Verdicts, ExplainTheTableInThreeLines) {
    Evaluation evaluation = SmallEvaluation();
    auto const key = TableKey(evaluation);
    ASSERT_EQ(key.size(), 3U);
    for (ForecastKind const kind : ForecastKinds) {
        EXPECT_NE(key[0].find(std::string(KindName(kind)) + ": "), std::string::npos);
    }
    EXPECT_TRUE(key[1].starts_with("[ ]: 95% interval; p: "));
    EXPECT_EQ(key[2],
              "*: better than the last close, p below 0.05 and interval below 1; -: does not exist, or "
              "not tested");
    evaluation.Models.push_back({{Method::Parameters, 0}, {}, {}, {}});
    EXPECT_EQ(TableKey(evaluation)[2],
              "*: better than the last close, p below 0.05 and interval below 1; fixed cycles only if chosen "
              "before 01/02/03; -: does not exist, or not tested");
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
    EXPECT_EQ(row.Model, "Quick search of 3 cycles");
    EXPECT_EQ(row.Kind, "composite");
    EXPECT_EQ(row.Days, "10");
    EXPECT_EQ(row.Error, "0.71 [0.60, 0.90]");
    EXPECT_EQ(row.Right, "63% [50%, 75%]");
    EXPECT_EQ(row.Correlation, "-0.30");
    EXPECT_EQ(row.Chance, "0.012 *");
    EXPECT_EQ(rows[4 + 4 + 3].Chance, "<0.001");
    EXPECT_TRUE(row.IsBetter);
    EXPECT_FALSE(rows[4 + 4 + 3].IsBetter);
    EXPECT_EQ(TableHead().Right, "Right direction");
}

TEST(Verdicts, TellOfSurrogates) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_TRUE(SurrogateLines(evaluation).empty());
    evaluation.SurrogateCount = 200;
    evaluation.Surrogates = {{1, 0.8349, 53}, {3, 0.9, 1}, {5, 0.95, 0}};
    auto const lines = SurrogateLines(evaluation);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0],
              "Quick search of 1 cycle: 83.5%, p = 0.265 (53 of 200 surrogates correlate at least as well)");
    EXPECT_EQ(lines[1],
              "Quick search of 3 cycles: 90.0%, p = 0.005 (1 of 200 surrogates correlates at least as well)");
    EXPECT_EQ(lines[2],
              "Quick search of 5 cycles: 95.0%, p < 0.005 (0 of 200 surrogates correlate at least as well)");
    EXPECT_NE(lines[3].find("p tests the phases, not whether there are cycles"), std::string::npos);
}

TEST(Verdicts, TellOfOriginsWithoutAForecast) {
    Evaluation evaluation = SmallEvaluation();
    EXPECT_TRUE(FaultLines(evaluation).empty());
    evaluation.Models.front().Faults = {{"Overflow", 2}};
    EXPECT_EQ(FaultLines(evaluation),
              std::vector<std::string>{"Quick search of 3 cycles: no forecast, Overflow at 2 origins"});
}

} // namespace
} // namespace quorvex::evaluation
