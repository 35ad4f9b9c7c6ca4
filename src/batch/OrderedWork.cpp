// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/OrderedWork.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace quorvex::batch {

namespace {

class Crew {
public:
    Crew(OrderedWork const& work, int jobs)
        : work_(work),
          slots_(static_cast<std::size_t>(jobs) * FilesOfAThread),
          atWork_(jobs) {}

    Crew(Crew const&) = delete;
    Crew& operator=(Crew const&) = delete;

    ~Crew() { End(); }

    void Start() {
        auto const count = static_cast<std::size_t>(atWork_);
        threads_.reserve(count);
        for (std::size_t number = 0; number < count; ++number) {
            threads_.emplace_back([this] { Work(); });
        }
    }

    [[nodiscard]] bool Wait(std::function<bool()> const& watch) {
        using namespace std::chrono_literals;
        constexpr auto Pause = 100ms;
        std::unique_lock lock(mutex_);
        while (!left_.wait_for(lock, Pause, [this] { return atWork_ == 0; })) {
            lock.unlock();
            bool const goesOn = watch();
            lock.lock();
            if (!goesOn) {
                EndLocked();
            }
        }
        if (fault_) {
            std::rethrow_exception(fault_);
        }
        return hasSeenEnd_ && taken_ == begun_;
    }

private:
    static constexpr std::size_t FilesOfAThread = 16;

    struct Slot {
        bool IsReady = false;
        std::optional<FileResult> Result;
    };

    void Work() {
        try {
            while (auto file = NextFile()) {
                Finish(file->Number, work_.Do(file->File));
            }
        } catch (...) {
            std::scoped_lock const lock(mutex_);
            fault_ = fault_ ? fault_ : std::current_exception();
            EndLocked();
        }
        std::scoped_lock const lock(mutex_);
        --atWork_;
        left_.notify_all();
    }

    struct NumberedFile {
        std::uint64_t Number = 0;
        BatchFile File;
    };

    // Waits until there is room for its result. Who waits for names holds nobody up but those who wait for
    // names.
    [[nodiscard]] std::optional<NumberedFile> NextFile() {
        std::scoped_lock const names(namesMutex_);
        {
            std::unique_lock lock(mutex_);
            room_.wait(lock, [this] { return begun_ - taken_ < slots_.size() || isEnded_; });
            if (isEnded_) {
                return std::nullopt;
            }
        }
        auto file = work_.Next();
        std::scoped_lock const lock(mutex_);
        if (!file) {
            hasSeenEnd_ = !isEnded_;
            EndLocked();
        }
        return file && !isEnded_ ? std::optional(NumberedFile{begun_++, std::move(*file)}) : std::nullopt;
    }

    // The thread whose result is the next in order hands over all that are ready.
    void Finish(std::uint64_t number, std::optional<FileResult> result) {
        std::unique_lock lock(mutex_);
        SlotOf(number) = {true, std::move(result)};
        if (isTaking_) {
            return;
        }
        isTaking_ = true;
        for (auto results = TakeReady(); !results.empty(); results = TakeReady()) {
            lock.unlock();
            work_.Take(results);
            lock.lock();
            taken_ += results.size();
            room_.notify_all();
        }
        isTaking_ = false;
    }

    // Under the mutex.
    [[nodiscard]] std::vector<FileResult> TakeReady() {
        std::vector<FileResult> results;
        for (auto number = taken_; results.size() < slots_.size() && SlotOf(number).IsReady; ++number) {
            if (!SlotOf(number).Result) {
                break; // it stays there, and so nothing behind it is ever taken
            }
            results.push_back(std::move(*SlotOf(number).Result));
            SlotOf(number) = {};
        }
        return results;
    }

    [[nodiscard]] Slot& SlotOf(std::uint64_t number) { return slots_[number % slots_.size()]; }

    void End() {
        std::scoped_lock const lock(mutex_);
        EndLocked();
    }

    // No further file is begun.
    void EndLocked() {
        isEnded_ = true;
        room_.notify_all();
    }

    OrderedWork const& work_;
    std::mutex namesMutex_; // taken before the other one
    std::mutex mutex_;      // guards what follows
    std::vector<Slot> slots_;
    std::uint64_t begun_ = 0; // files
    std::uint64_t taken_ = 0; // results
    bool isTaking_ = false;
    bool hasSeenEnd_ = false; // of the files
    bool isEnded_ = false;
    int atWork_; // threads
    std::exception_ptr fault_;
    std::condition_variable room_;
    std::condition_variable left_;
    std::vector<std::jthread> threads_; // the last member: they use the others
};

} // namespace

bool DoInOrder(OrderedWork const& work, int jobs, std::function<bool()> const& watch) {
    Crew crew(work, jobs);
    crew.Start();
    return crew.Wait(watch);
}

} // namespace quorvex::batch
