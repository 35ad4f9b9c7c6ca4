// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basPieces.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace quorvex::evaluation {

namespace {

class Crew {
public:
    Crew(std::size_t count, Piece const& piece) : count_(count), piece_(piece) {}

    Crew(Crew const&) = delete;
    Crew& operator=(Crew const&) = delete;

    ~Crew() {
        isEnded_ = true;
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }

    void Start(std::size_t workers) {
        threads_.reserve(workers);
        for (std::size_t worker = 0; worker < workers; ++worker) {
            threads_.emplace_back([this] { Work(); });
        }
    }

    // Waits for the last piece, or for the watch or a fault to end it.
    [[nodiscard]] bool Wait(Watch const& watch) {
        using namespace std::chrono_literals;
        constexpr auto Pause = 50ms;
        for (;;) {
            std::size_t done = 0;
            {
                std::unique_lock lock(mutex_);
                changed_.wait_for(lock, Pause, [this] { return done_ == count_ || fault_; });
                if (fault_) {
                    std::rethrow_exception(fault_);
                }
                done = done_;
            }
            bool const goesOn = watch(static_cast<double>(done) / static_cast<double>(count_));
            if (done == count_ || !goesOn) {
                return goesOn;
            }
        }
    }

private:
    void Work() {
        search::GoOn const goOn = [this] { return !isEnded_; };
        for (std::size_t number = next_++; number < count_ && goOn(); number = next_++) {
            try {
                piece_(number, goOn);
                std::scoped_lock const lock(mutex_);
                ++done_;
                if (done_ < count_) {
                    continue;
                }
            } catch (...) {
                std::scoped_lock const lock(mutex_);
                fault_ = std::current_exception();
            }
            changed_.notify_all();
        }
    }

    std::size_t count_;
    Piece const& piece_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> isEnded_{false};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t done_ = 0;     // under the mutex
    std::exception_ptr fault_; // under the mutex
    std::vector<std::thread> threads_;
};

} // namespace

int UsualJobs() {
    return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1U, unsigned{MostJobs}));
}

bool DoPieces(std::size_t count, std::size_t workers, Piece const& piece, Watch const& watch) {
    if (count == 0) {
        return true;
    }
    Crew crew(count, piece);
    crew.Start(std::min(workers, count));
    return crew.Wait(watch);
}

} // namespace quorvex::evaluation
