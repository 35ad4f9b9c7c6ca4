// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "search/TaskThread.h"

#include <utility>

namespace quorvex::search {

TaskThread::TaskThread() : thread_([this] { Work(); }) {}

TaskThread::~TaskThread() {
    Stop();
    {
        std::scoped_lock const lock(mutex_);
        isClosed_ = true;
    }
    wanted_.notify_one();
    thread_.join();
}

int TaskThread::Start(Task task) {
    int const number = ++number_;
    {
        std::scoped_lock const lock(mutex_);
        next_ = NumberedTask{number, std::move(task)};
    }
    wanted_.notify_one();
    return number;
}

void TaskThread::Stop() {
    ++number_;
    std::scoped_lock const lock(mutex_);
    next_.reset();
}

void TaskThread::Work() {
    while (auto const task = NextTask()) {
        task->Run(task->Number, [&] { return number_ == task->Number; });
    }
}

std::optional<TaskThread::NumberedTask> TaskThread::NextTask() {
    std::unique_lock lock(mutex_);
    wanted_.wait(lock, [this] { return next_.has_value() || isClosed_; });
    return isClosed_ ? std::nullopt : std::exchange(next_, std::nullopt);
}

} // namespace quorvex::search
