// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HostInterruption.h"

#include "platform/disk/HostFile.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <string_view>
#include <thread>
#include <unistd.h>

namespace quorvex::platform::disk {
namespace {

TEST(HostInterruption, NotesTheFirstOne) {
    for (int const signal : {SIGINT, SIGTERM, SIGHUP}) {
        HostInterruption const interruption;
        EXPECT_FALSE(HostInterruption::HasCome());
        std::raise(signal);
        EXPECT_TRUE(HostInterruption::HasCome());
    }
}

TEST(HostInterruptionDeathTest, LeavesTheSecondOneToTheSystem) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            HostInterruption const interruption;
            std::raise(SIGINT);
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
    EXPECT_EXIT(
        {
            { HostInterruption const interruption; }
            std::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

TEST(HostInterruption, IgnoresWhatTheProcessWasToldToIgnore) {
    auto* const before = std::signal(SIGHUP, SIG_IGN);
    {
        HostInterruption const interruption;
        std::raise(SIGHUP);
        EXPECT_FALSE(HostInterruption::HasCome());
    }
    std::raise(SIGHUP); // still ignored
    std::signal(SIGHUP, before);
}

// Standard input is a pipe as long as it lives.
class PipedInput {
public:
    PipedInput() : before_(dup(0)) {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        dup2(ends[0], 0);
        close(ends[0]);
        writer_ = ends[1];
    }

    PipedInput(PipedInput const&) = delete;
    PipedInput& operator=(PipedInput const&) = delete;

    ~PipedInput() {
        dup2(before_, 0);
        close(before_);
        close(writer_);
    }

    void Write(std::string_view text) const {
        EXPECT_EQ(write(writer_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

private:
    int before_;
    int writer_ = -1;
};

TEST(OpenStandardInputWhile, EndsWhileItWaits) {
    PipedInput const input;
    input.Write("ab");
    HostInterruption const interruption;
    auto const source = OpenStandardInputWhile([] { return !HostInterruption::HasCome(); });
    std::array<char, 8> buffer{};
    EXPECT_EQ(source->Read(buffer), 2U);
    std::jthread const interrupter([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        kill(getpid(), SIGINT);
    });
    EXPECT_EQ(source->Read(buffer), 0U);
}

} // namespace
} // namespace quorvex::platform::disk
