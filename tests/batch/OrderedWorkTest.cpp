// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "batch/OrderedWork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

namespace quorvex::batch {
namespace {

using namespace std::chrono_literals;

// The files "0", "1" .. of which the work makes lines.
class CountedFiles {
public:
    explicit CountedFiles(int count) : count_(count) {}

    std::optional<BatchFile> Next() {
        return given_ < count_ ? std::optional(BatchFile{std::to_string(given_++), {}}) : std::nullopt;
    }

    [[nodiscard]] int Given() const { return given_; }

private:
    int count_;
    std::atomic<int> given_ = 0;
};

FileResult LineOf(BatchFile const& file) {
    FileResult result;
    result.File = file;
    result.Line = file.Path + '\n';
    return result;
}

std::string NumbersTo(int count) {
    std::string lines;
    for (int number = 0; number < count; ++number) {
        lines += std::to_string(number) + '\n';
    }
    return lines;
}

// What is taken of so many files with so many jobs, where some take longer than others.
std::string LinesOf(int count, int jobs) {
    CountedFiles files(count);
    std::string lines;
    OrderedWork const work{.Next = [&] { return files.Next(); },
                           .Do = [](BatchFile const& file) -> std::optional<FileResult> {
                               if (file.Path.ends_with('7')) {
                                   std::this_thread::sleep_for(1ms);
                               }
                               return LineOf(file);
                           },
                           .Take =
                               [&](auto const& results) {
                                   for (auto const& result : results) {
                                       lines += result.Line;
                                   }
                               }};
    EXPECT_TRUE(DoInOrder(work, jobs, [] { return true; }));
    return lines;
}

TEST(OrderedWork, GivesResultsInTheOrderOfTheFilesWhateverTheNumberOfJobs) {
    for (int const jobs : {1, 2, 8, 40}) {
        EXPECT_EQ(LinesOf(500, jobs), NumbersTo(500)) << jobs;
    }
}

TEST(OrderedWork, HasNothingToDoWithoutFiles) {
    EXPECT_EQ(LinesOf(0, 3), "");
}

TEST(OrderedWork, BeginsNoMoreFilesThanItHasRoomForWhileTheFirstOneLasts) {
    CountedFiles files(10'000);
    std::mutex mutex;
    std::condition_variable changed;
    bool mayEnd = false;
    int most = 0;
    int taken = 0;
    OrderedWork const work{.Next = [&] { return files.Next(); },
                           .Do = [&](BatchFile const& file) -> std::optional<FileResult> {
                               if (file.Path == "0") {
                                   std::unique_lock lock(mutex);
                                   changed.wait(lock, [&] { return mayEnd; });
                               }
                               return LineOf(file);
                           },
                           .Take = [&](auto const& results) { taken += static_cast<int>(results.size()); }};
    int asked = 0;
    EXPECT_TRUE(DoInOrder(work, 2, [&] {
        if (files.Given() >= 32 && ++asked == 3) { // so that more would have been begun by now
            most = files.Given();
            std::scoped_lock const lock(mutex);
            mayEnd = true;
            changed.notify_all();
        }
        return true;
    }));
    EXPECT_EQ(most, 32); // 16 for each job
    EXPECT_EQ(taken, 10'000);
}

TEST(OrderedWork, TakesAResultWhileTheNextNameIsWaitedFor) {
    std::atomic<int> taken = 0;
    int given = 0;
    OrderedWork const work{
        .Next = [&]() -> std::optional<BatchFile> {
            // As a pipe whose writer wants to see the answer before it goes on.
            while (taken < given) {
                std::this_thread::sleep_for(1ms);
            }
            return given < 20 ? std::optional(BatchFile{std::to_string(given++), {}}) : std::nullopt;
        },
        .Do = [](BatchFile const& file) { return std::optional(LineOf(file)); },
        .Take = [&](auto const& results) { taken += static_cast<int>(results.size()); }};
    EXPECT_TRUE(DoInOrder(work, 2, [] { return true; }));
    EXPECT_EQ(taken, 20);
}

TEST(OrderedWork, EndsBehindWholeResultsWhenTheWatchSaysNo) {
    CountedFiles files(1'000'000);
    std::atomic<int> begun = 0;
    std::string lines;
    OrderedWork const work{.Next = [&] { return files.Next(); },
                           .Do =
                               [&](BatchFile const& file) {
                                   ++begun;
                                   std::this_thread::sleep_for(1ms);
                                   return std::optional(LineOf(file));
                               },
                           .Take =
                               [&](auto const& results) {
                                   for (auto const& result : results) {
                                       lines += result.Line;
                                   }
                               }};
    EXPECT_FALSE(DoInOrder(work, 3, [&] { return files.Given() < 10; }));
    auto const count = std::ranges::count(lines, '\n');
    EXPECT_GT(count, 0);
    EXPECT_EQ(lines, NumbersTo(static_cast<int>(count)));
    EXPECT_EQ(begun, count); // what was begun was done; a name that came too late was not begun
}

TEST(OrderedWork, TakesNothingBehindAFileThatWasEndedEarly) {
    CountedFiles files(30);
    std::string lines;
    OrderedWork const work{.Next = [&] { return files.Next(); },
                           .Do = [](BatchFile const& file) -> std::optional<FileResult> {
                               return file.Path == "5" ? std::nullopt : std::optional(LineOf(file));
                           },
                           .Take =
                               [&](auto const& results) {
                                   for (auto const& result : results) {
                                       lines += result.Line;
                                   }
                               }};
    EXPECT_FALSE(DoInOrder(work, 2, [] { return true; }));
    EXPECT_EQ(lines, NumbersTo(5));
}

// What comes of a fault in one of the three.
std::string FaultOf(std::string const& where) {
    CountedFiles files(10'000);
    auto const fail = [&](std::string const& here) {
        if (here == where && files.Given() > 40) {
            throw std::runtime_error(here);
        }
    };
    OrderedWork const work{.Next =
                               [&] {
                                   fail("next");
                                   return files.Next();
                               },
                           .Do =
                               [&](BatchFile const& file) {
                                   fail("do");
                                   return std::optional(LineOf(file));
                               },
                           .Take = [&](auto const&) { fail("take"); }};
    try {
        static_cast<void>(DoInOrder(work, 4, [] { return true; }));
    } catch (std::runtime_error const& error) {
        EXPECT_LT(files.Given(), 10'000);
        return error.what();
    }
    return {};
}

TEST(OrderedWork, LetsFaultsThrough) {
    for (auto const* where : {"next", "do", "take"}) {
        EXPECT_EQ(FaultOf(where), where);
    }
}

} // namespace
} // namespace quorvex::batch
