// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Faults of the file system that POSIX systems can be made to show: a full disk, folders and files without
// permission, links, and a process that dies while it saves.

#include "platform/FileFaults.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "support/AsOrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quorvex::platform::disk {
namespace {

using text::Fault;

using tests::AsOrdinaryUser;
using tests::SmallDisk;

TEST(DiskFilesFaults, AFullDiskLeavesTheOldFileAndNoOther) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    {
        SmallDisk const small(1000);
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), std::string(5000, 'x')), Fault::DiskFull);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFilesFaults, ADiskThatFillsWhileAFileIsWrittenIsReported) {
    tests::TemporaryFolder const folder;
    SmallDisk const small(1000);
    auto const sink = DiskFiles().OpenForOutput(folder.File("a.txt"));
    sink->Write(std::string(900, 'x'));
    auto const error = text::Trap([&] { sink->Write(std::string(900, 'x')); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::DiskFull);
}

TEST(DiskFilesFaults, WhatMayNotBeWrittenIsNotEmptied) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    chmod(folder.File("a.txt").c_str(), 0444);
    chmod(folder.Path().c_str(), 0555);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfEmptying(folder.File("a.txt")), Fault::PermissionDenied);
        EXPECT_EQ(FaultOfEmptying(folder.File("new.txt")), Fault::PermissionDenied);
        auto const error = text::Trap([&] { DiskFiles().Remove(folder.File("a.txt")); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFilesFaults, OfALinkTheFileThatItNamesIsEmptiedAndRemoved) {
    tests::TemporaryFolder const folder;
    folder.Write("real.txt", "old");
    std::filesystem::create_symlink("real.txt", folder.File("link.txt"));
    DiskFiles files;
    auto const sink = files.OpenForOutput(folder.File("link.txt"));
    EXPECT_EQ(folder.Read("real.txt"), "");
    sink->Write("new");
    sink->Close();
    EXPECT_EQ(files.Length(folder.File("link.txt")), 3U);
    files.Remove(folder.File("link.txt"));
    EXPECT_FALSE(std::filesystem::exists(folder.File("real.txt")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.txt")));
}

TEST(DiskFilesFaults, ASourceThatIsEmptiedUnderAnotherNameIsAtItsEnd) {
    tests::TemporaryFolder const folder;
    folder.Write("real.txt", "old");
    std::filesystem::create_hard_link(folder.File("real.txt"), folder.File("link.txt"));
    DiskFiles files;
    auto const source = files.OpenForInput(folder.File("real.txt"));
    auto const sink = files.OpenForOutput(folder.File("link.txt"));
    std::array<char, 8> buffer{};
    EXPECT_EQ(source->Read(buffer), 0U);
}

TEST(DiskFilesFaults, APipeIsNeitherEmptiedNorRemoved) {
    tests::TemporaryFolder const folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.txt").c_str(), 0666), 0);
    EXPECT_EQ(FaultOfEmptying(folder.File("pipe.txt")), Fault::PermissionDenied);
    auto const error = text::Trap([&] { DiskFiles().Remove(folder.File("pipe.txt")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
    EXPECT_TRUE(std::filesystem::is_fifo(folder.File("pipe.txt")));
}

TEST(DiskFilesFaults, APipeOrDeviceIsNotReadAndKeepsNobodyWaiting) {
    tests::TemporaryFolder const folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.txt").c_str(), 0666), 0);
    std::filesystem::create_symlink("pipe.txt", folder.File("link.txt"));
    EXPECT_EQ(FaultOfOpening(folder.File("pipe.txt")), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfOpening(folder.File("link.txt")), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfOpening("/dev/null"), Fault::PermissionDenied);
}

TEST(DiskFilesFaults, AProfileInPlaceOfWhichAPipeStandsIsNeitherReadNorWritten) {
    tests::TemporaryFolder const folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.ini").c_str(), 0666), 0);
    DiskFiles files;
    DiskProfile profile(folder.File("pipe.ini"), files);
    EXPECT_EQ(profile.ReadString("Section", "Key", "default"), "default");
    std::array<ProfileEntry, 1> const entries = {{{"Key", "value"}}};
    auto const error = text::Trap([&] { profile.WriteStrings("Section", entries); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
}

TEST(DiskFilesFaults, APipeIsReadWhereItIsAskedFor) {
    tests::TemporaryFolder const folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.txt").c_str(), 0666), 0);
    std::thread writer([&folder] { folder.Write("pipe.txt", "through the pipe"); });
    std::array<char, 64> buffer{};
    std::size_t const count = OpenFileOrPipe(folder.File("pipe.txt"))->Read(buffer);
    writer.join();
    EXPECT_EQ(std::string(buffer.data(), count), "through the pipe");
    auto const error = text::Trap([&] { static_cast<void>(OpenFileOrPipe(folder.Text())); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
}

TEST(DiskFilesFaults, AReadOnlyFolderLeavesTheOldFile) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    chmod(folder.File("a.txt").c_str(), 0666);
    chmod(folder.Path().c_str(), 0555);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), Fault::PermissionDenied);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFilesFaults, AWriteProtectedFileStays) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    chmod(folder.File("a.txt").c_str(), 0444);
    chmod(folder.Path().c_str(), 0777);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), Fault::PermissionDenied);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFilesFaults, AnUnreadableFileIsDenied) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "secret");
    chmod(folder.File("a.txt").c_str(), 0);
    chmod(folder.Path().c_str(), 0777);
    AsOrdinaryUser const user;
    EXPECT_EQ(FaultOfOpening(folder.File("a.txt")), Fault::PermissionDenied);
}

struct stat StatusOf(std::string const& path) {
    struct stat status {};

    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status;
}

TEST(DiskFilesFaults, AFileAndWhatItReplacesKeepTheirPermissions) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    folder.Write("a.txt~", "older");
    chmod(folder.File("a.txt").c_str(), 0640);
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    EXPECT_EQ(StatusOf(folder.File("a.txt")).st_mode & 0777U, 0640U);
    EXPECT_EQ(StatusOf(folder.File("a.txt~")).st_mode & 0777U, 0640U);
}

TEST(DiskFilesFaults, AFileAndWhatItReplacesKeepTheirOwner) {
    // Only the administrator may give files away; anybody else keeps their own.
    uid_t const somebody = geteuid() == 0 ? 4711 : geteuid();
    gid_t const someGroup = geteuid() == 0 ? 4712 : getegid();
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    ASSERT_EQ(chown(folder.File("a.txt").c_str(), somebody, someGroup), 0);
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    for (auto const* name : {"a.txt", "a.txt~"}) {
        EXPECT_EQ(StatusOf(folder.File(name)).st_uid, somebody);
        EXPECT_EQ(StatusOf(folder.File(name)).st_gid, someGroup);
    }
}

TEST(DiskFilesFaults, AnotherGroupGetsNoMoreThanEverybody) {
    // A user whose own group it is keeps the group, and with it the group's rights.
    bool const isOfAnotherGroup = geteuid() == 0;
    gid_t const group = isOfAnotherGroup ? 4712 : getegid();
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    ASSERT_EQ(chown(folder.File("a.txt").c_str(), geteuid(), group), 0);
    chmod(folder.File("a.txt").c_str(), 0676);
    chmod(folder.Path().c_str(), 0777);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    }
    EXPECT_EQ(StatusOf(folder.File("a.txt~")).st_mode & 0777U, isOfAnotherGroup ? 0666U : 0676U);
    EXPECT_EQ(folder.Read("a.txt~"), "old");
}

TEST(DiskFilesFaults, AWriteProtectedCopyOfBeforeStaysAndNothingIsReplaced) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    folder.Write("a.txt~", "precious");
    chmod(folder.File("a.txt").c_str(), 0666);
    chmod(folder.File("a.txt~").c_str(), 0444);
    chmod(folder.Path().c_str(), 0777);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), Fault::PermissionDenied);
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.Read("a.txt~"), "precious");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFilesFaults, AFileThatMayNotBeReadCannotBeKeptAndStays) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    chmod(folder.File("a.txt").c_str(), 0222);
    chmod(folder.Path().c_str(), 0777);
    {
        AsOrdinaryUser const user;
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), Fault::PermissionDenied);
    }
    chmod(folder.File("a.txt").c_str(), 0666);
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFilesFaults, ADiskWithoutRoomForTheCopyKeepsTheOldFile) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", std::string(5000, 'o'));
    folder.Write("a.txt~", "older");
    {
        SmallDisk const small(1000);
        EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), Fault::DiskFull);
    }
    EXPECT_EQ(folder.Read("a.txt"), std::string(5000, 'o'));
    EXPECT_EQ(folder.Read("a.txt~"), "older");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFilesFaults, ALinkInPlaceOfTheCopyIsReplacedAndNotFollowed) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    folder.Write("other.txt", "other");
    std::filesystem::create_symlink("other.txt", folder.File("a.txt~"));
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    EXPECT_FALSE(std::filesystem::is_symlink(folder.File("a.txt~")));
    EXPECT_EQ(folder.Read("a.txt~"), "old");
    EXPECT_EQ(folder.Read("other.txt"), "other");
}

TEST(DiskFilesFaults, ADeadLinkInPlaceOfTheCopyIsReplaced) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    std::filesystem::create_symlink("nowhere/gone.txt", folder.File("a.txt~"));
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    EXPECT_EQ(folder.Read("a.txt~"), "old");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFilesFaults, ALinkKeepsPointingAtTheReplacedFileBesideWhichTheCopyLies) {
    tests::TemporaryFolder const folder;
    std::filesystem::create_directory(folder.File("sub"));
    folder.Write("sub/real.txt", "old");
    std::filesystem::create_symlink(folder.File("sub/real.txt"), folder.File("link.txt"));
    EXPECT_EQ(FaultOfReplacing(folder.File("link.txt"), "new"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.txt")));
    EXPECT_EQ(folder.Read("sub/real.txt"), "new");
    EXPECT_EQ(folder.Read("sub/real.txt~"), "old");
    EXPECT_EQ(folder.EntryCount(), 2);
    DiskFiles().Keep(folder.File("link.txt"));
    EXPECT_EQ(folder.Read("sub/real.txt~"), "new");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFilesFaults, ANewFileIsReadableAsTheUserWants) {
    tests::TemporaryFolder const folder;
    mode_t const before = umask(027);
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt"), "new"), std::nullopt);
    umask(before);

    struct stat status {};

    ASSERT_EQ(stat(folder.File("a.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST(DiskFilesFaults, APipeIsNeitherOfferedNorReplaced) {
    tests::TemporaryFolder const folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.txt").c_str(), 0666), 0);
    EXPECT_TRUE(DiskFiles().List(folder.Text(), "*.Txt").empty());
    EXPECT_EQ(FaultOfReplacing(folder.File("pipe.txt"), "new"), Fault::PermissionDenied);
    EXPECT_TRUE(std::filesystem::is_fifo(folder.File("pipe.txt")));
}

TEST(DiskFilesFaults, ALinkToAFileThatIsNotThereYetStaysALink) {
    tests::TemporaryFolder const folder;
    std::filesystem::create_directory(folder.File("sub"));
    std::filesystem::create_symlink("sub/real.txt", folder.File("link.txt"));
    EXPECT_EQ(FaultOfReplacing(folder.File("link.txt"), "new"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("link.txt")));
    EXPECT_EQ(folder.Read("sub/real.txt"), "new");
    std::filesystem::create_symlink("loop.txt", folder.File("loop.txt"));
    EXPECT_EQ(FaultOfReplacing(folder.File("loop.txt"), "new"), Fault::BadFileName);
}

TEST(DiskFilesFaults, TwoSavesAtOnceDoNotMix) {
    constexpr int Saves = 200;
    tests::TemporaryFolder const folder;
    auto save = [&folder](std::string const& name, std::string const& content) {
        DiskFiles files;
        for (int times = 0; times < Saves; ++times) {
            files.Replace(folder.File(name), content);
        }
    };
    std::thread other(save, "a.txt", "first");
    save("b.txt", "second");
    other.join();
    EXPECT_EQ(folder.Read("a.txt"), "first");
    EXPECT_EQ(folder.Read("b.txt"), "second");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFilesFaults, AProcessThatDiesWhileSavingLeavesTheOldOrTheNewFile) {
    constexpr int Deaths = 60;
    constexpr unsigned LongestLife = 3000; // microseconds
    tests::TemporaryFolder const folder;
    std::string const old(40'000, 'o');
    std::string const fresh(40'000, 'n');
    std::mt19937 random(20260101);
    for (int death = 0; death < Deaths; ++death) {
        folder.Write("a.txt", old);
        pid_t const child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            DiskFiles files;
            for (;;) {
                files.Replace(folder.File("a.txt"), fresh);
            }
        }
        usleep(static_cast<unsigned>(random()) % LongestLife);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        std::string const left = folder.Read("a.txt");
        ASSERT_TRUE(left == old || left == fresh) << left.size() << " bytes";
    }
}

} // namespace
} // namespace quorvex::platform::disk
