// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cycles/CycleParameterSet.h"
#include "evaluation/basEvaluation.h"
#include "quotes/QuoteSeries.h"
#include "search/TaskThread.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>

namespace quorvex::evaluation {

// How forecasts are tested: Evaluate, but for tests.
using EvaluationRoutine =
    std::function<EvaluationOutcome(quotes::QuoteSeries const&, EvaluationRequest const&, Watch const&)>;

// What comes from a test while it runs and at its end.
struct EvaluationNews {
    int Number = 0;                           // of the test
    double Share = 0;                         // of 1 that is done
    bool IsOver = false;                      // the last news of this test
    std::shared_ptr<Evaluation const> Result; // as in EvaluationOutcome, at the end, like the next
    std::string Refusal;
    std::exception_ptr Fault; // what ended it otherwise
};

// Tests forecasts on a thread of its own: one test at a time, the latest that was asked for. It works on
// copies.
class EvaluationThread {
public:
    using Report = std::function<void(EvaluationNews const&)>;

    // The report is called on that thread and must not throw. Tests that were ended report until they
    // notice, under the number that they had.
    explicit EvaluationThread(Report report, EvaluationRoutine routine = Evaluate);

    // Ends the test under way and starts this one. Returns its number, which no other test has.
    int Start(quotes::QuoteSeries const& series, EvaluationRequest const& request);

    // Ends the test under way, without waiting for it.
    void Stop() { thread_.Stop(); }

private:
    struct Task {
        quotes::QuoteSeries Series;
        EvaluationRequest Request;
        cycles::CycleParameterSet Parameters; // when the request has any
    };

    void Run(int number, Task const& task, search::GoOn const& goOn) const;

    Report report_;
    EvaluationRoutine routine_;
    search::TaskThread thread_; // the last member: it uses the others, and its end is waited for
};

} // namespace quorvex::evaluation
