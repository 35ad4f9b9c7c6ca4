// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "random/Journal.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace quorvex::tests {

// Aborts the run when no new action begins for longer than the patience: the last one hangs.
class Watchdog {
public:
    Watchdog(Journal& journal, std::chrono::seconds patience);
    Watchdog(Watchdog const&) = delete;
    Watchdog& operator=(Watchdog const&) = delete;
    ~Watchdog();

private:
    void Watch();

    Journal& journal_;
    std::chrono::seconds patience_;
    std::mutex mutex_;
    std::condition_variable ending_;
    bool isEnding_ = false;
    std::thread thread_; // the last member: it uses the others
};

} // namespace quorvex::tests
