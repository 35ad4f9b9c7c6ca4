// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "random/Watchdog.h"

#include <string>

namespace quorvex::tests {

Watchdog::Watchdog(Journal& journal, std::chrono::seconds patience)
    : journal_(journal),
      patience_(patience),
      thread_([this] { Watch(); }) {}

Watchdog::~Watchdog() {
    {
        std::lock_guard const lock(mutex_);
        isEnding_ = true;
    }
    ending_.notify_one();
    thread_.join();
}

void Watchdog::Watch() {
    using Clock = std::chrono::steady_clock;
    int step = journal_.Steps();
    Clock::time_point since = Clock::now();
    std::unique_lock lock(mutex_);
    while (!ending_.wait_for(lock, std::chrono::seconds(1), [this] { return isEnding_; })) {
        if (journal_.Steps() != step) {
            step = journal_.Steps();
            since = Clock::now();
        } else if (Clock::now() - since > patience_) {
            journal_.Abort("An action took more than " + std::to_string(patience_.count()) + " seconds");
        }
    }
}

} // namespace quorvex::tests
