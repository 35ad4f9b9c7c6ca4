// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskFiles.h"

#include "platform/FileFaults.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <optional>

namespace quorvex::platform::disk {
namespace {

using testing::UnorderedElementsAre;
using text::Fault;

TEST(DiskFiles, ReadAFileInPieces) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "hello");
    auto const source = DiskFiles().OpenForInput(folder.File("a.txt"));
    std::array<char, 3> buffer{};
    EXPECT_EQ(source->Read(buffer), 3U);
    EXPECT_EQ(std::string(buffer.data(), 3), "hel");
    EXPECT_EQ(source->Read(buffer), 2U);
    EXPECT_EQ(source->Read(buffer), 0U);
    EXPECT_EQ(source->Read(buffer), 0U);
}

TEST(DiskFiles, TellWhyAFileCannotBeRead) {
    tests::TemporaryFolder const folder;
    EXPECT_EQ(FaultOfOpening(folder.File("gone.txt")), Fault::FileNotFound);
    EXPECT_EQ(FaultOfOpening(folder.File("nowhere/gone.txt")), Fault::PathNotFound);
    EXPECT_EQ(FaultOfOpening(folder.Text()), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfOpening(""), Fault::BadFileName);
    EXPECT_EQ(FaultOfOpening(folder.File(std::string("a\0b.txt", 7))), Fault::BadFileName);
    EXPECT_EQ(FaultOfOpening(folder.File(std::string(5000, 'x'))), Fault::BadFileName);
    folder.Write("a.txt", "");
    EXPECT_EQ(FaultOfOpening(folder.File("a.txt/b.txt")), Fault::PathNotFound);
}

TEST(DiskFiles, AreEmptiedAtOnceAndWrittenInPieces) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old text");
    DiskFiles files;
    auto const sink = files.OpenForOutput(folder.File("a.txt"));
    EXPECT_EQ(folder.Read("a.txt"), "");
    sink->Write("one\r\n");
    EXPECT_EQ(folder.Read("a.txt"), "one\r\n");
    sink->Write("two\n");
    sink->Close();
    EXPECT_EQ(folder.Read("a.txt"), "one\r\ntwo\n");
    EXPECT_EQ(files.Length(folder.File("a.txt")), 9U);
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFiles, AreCreatedWhenMissingAndCanBeRemoved) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.OpenForOutput(folder.File("a.txt"))->Close();
    EXPECT_EQ(files.Length(folder.File("a.txt")), 0U);
    files.Remove(folder.File("a.txt"));
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST(DiskFiles, TellWhyAFileCannotBeEmptiedRemovedOrMeasured) {
    tests::TemporaryFolder const folder;
    EXPECT_EQ(FaultOfEmptying(folder.File("nowhere/a.txt")), Fault::PathNotFound);
    EXPECT_EQ(FaultOfEmptying(folder.Text()), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfEmptying(""), Fault::BadFileName);
    EXPECT_EQ(FaultOfEmptying(folder.File(std::string("a\0b.txt", 7))), Fault::BadFileName);
    EXPECT_EQ(FaultOfEmptying(folder.File(std::string(5000, 'x'))), Fault::BadFileName);
    EXPECT_EQ(FaultOfRemoving(folder.File("gone.txt")), Fault::FileNotFound);
    EXPECT_EQ(FaultOfRemoving(folder.File("nowhere/gone.txt")), Fault::PathNotFound);
    EXPECT_EQ(FaultOfRemoving(folder.Text()), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfRemoving(""), Fault::BadFileName);
    EXPECT_EQ(FaultOfMeasuring(folder.File("gone.txt")), Fault::FileNotFound);
    EXPECT_EQ(FaultOfMeasuring(folder.File("nowhere/gone.txt")), Fault::PathNotFound);
    EXPECT_EQ(FaultOfMeasuring(folder.Text()), Fault::PermissionDenied);
    EXPECT_EQ(FaultOfMeasuring(""), Fault::BadFileName);
}

TEST(DiskFiles, TakeBackslashesAsSeparators) {
    tests::TemporaryFolder const folder;
    std::filesystem::create_directory(folder.File("sub"));
    folder.Write("sub/a.txt", "x");
    EXPECT_EQ(FaultOfOpening(folder.File("sub\\a.txt")), std::nullopt);
    DiskFiles().Replace(folder.File("sub\\b.txt"), "y");
    EXPECT_EQ(folder.Read("sub/b.txt"), "y");
    EXPECT_THAT(DiskFiles().List(folder.File("sub\\"), "*.txt"), UnorderedElementsAre("a.txt", "b.txt"));
}

TEST(DiskFiles, AreTheSameUnderAnyNameOfOneFile) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "one");
    folder.Write("b.txt", "one");
    std::filesystem::create_directory(folder.File("sub"));
    std::filesystem::create_hard_link(folder.File("a.txt"), folder.File("sub/other.txt"));
    std::string const a = folder.File("a.txt");
    DiskFiles const files;
    EXPECT_TRUE(files.AreSame(a, a));
    EXPECT_TRUE(files.AreSame(a, folder.File("sub\\..\\a.txt")));
    EXPECT_TRUE(files.AreSame(folder.File("sub/other.txt"), a));
    EXPECT_FALSE(files.AreSame(a, folder.File("b.txt")));
    EXPECT_FALSE(files.AreSame(a, folder.File("none.txt")));
    EXPECT_FALSE(files.AreSame(folder.File("none.txt"), folder.File("none.txt")));
    EXPECT_FALSE(files.AreSame(a, ""));
}

TEST(DiskFiles, FindBareNamesInTheFolderThatWasEntered) {
    tests::TemporaryFolder const folder;
    auto const before = std::filesystem::current_path();
    DiskFiles files;
    files.EnterFolder(folder.Text());
    files.Overwrite("a.txt", "one");
    EXPECT_TRUE(files.AreSame("a.txt", folder.File("a.txt")));
    EXPECT_EQ(FaultOf([&] { files.EnterFolder(folder.File("none")); }), Fault::PathNotFound);
    EXPECT_EQ(FaultOf([&] { files.EnterFolder(folder.File("a.txt")); }), Fault::PathNotFound);
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Read("a.txt"), "one");
}

TEST(DiskFiles, ReplaceCreatesAndOverwrites) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.Replace(folder.File("a.txt"), "first and long");
    EXPECT_EQ(folder.Read("a.txt"), "first and long");
    files.Replace(folder.File("a.txt"), "second");
    EXPECT_EQ(folder.Read("a.txt"), "second");
    files.Replace(folder.File("a.txt"), "");
    EXPECT_EQ(folder.Read("a.txt"), "");
    EXPECT_EQ(folder.EntryCount(), 2); // with what was replaced last
}

TEST(DiskFiles, ReplaceKeepsTheContentOfBefore) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.Replace(folder.File("a.txt"), "one");
    EXPECT_EQ(folder.EntryCount(), 1);
    files.Replace(folder.File("a.txt"), "two");
    EXPECT_EQ(folder.Read("a.txt~"), "one");
    files.Replace(folder.File("a.txt"), "three");
    EXPECT_EQ(folder.Read("a.txt"), "three");
    EXPECT_EQ(folder.Read("a.txt~"), "two");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFiles, ReplaceKeepsAnOlderCopyWhenNothingIsLost) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    std::string const large(200'000, 'x');
    folder.Write("a.txt~", "older");
    folder.Write("a.txt", "");
    files.Replace(folder.File("a.txt"), large);
    files.Replace(folder.File("a.txt"), large);
    EXPECT_EQ(folder.Read("a.txt~"), "older");
    files.Replace(folder.File("a.txt"), large.substr(1) + "y");
    EXPECT_EQ(folder.Read("a.txt~"), large);
}

TEST(DiskFiles, AppendWritesBehindTheEnd) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "one");
    files.Append(folder.File("a.txt"), " two");
    files.Append(folder.File("a.txt"), "");
    files.Append(folder.File("a.txt"), "\r\n");
    EXPECT_EQ(folder.Read("a.txt"), "one two\r\n");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFiles, AppendMakesNoFile) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    auto const faultOf = [&](std::string const& path) {
        return text::Trap([&] { files.Append(path, "x"); })->Kind();
    };
    EXPECT_EQ(faultOf(folder.File("a.txt")), text::Fault::FileNotFound);
    EXPECT_EQ(faultOf(folder.File("none/a.txt")), text::Fault::PathNotFound);
    EXPECT_EQ(faultOf(folder.File("")), text::Fault::PermissionDenied);
    EXPECT_EQ(faultOf(""), text::Fault::BadFileName);
    EXPECT_EQ(folder.EntryCount(), 0);
}

TEST(DiskFiles, OverwriteKeepsNothing) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.Overwrite(folder.File("a.png"), "one");
    files.Overwrite(folder.File("a.png"), "two");
    EXPECT_EQ(folder.Read("a.png"), "two");
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFiles, KeepCopiesWhatThereIs) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.Keep(folder.File("a.txt"));
    folder.Write("a.txt", "");
    files.Keep(folder.File("a.txt"));
    EXPECT_EQ(folder.EntryCount(), 1);
    folder.Write("a.txt", std::string(200'000, 'x'));
    files.Keep(folder.File("a.txt"));
    EXPECT_EQ(folder.Read("a.txt"), std::string(200'000, 'x'));
    EXPECT_EQ(folder.Read("a.txt~"), std::string(200'000, 'x'));
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFiles, WhatWasReplacedIsNotListed) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "");
    folder.Write("a.txt~", "");
    folder.Write("b.dat~", "");
    EXPECT_THAT(DiskFiles().List(folder.Text(), "*.Txt"), UnorderedElementsAre("a.txt"));
    EXPECT_TRUE(DiskFiles().List(folder.Text(), "*.dat").empty());
}

TEST(DiskFiles, WithoutRoomForACopyNothingIsReplaced) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "old");
    std::filesystem::create_directory(folder.File("a.txt~"));
    EXPECT_EQ(FaultOfReplacing(folder.File("a.txt")), Fault::PermissionDenied);
    auto const error = text::Trap([&] { files.Keep(folder.File("a.txt")); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST(DiskFiles, ReplaceTellsWhyItCannot) {
    tests::TemporaryFolder const folder;
    EXPECT_EQ(FaultOfReplacing(folder.File("nowhere/a.txt")), Fault::PathNotFound);
    EXPECT_EQ(FaultOfReplacing(""), Fault::BadFileName);
    std::filesystem::create_directory(folder.File("folder.txt"));
    EXPECT_EQ(FaultOfReplacing(folder.File("folder.txt")), Fault::PermissionDenied);
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(DiskFiles, NamesOutsideAsciiWork) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    std::string const name = "W\xC3\xA4hrung \xE2\x82\xAC.txt";
    files.Replace(folder.File(name), "x");
    EXPECT_EQ(FaultOfOpening(folder.File(name)), std::nullopt);
    EXPECT_THAT(files.List(folder.Text(), "*.TXT"), UnorderedElementsAre(name));
}

TEST(DiskFiles, ListFilesOfThePatternInEitherCaseAndNoFolders) {
    tests::TemporaryFolder const folder;
    for (auto const* name : {"a.txt", "b.TXT", "c.Txt", "d.txt.bak", "e.dat"}) {
        folder.Write(name, "");
    }
    std::filesystem::create_directory(folder.File("f.txt"));
    EXPECT_THAT(DiskFiles().List(folder.Text(), "*.Txt"), UnorderedElementsAre("a.txt", "b.TXT", "c.Txt"));
    EXPECT_TRUE(DiskFiles().List(folder.File("nowhere/"), "*.Txt").empty());
}

} // namespace
} // namespace quorvex::platform::disk
