// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/HeldFolder.h"

#include "platform/disk/DiskFiles.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace quorvex::platform::disk {
namespace {

using std::chrono::milliseconds;

// For another thread; nothing when it may.
std::optional<text::Fault> FaultOfHolding(std::filesystem::path const& folder) {
    auto const hold = [&] { return text::Trap([&] { HeldFolder const held(folder, milliseconds(20)); }); };
    auto const error = std::async(std::launch::async, hold).get();
    return error ? std::optional(error->Kind()) : std::nullopt;
}

TEST(HeldFolder, IsHeldByOneAtATime) {
    tests::TemporaryFolder const folder;
    tests::TemporaryFolder const other;
    {
        HeldFolder const held(folder.Path());
        EXPECT_EQ(FaultOfHolding(folder.Path()), text::Fault::PermissionDenied);
        EXPECT_EQ(FaultOfHolding(other.Path()), std::nullopt);
    }
    EXPECT_EQ(FaultOfHolding(folder.Path()), std::nullopt);
}

TEST(HeldFolder, IsWaitedFor) {
    tests::TemporaryFolder const folder;
    std::atomic<bool> isFree = false;
    auto held = std::make_unique<HeldFolder>(folder.Path());
    auto second = std::async(std::launch::async, [&] {
        HeldFolder const waiting(folder.Path());
        return isFree.load();
    });
    std::this_thread::sleep_for(milliseconds(50));
    isFree = true;
    held.reset();
    EXPECT_TRUE(second.get());
}

TEST(HeldFolder, OfAMissingFolderKeepsNobodyOut) {
    tests::TemporaryFolder const folder;
    HeldFolder const held(folder.Path() / "gone");
    EXPECT_EQ(FaultOfHolding(folder.Path() / "gone"), std::nullopt);
}

TEST(DiskFiles, AreRevisedByOneAfterTheOther) {
    constexpr int Writers = 4;
    constexpr int Times = 10;
    tests::TemporaryFolder const folder;
    {
        std::vector<std::jthread> writers;
        for (int writer = 0; writer < Writers; ++writer) {
            writers.emplace_back([&] {
                DiskFiles files;
                for (int time = 0; time < Times; ++time) {
                    files.Revise(folder.File("a.txt"),
                                 [](auto const& content) { return content.value_or("") + "x"; });
                }
            });
        }
    }
    EXPECT_EQ(folder.Read("a.txt"), std::string(Writers * Times, 'x'));
    EXPECT_EQ(folder.Read("a.txt~"), std::string((Writers * Times) - 1, 'x'));
    EXPECT_EQ(folder.EntryCount(), 2);
}

// Each keeps what the one before it has written: with two writers, one of which saves once, that is either
// the file or what it replaced.
TEST(DiskFiles, KeepWhatAnotherOneSavesAtTheSameTime) {
    tests::TemporaryFolder const folder;
    for (int round = 0; round < 20; ++round) {
        folder.Write("a.txt", "old");
        {
            std::jthread const one([&] { DiskFiles().Replace(folder.File("a.txt"), "one"); });
            std::jthread const two([&] { DiskFiles().Replace(folder.File("a.txt"), "two"); });
        }
        std::string const both = folder.Read("a.txt") + folder.Read("a.txt~");
        EXPECT_TRUE(both == "onetwo" || both == "twoone") << both;
    }
}

TEST(DiskFiles, StayAsTheyAreWhereARevisionMakesNothing) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    std::optional<std::string> found;
    DiskFiles().Revise(folder.File("a.txt"), [&](auto const& content) {
        found = content;
        return std::nullopt;
    });
    EXPECT_EQ(found, "old");
    EXPECT_EQ(folder.Read("a.txt"), "old");
    DiskFiles().Revise(folder.File("b.txt"), [&](auto const& content) {
        found = content;
        return std::nullopt;
    });
    EXPECT_EQ(found, std::nullopt);
    EXPECT_EQ(folder.EntryCount(), 1);
}

} // namespace
} // namespace quorvex::platform::disk
