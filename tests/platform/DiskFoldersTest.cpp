// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskFolders.h"

#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace quorvex::platform::disk {
namespace {

using testing::ElementsAre;
using text::Fault;

TEST(DiskFolders, GiveTheFirstNamesBehindOneInTheOrderOfTheirBytes) {
    tests::TemporaryFolder const folder;
    for (auto const* name : {"c.txt", "a.txt", "B.TXT", "d.txt", "e.dat"}) {
        folder.Write(name, "");
    }
    std::filesystem::create_directory(folder.File("sub.txt"));
    DiskFolders const folders;
    NamesWanted wanted{.Kind = EntryKind::File, .Pattern = "*.txt", .Behind = "", .Most = 2};
    EXPECT_THAT(folders.Names(folder.Text(), wanted), ElementsAre("B.TXT", "a.txt"));
    wanted.Behind = "a.txt";
    EXPECT_THAT(folders.Names(folder.Text(), wanted), ElementsAre("c.txt", "d.txt"));
    wanted.Behind = "d.txt";
    EXPECT_THAT(folders.Names(folder.Text(), wanted), ElementsAre());
    EXPECT_THAT(
        folders.Names(folder.Text(), {.Kind = EntryKind::Folder, .Pattern = "*", .Behind = "", .Most = 9}),
        ElementsAre("sub.txt"));
}

TEST(DiskFolders, TellFoldersFromFilesAndFromNothing) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "");
    DiskFolders const folders;
    EXPECT_TRUE(folders.IsFolder(folder.Text()));
    EXPECT_FALSE(folders.IsFolder(folder.File("a.txt")));
    EXPECT_FALSE(folders.IsFolder(folder.File("nowhere")));
    EXPECT_FALSE(folders.IsFolder(""));
}

TEST(DiskFolders, RaiseTheFaultOfAFolderThatCannotBeRead) {
    tests::TemporaryFolder const folder;
    auto const error = text::Trap(
        [&] { static_cast<void>(DiskFolders().Names(folder.File("nowhere/"), {.Kind = EntryKind::File})); });
    ASSERT_TRUE(error);
    EXPECT_THAT(error->Kind(), testing::AnyOf(Fault::FileNotFound, Fault::PathNotFound));
}

} // namespace
} // namespace quorvex::platform::disk
