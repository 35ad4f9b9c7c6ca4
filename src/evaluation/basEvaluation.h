// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Tests forecasts by walking forward: at each of many days they are made of nothing but the days up to it,
// and compared with what came.
#pragma once

#include "cycles/CycleParameterSet.h"
#include "evaluation/Evaluation.h"
#include "evaluation/Models.h"
#include "evaluation/basPieces.h"
#include "quotes/QuoteSeries.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvex::evaluation {

inline constexpr int DefaultEvery = 5;
inline constexpr int DefaultSurrogates = 200;

struct EvaluationRequest {
    std::vector<Model> Models = StandardModels(false);
    std::int16_t MovingAverageLength = 0;
    cycles::CycleParameterSet const* Parameters = nullptr; // needed by the model of that method
    int Every = DefaultEvery;                              // origins, in days
    int SampleCount = 2000;                                // of the bootstrap
    int SurrogateCount = DefaultSurrogates;                // 0 for none
    int Jobs = 1;                                          // threads; the result does not depend on them
};

struct EvaluationOutcome {
    std::optional<Evaluation> Result; // none after a refusal, and when the watch ended it
    std::string Refusal;              // a sentence for the user without full stop
};

// Tests the working days.
[[nodiscard]] EvaluationOutcome Evaluate(quotes::QuoteSeries const& series, EvaluationRequest const& request,
                                         Watch const& watch);

// Makes figures, intervals and verdicts of the origins' forecasts, which are those of the models. Once the
// callback says no it ends in any state.
void Judge(Evaluation& evaluation, search::GoOn const& goOn);

} // namespace quorvex::evaluation
