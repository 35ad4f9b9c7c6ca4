// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// How well the searches follow surrogates of the series, compared with the series itself: how much of a fine
// fit anything with such a spectrum would give.
#pragma once

#include "evaluation/Evaluation.h"
#include "evaluation/Surrogates.h"
#include "evaluation/basEvaluation.h"
#include "quotes/QuoteSeries.h"
#include "search/CycleSearch.h"
#include "search/GoOn.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quorvex::evaluation {

// The test as pieces of work, which may be done in any order and at once; the series comes first, then its
// surrogates. There are none when no model is a search or no surrogate is wanted.
class SurrogateTest {
public:
    SurrogateTest(quotes::QuoteSeries const& series, EvaluationRequest const& request);

    [[nodiscard]] std::size_t PieceCount() const { return correlations_.size(); }

    void DoPiece(std::size_t number, search::GoOn const& goOn);

    // REQUIRES: all pieces were done.
    [[nodiscard]] std::vector<SurrogateReport> Report() const;

    [[nodiscard]] int SurrogateCount() const {
        return correlations_.empty() ? 0 : static_cast<int>(correlations_.size()) - 1;
    }

private:
    [[nodiscard]] std::vector<double> Closes(std::size_t number) const;

    std::vector<double> closes_;
    std::int16_t movingAverageLength_;
    std::vector<int> cycleCounts_; // of the searches
    SurrogateMaker maker_;
    // By piece; of the models of 1, 2 .. cycles. Empty where nothing can be found.
    std::vector<std::vector<double>> correlations_;
};

} // namespace quorvex::evaluation
