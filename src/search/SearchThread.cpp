// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/SearchThread.h"

#include <utility>

namespace quorvex::search {

SearchThread::SearchThread(Report report, SearchRoutine routine)
    : report_(std::move(report)),
      routine_(std::move(routine)) {}

int SearchThread::Start(std::vector<double> series, SearchRequest const& request) {
    return thread_.Start([this, series = std::move(series), request](int number, GoOn const& goOn) {
        Run(number, series, request, goOn);
    });
}

void SearchThread::Run(int number, std::span<double const> series, SearchRequest const& request,
                       GoOn const& goOn) const {
    SearchNews end{.Number = number, .Found = {}, .IsOver = true, .Refusal = {}, .Fault = {}};
    try {
        auto const take = [&](CycleModel const& model) {
            report_({.Number = number, .Found = model, .IsOver = false, .Refusal = {}, .Fault = {}});
        };
        end.Refusal = routine_(series, request, goOn, take).Refusal;
    } catch (...) {
        end.Fault = std::current_exception();
    }
    report_(end);
}

} // namespace quorvex::search
