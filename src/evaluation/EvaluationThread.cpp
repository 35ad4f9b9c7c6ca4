// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/EvaluationThread.h"

#include <utility>

namespace quorvex::evaluation {

EvaluationThread::EvaluationThread(Report report, EvaluationRoutine routine)
    : report_(std::move(report)),
      routine_(std::move(routine)) {}

int EvaluationThread::Start(quotes::QuoteSeries const& series, EvaluationRequest const& request) {
    auto const task = std::make_shared<Task>();
    task->Series = series;
    task->Request = request;
    if (request.Parameters != nullptr) {
        task->Parameters = *request.Parameters;
        task->Request.Parameters = &task->Parameters;
    }
    return thread_.Start([this, task](int number, search::GoOn const& goOn) { Run(number, *task, goOn); });
}

void EvaluationThread::Run(int number, Task const& task, search::GoOn const& goOn) const {
    EvaluationNews end;
    end.Number = number;
    end.IsOver = true;
    try {
        EvaluationOutcome outcome = routine_(task.Series, task.Request, [&](double share) {
            EvaluationNews news;
            news.Number = number;
            news.Share = share;
            report_(news);
            return goOn();
        });
        end.Refusal = std::move(outcome.Refusal);
        if (outcome.Result) {
            end.Result = std::make_shared<Evaluation const>(*std::move(outcome.Result));
        }
    } catch (...) {
        end.Fault = std::current_exception();
    }
    report_(end);
}

} // namespace quorvex::evaluation
