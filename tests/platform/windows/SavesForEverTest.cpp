// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "StartedProgram.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

namespace quorvex::tests {
namespace {

constexpr std::size_t Length = 40'000; // as the program writes

// Whether it is one whole text of those that were saved.
bool IsWhole(std::string const& text) {
    return text.size() == Length && text.find_first_not_of(text.front()) == std::string::npos;
}

TEST(SavesForEver, AProgramThatIsKilledLeavesTheOldOrTheNewFile) {
    constexpr int Kills = 200;
    constexpr int LongestLife = 60'000; // microseconds: several files
    constexpr int KilledStatus = 9;     // no other end has it
    TemporaryFolder const folder;
    auto const seed = std::random_device{}();
    SCOPED_TRACE("Seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> lives(0, LongestLife);
    for (int kill = 0; kill < Kills; ++kill) {
        folder.Write("a.txt", std::string(Length, 'O'));
        StartedProgram const program(QUORVEX_SAVES_FOR_EVER, {folder.File("a.txt")}, folder.File("errors"));
        ASSERT_EQ(program.ReadLine(), "begins\r") << folder.Read("errors");
        std::this_thread::sleep_for(std::chrono::microseconds(lives(random)));
        program.Kill(KilledStatus);
        ASSERT_EQ(program.Wait(), KilledStatus) << "ended by itself: " << folder.Read("errors");
        ASSERT_TRUE(std::filesystem::exists(folder.Path() / "a.txt"));
        std::string const left = folder.Read("a.txt");
        ASSERT_TRUE(IsWhole(left)) << left.size() << " bytes";
        if (std::filesystem::exists(folder.Path() / "a.txt~")) {
            ASSERT_TRUE(IsWhole(folder.Read("a.txt~"))) << kill;
        }
    }
    constexpr int Files = 3; // with the copy of the one before, and the messages
    EXPECT_GT(folder.EntryCount(), Files) << "Nothing was killed while it wrote.";
}

} // namespace
} // namespace quorvex::tests
