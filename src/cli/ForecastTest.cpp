// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/ForecastTest.h"

#include "cli/WholeNumber.h"
#include "cycles/basCurves.h"
#include "platform/basMessages.h"

#include <string>
#include <utility>

namespace quorvex::cli {

std::vector<CLI::Option*> AddTestOptions(CLI::App& command, TestOptions& options) {
    constexpr int LargestEvery = 400;
    constexpr int MostSurrogates = 10'000;
    auto* const every =
        command
            .add_option("--every", options.Every,
                        "Days from one forecast to the next [" + std::to_string(evaluation::DefaultEvery) +
                            "], all at one phase of a cycle of so many days: compare with 4 or 6")
            ->type_name("N")
            ->transform(WholeNumberBetween(1, LargestEvery));
    auto* const surrogates = command
                                 .add_option("--surrogates", options.Surrogates,
                                             "Series in other phases to compare correlations with [" +
                                                 std::to_string(evaluation::DefaultSurrogates) +
                                                 "]; more tell smaller p, fewer take less time")
                                 ->type_name("N")
                                 ->transform(WholeNumberBetween(1, MostSurrogates));
    return {every, surrogates};
}

std::optional<evaluation::Evaluation> TestForecasts(app::Program const& program, bool hasParameters,
                                                    TestOptions const& options, platform::Dialogs& dialogs,
                                                    evaluation::Watch const& watch) {
    evaluation::EvaluationRequest request;
    request.Models = evaluation::StandardModels(hasParameters);
    request.Parameters = hasParameters ? &program.Cycles : nullptr;
    request.Every = options.Every;
    request.SurrogateCount = options.Surrogates;
    request.Jobs = options.Jobs;
    evaluation::EvaluationOutcome outcome;
    platform::RunReported(dialogs, [&] {
        request.MovingAverageLength = cycles::MovingAverageLength(program.Settings.MovingAverageIndex);
        outcome = evaluation::Evaluate(program.Quotes, request, watch);
    });
    if (!outcome.Refusal.empty()) {
        platform::ShowWarning(dialogs, outcome.Refusal);
    }
    return std::move(outcome.Result);
}

} // namespace quorvex::cli
