// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "search/GoOn.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace quorvex::search {

// Works on a thread of its own, so that nobody waits: one task at a time, the latest that was asked for.
class TaskThread {
public:
    // Is told its number. It must not throw, and end soon once the callback says no.
    using Task = std::function<void(int, GoOn const&)>;

    TaskThread();

    TaskThread(TaskThread const&) = delete;
    TaskThread& operator=(TaskThread const&) = delete;

    // Waits for the task under way, which it ends.
    ~TaskThread();

    // Ends the task under way and starts this one. Returns its number, which no other task has.
    int Start(Task task);

    // Ends the task under way, without waiting for it.
    void Stop();

private:
    struct NumberedTask {
        int Number = 0;
        Task Run;
    };

    void Work();
    [[nodiscard]] std::optional<NumberedTask> NextTask();

    std::atomic<int> number_ = 0; // of the task that is wanted; another one goes on no longer
    std::mutex mutex_;            // guards the next two
    std::optional<NumberedTask> next_;
    bool isClosed_ = false;
    std::condition_variable wanted_;
    std::thread thread_; // the last member: it uses the others
};

} // namespace quorvex::search
