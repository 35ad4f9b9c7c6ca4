// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What POSIX systems can be made to refuse an INI file, and a process that dies while it saves one.

#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "support/AsOrdinaryUser.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <optional>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvex::platform::disk {
namespace {

using tests::AsOrdinaryUser;
using text::Fault;

constexpr char const* Name = "Quorvex.INI";

void WriteBoth(std::string const& path, std::string_view value) {
    DiskFiles files;
    std::array<ProfileEntry, 2> const entries = {{{"DataPath", value}, {"ChartType", value}}};
    DiskProfile(path, files).WriteStrings("Globals", entries);
}

std::optional<Fault> FaultOfWriting(std::string const& path) {
    auto const error = text::Trap([&] { WriteBoth(path, "new"); });
    return error ? std::optional(error->Kind()) : std::nullopt;
}

std::string DataPathIn(std::string const& path) {
    DiskFiles files;
    return DiskProfile(path, files).ReadString("Globals", "DataPath", "none");
}

class DiskProfileFaults : public testing::Test {
protected:
    DiskProfileFaults() {
        folder_.Write(Name, Old);
        chmod(folder_.File(Name).c_str(), 0666);
        chmod(folder_.Path().c_str(), 0777);
    }

    static constexpr char const* Old = "[Globals]\r\nDataPath=old\r\n";

    tests::TemporaryFolder folder_;
};

TEST_F(DiskProfileFaults, AReadOnlyFolderKeepsTheOldFile) {
    chmod(folder_.Path().c_str(), 0555);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfWriting(folder_.File(Name)), Fault::PermissionDenied);
        EXPECT_EQ(DataPathIn(folder_.File(Name)), "old");
    }
    EXPECT_EQ(folder_.Read(Name), Old);
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(DiskProfileFaults, AReadOnlyFileStays) {
    chmod(folder_.File(Name).c_str(), 0444);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfWriting(folder_.File(Name)), Fault::PermissionDenied);
        EXPECT_EQ(DataPathIn(folder_.File(Name)), "old");
    }
    EXPECT_EQ(folder_.Read(Name), Old);
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(DiskProfileFaults, AFileThatCannotBeReadIsNotTakenForAnEmptyOne) {
    chmod(folder_.File(Name).c_str(), 0222);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(DataPathIn(folder_.File(Name)), "none");
        EXPECT_EQ(FaultOfWriting(folder_.File(Name)), Fault::PermissionDenied);
    }
    EXPECT_EQ(folder_.Read(Name), Old);
}

TEST_F(DiskProfileFaults, AProcessThatDiesWhileWritingLeavesTheOldOrTheNewFile) {
    constexpr int Deaths = 40;
    constexpr unsigned LongestLife = 3000; // microseconds
    std::string const foreign = "\r\n[Other]\r\nkey=" + std::string(40'000, 'k');
    std::string const old = "[Globals]\r\nDataPath=old\r\nChartType=old" + foreign;
    std::string const fresh = "[Globals]\r\nDataPath=new\r\nChartType=new" + foreign;
    std::mt19937 random(20260202);
    for (int death = 0; death < Deaths; ++death) {
        folder_.Write(Name, old);
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                WriteBoth(folder_.File(Name), "new");
            }
        }
        usleep(static_cast<unsigned>(random()) % LongestLife);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        std::string const left = folder_.Read(Name);
        ASSERT_TRUE(left == old || left == fresh) << left.size() << " bytes";
    }
}

} // namespace
} // namespace quorvex::platform::disk
