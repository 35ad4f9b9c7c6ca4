// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "evaluation/basPieces.h"

#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace quorvex::evaluation {
namespace {

using namespace std::chrono_literals;

bool WatchOn(double) {
    return true;
}

TEST(Pieces, AreDoneOnceEachByAnyNumberOfWorkers) {
    for (std::size_t const workers : {1U, 2U, 3U, 40U}) {
        std::vector<int> done(25);
        double last = 0;
        EXPECT_TRUE(DoPieces(
            done.size(), workers,
            [&](std::size_t number, search::GoOn const& goOn) {
                EXPECT_TRUE(goOn());
                ++done[number];
            },
            [&](double share) {
                EXPECT_GE(share, last);
                last = share;
                return true;
            }));
        EXPECT_EQ(done, std::vector(25, 1));
        EXPECT_EQ(last, 1);
    }
}

TEST(Pieces, NoneAreDoneAtOnce) {
    EXPECT_TRUE(DoPieces(
        0, 2, [](std::size_t, search::GoOn const&) { FAIL(); }, WatchOn));
}

TEST(Pieces, EndWithinAFifthOfASecondOnceTheWatchSaysSo) {
    std::atomic<int> begun = 0;
    auto const start = std::chrono::steady_clock::now();
    EXPECT_FALSE(DoPieces(
        100, 2,
        [&](std::size_t, search::GoOn const& goOn) {
            ++begun;
            while (goOn()) {
                std::this_thread::sleep_for(1ms);
            }
        },
        [](double share) {
            EXPECT_EQ(share, 0);
            return false;
        }));
    EXPECT_LT(begun, 100);
    // Five times what it takes, for a busy machine.
    EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
}

TEST(Pieces, AFaultEndsTheOthersAndComesThrough) {
    std::atomic<int> done = 0;
    EXPECT_THROW(static_cast<void>(DoPieces(
                     1000, 2,
                     [&](std::size_t number, search::GoOn const&) {
                         if (number == 3) {
                             throw text::RunTimeError(text::Fault::Overflow);
                         }
                         ++done;
                         std::this_thread::sleep_for(1ms);
                     },
                     WatchOn)),
                 text::RunTimeError);
    EXPECT_LT(done, 1000);
}

TEST(DoPieces, UsesTheMachineUsually) {
    EXPECT_GE(UsualJobs(), 1);
    EXPECT_LE(UsualJobs(), MostJobs);
}

} // namespace
} // namespace quorvex::evaluation
