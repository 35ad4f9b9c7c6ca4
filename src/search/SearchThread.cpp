// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/SearchThread.h"

#include <utility>

namespace quorvex::search {

SearchThread::SearchThread(Report report, SearchRoutine routine)
    : report_(std::move(report)),
      routine_(std::move(routine)),
      thread_([this] { Work(); }) {}

SearchThread::~SearchThread() {
    Stop();
    {
        std::scoped_lock const lock(mutex_);
        isClosed_ = true;
    }
    wanted_.notify_one();
    thread_.join();
}

int SearchThread::Start(std::vector<double> series, SearchRequest const& request) {
    int const number = ++number_;
    {
        std::scoped_lock const lock(mutex_);
        next_ = Task{number, std::move(series), request};
    }
    wanted_.notify_one();
    return number;
}

void SearchThread::Stop() {
    ++number_;
    std::scoped_lock const lock(mutex_);
    next_.reset();
}

void SearchThread::Work() {
    while (auto const task = NextTask()) {
        Run(*task);
    }
}

std::optional<SearchThread::Task> SearchThread::NextTask() {
    std::unique_lock lock(mutex_);
    wanted_.wait(lock, [this] { return next_.has_value() || isClosed_; });
    return isClosed_ ? std::nullopt : std::exchange(next_, std::nullopt);
}

void SearchThread::Run(Task const& task) const {
    SearchNews end{.Number = task.Number, .Found = {}, .IsOver = true, .Refusal = {}, .Fault = {}};
    try {
        auto const goOn = [&] { return number_ == task.Number; };
        auto const take = [&](CycleModel const& model) {
            report_({.Number = task.Number, .Found = model, .IsOver = false, .Refusal = {}, .Fault = {}});
        };
        end.Refusal = routine_(task.Series, task.Request, goOn, take).Refusal;
    } catch (...) {
        end.Fault = std::current_exception();
    }
    report_(end);
}

} // namespace quorvex::search
