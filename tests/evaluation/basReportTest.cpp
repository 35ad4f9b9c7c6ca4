// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basReport.h"

#include "MadeSeries.h"
#include "evaluation/basEvaluation.h"
#include "evaluation/basVerdicts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvex::evaluation {
namespace {

TEST(EvaluationReport, BeginsWithTheVerdictOnAllModels) {
    EvaluationRequest request;
    request.Models = {{Method::Automate, 1}, {Method::Search, 1}};
    request.MovingAverageLength = 5;
    request.SampleCount = 50;
    request.SurrogateCount = 4;
    auto const evaluation =
        Evaluate(*tests::SeriesOfCloses(tests::WalkingCloses(200, 1)), request, [](double) {
            return true;
        }).Result.value();
    std::string const report = EvaluationReport(evaluation);
    EXPECT_TRUE(
        report.starts_with(VerdictOf(evaluation) + "\n\n" + DescribeTest(evaluation) + "\n\nModel  "));
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'),
              4 + 1 + 4 * (1 + 2 * 3) + 5 + 4 + 4); // head, table, key, surrogates, verdicts
    EXPECT_NE(report.find("\n\nKey\n  window: "), std::string::npos);
    EXPECT_NE(report.find("\n\nCorrelation with the moving average of all days\n  Quick search of 1 cycle: "),
              std::string::npos);
    EXPECT_TRUE(report.ends_with("\n\nVerdict\n  Fit of 1 cycle: " + evaluation.Models[0].Verdict +
                                 "\n  Quick search of 1 cycle: " + evaluation.Models[1].Verdict + '\n'))
        << report;
}

TEST(EvaluationReport, LeavesOutWhatIsNotThere) {
    Evaluation evaluation;
    evaluation.Models.resize(1);
    EXPECT_TRUE(Notes(evaluation).empty());
    evaluation.Models[0].Faults = {{"Overflow", 2}};
    auto const notes = Notes(evaluation);
    ASSERT_EQ(notes.size(), 1U);
    EXPECT_EQ(notes[0].Head, "Without a forecast");
    EXPECT_EQ(notes[0].Lines, std::vector<std::string>{"Fit of 1 cycle: no forecast, Overflow at 2 origins"});
}

} // namespace
} // namespace quorvex::evaluation
