// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What a test found, in words.
#pragma once

#include "evaluation/Evaluation.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quorvex::evaluation {

// Whether any forecast of the model is better than the last close, beyond chance.
[[nodiscard]] bool HasSkill(ModelReport const& model);

// Whether the model, one of the test, is better than the last close, and where; a sentence without its
// subject and full stop. Of fixed cycles it names the condition, and of what is not below the drift it says
// so.
[[nodiscard]] std::string VerdictOf(ModelReport const& model, Evaluation const& evaluation);

// The condition under which fixed cycles are better than the last close where they seem so, to be put behind
// what says that; empty without such cycles.
[[nodiscard]] std::string ConditionOfFixedCycles(Evaluation const& evaluation);

// Which of the models are better, as whole sentences: what a trader wants to know first. Fixed cycles are
// told of apart when they seem so.
[[nodiscard]] std::string VerdictOf(Evaluation const& evaluation);

// What was tested, on which days, as whole sentences.
[[nodiscard]] std::string DescribeTest(Evaluation const& evaluation);

// One row of the table: model, kind, days ahead, error ratio, right directions, correlation and chance. A
// figure has its interval behind it; what does not exist is "-".
struct TableRow {
    std::string Model;
    std::string Kind;
    std::string Days;
    std::string Error;
    std::string Right;
    std::string Correlation;
    std::string Chance;
    bool IsBetter = false; // than the last close, beyond chance
};

// In order. The days stand at the right of their column.
inline constexpr std::array<std::string TableRow::*, 7> TableColumns = {
    &TableRow::Model, &TableRow::Kind,        &TableRow::Days,  &TableRow::Error,
    &TableRow::Right, &TableRow::Correlation, &TableRow::Chance};

[[nodiscard]] TableRow TableHead();

// The drift first, then each model and kind, four rows each.
[[nodiscard]] std::vector<TableRow> TableRows(Evaluation const& evaluation);

// What the columns and signs of the table mean, in three lines.
[[nodiscard]] std::vector<std::string> TableKey(Evaluation const& evaluation);

// One line for each search: its correlation and how many surrogates correlate as well. A line on what that
// tells follows.
[[nodiscard]] std::vector<std::string> SurrogateLines(Evaluation const& evaluation);

// One line for each model that has no forecast at some origins, and why.
[[nodiscard]] std::vector<std::string> FaultLines(Evaluation const& evaluation);

} // namespace quorvex::evaluation
