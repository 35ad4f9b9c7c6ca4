// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What only Windows does to files.

#include "platform/basFiles.h"
#include "platform/disk/DiskFiles.h"
#include "platform/disk/HostFile.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <windows.h>

namespace quorvex::platform::disk {
namespace {

using text::Fault;

std::string const Name = "W\xC3\xA4hrung \xD0\x9F\xD1\x88\xD0\xB5\xD0\xBD \xE5\xB0\x8F\xE9\xBA\xA6.txt";

template <class Routine>
std::optional<Fault> FaultOf(Routine const& routine) {
    auto const error = text::Trap(routine);
    return error ? std::optional(error->Kind()) : std::nullopt;
}

// A file that another program has open.
class HeldFile {
public:
    HeldFile(std::filesystem::path const& path, DWORD shared)
        : handle_(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr)) {}

    HeldFile(HeldFile const&) = delete;
    HeldFile& operator=(HeldFile const&) = delete;

    ~HeldFile() { Release(); }

    [[nodiscard]] bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

    void Release() {
        if (IsOpen()) {
            CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
        }
    }

private:
    HANDLE handle_;
};

TEST(WindowsFiles, AFileThatAnotherProgramHoldsStaysAndIsToldOf) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "old");
    HeldFile const held(folder.Path() / "a.txt", FILE_SHARE_READ);
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(FaultOf([&] { files.Replace(folder.File("a.txt"), "new"); }), Fault::PermissionDenied);
    EXPECT_EQ(FaultOf([&] { files.Overwrite(folder.File("a.txt"), "new"); }), Fault::PermissionDenied);
    EXPECT_EQ(FaultOf([&] { files.Remove(folder.File("a.txt")); }), Fault::PermissionDenied);
    EXPECT_EQ(FaultOf([&] { files.OpenForOutput(folder.File("a.txt"))->Close(); }), Fault::PermissionDenied);
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 2); // with the copy that was made before
}

TEST(WindowsFiles, AFileThatIsNotSharedCannotBeRead) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    HeldFile const held(folder.Path() / "a.txt", 0);
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(FaultOf([&] { static_cast<void>(DiskFiles().OpenForInput(folder.File("a.txt"))); }),
              Fault::PermissionDenied);
}

TEST(WindowsFiles, NobodyElseWritesWhatIsAppendedTo) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "one");
    auto const path = HostPath(folder.File("a.txt"));
    DiskFiles files;
    for (bool const isHeld : {false, true}) {
        SCOPED_TRACE(isHeld);
        auto const sink = isHeld ? OpenHeldHostFileToAppend(path) : OpenHostFileToAppend(path);
        ASSERT_NE(sink, nullptr);
        EXPECT_EQ(FaultOf([&] { files.Append(folder.File("a.txt"), "two"); }), Fault::PermissionDenied);
        EXPECT_EQ(FaultOf([&] { files.OpenForOutput(folder.File("a.txt"))->Close(); }),
                  Fault::PermissionDenied);
        EXPECT_EQ(ReadWholeFile(files, folder.File("a.txt")), "one");
        sink->Close();
    }
    files.Append(folder.File("a.txt"), "two");
    EXPECT_EQ(folder.Read("a.txt"), "onetwo");
}

TEST(WindowsFiles, WhoHoldsAFileIsToldFromWhoAppends) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "one");
    auto const path = HostPath(folder.File("a.txt"));
    auto const held = OpenHeldHostFileToAppend(path);
    ASSERT_NE(held, nullptr);
    EXPECT_EQ(OpenHeldHostFileToAppend(path), nullptr);
    held->Close();
    auto const appended = OpenHostFileToAppend(path);
    EXPECT_EQ(FaultOf([&] { static_cast<void>(OpenHeldHostFileToAppend(path)); }), Fault::PermissionDenied);
}

TEST(WindowsFiles, AFileThatIsHeldForAMomentIsWaitedFor) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    for (auto const &deed :
         std::initializer_list<std::pair<char const*, void (*)(DiskFiles&, std::string const&)>>{
             {"replaced", [](DiskFiles&on, std::string const&path) { on.Replace(path, "new"); }},
             {"emptied",
              [](DiskFiles&on, std::string const&path) { on.OpenForOutput(path)->Write("new"); }}}) {
        SCOPED_TRACE(deed.first);
        folder.Write("a.txt", "old");
        HeldFile held(folder.Path() / "a.txt", FILE_SHARE_READ);
        ASSERT_TRUE(held.IsOpen());
        std::thread other([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(120));
            held.Release();
        });
        EXPECT_EQ(FaultOf([&] { deed.second(files, folder.File("a.txt")); }), std::nullopt);
        other.join();
        EXPECT_EQ(folder.Read("a.txt"), "new");
    }
}

TEST(WindowsFiles, WhatTheProgramReadsCanBeDeletedByOthers) {
    tests::TemporaryFolder const folder;
    folder.Write("a.txt", "old");
    auto const source = DiskFiles().OpenForInput(folder.File("a.txt"));
    EXPECT_TRUE(std::filesystem::remove(folder.Path() / "a.txt"));
}

TEST(WindowsFiles, ReadOnlyFilesAreRefusedAndStay) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "old");
    auto const path = folder.Path() / "a.txt";
    ASSERT_NE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(FaultOf([&] { files.Replace(folder.File("a.txt"), "new"); }), Fault::PermissionDenied);
    EXPECT_EQ(FaultOf([&] { files.Append(folder.File("a.txt"), "new"); }), Fault::PermissionDenied);
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(folder.EntryCount(), 1);
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFiles, HiddenFilesStayHidden) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "old");
    auto const path = folder.Path() / "a.txt";
    ASSERT_NE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
    files.Replace(folder.File("a.txt"), "new");
    EXPECT_NE(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
    files.OpenForOutput(folder.File("a.txt"))->Close();
    EXPECT_EQ(files.Length(folder.File("a.txt")), 0U);
}

TEST(WindowsFiles, DevicesAndStreamsAreNoFiles) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    folder.Write("a.txt", "old");
    for (auto const* name : {"NUL", "nul.txt", "com1.dat", "a.txt:b"}) {
        SCOPED_TRACE(name);
        std::string const path = folder.File(name);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenForInput(path)); }), Fault::BadFileName);
        EXPECT_EQ(FaultOf([&] { files.Replace(path, "new"); }), Fault::BadFileName);
        EXPECT_EQ(FaultOf([&] { files.OpenForOutput(path)->Close(); }), Fault::BadFileName);
        EXPECT_EQ(FaultOf([&] { static_cast<void>(OpenFileOrPipe(path)); }), Fault::BadFileName);
    }
    EXPECT_EQ(folder.EntryCount(), 1);
}

TEST(WindowsFiles, NamesOfAnyLanguageAndBytesThatAreNone) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    files.Replace(folder.File(Name), "x");
    files.Replace(folder.File(Name), "y");
    EXPECT_EQ(ReadWholeFile(files, folder.File(Name)), "y");
    EXPECT_THAT(files.List(folder.Text(), "*.txt"), testing::ElementsAre(Name));
    EXPECT_EQ(FaultOf([&] { files.Replace(folder.File("W\xE4hrung.txt"), "x"); }), Fault::BadFileName);
}

TEST(WindowsFiles, PathsCanBeLong) {
    std::optional<tests::TemporaryFolder> folder(std::in_place);
    DiskFiles files;
    std::string deep = folder->Text();
    std::wstring wide = L"\\\\?\\" + folder->Path().native();
    for (int level = 0; level < 4; ++level) {
        deep += std::string(80, 'd') + '\\';
        wide += L'\\' + std::wstring(80, L'd');
        ASSERT_NE(CreateDirectoryW(wide.c_str(), nullptr), 0);
    }
    files.Replace(deep + "a.txt", "one");
    files.Replace(deep + "a.txt", "two");
    EXPECT_EQ(ReadWholeFile(files, deep + "a.txt"), "two");
    EXPECT_EQ(ReadWholeFile(files, deep + "a.txt~"), "one");
    EXPECT_EQ(files.Length(deep + "a.txt"), 3U);
    EXPECT_THAT(files.List(deep, "*.txt"), testing::ElementsAre("a.txt"));
    files.Append(deep + "a.txt", "three");
    EXPECT_EQ(ReadWholeFile(files, deep + "../" + std::string(80, 'd') + "/a.txt"), "twothree");
    files.Remove(deep + "a.txt");
    files.Remove(deep + "a.txt~");
    EXPECT_TRUE(files.List(deep, "*").empty());
    files.Replace(deep + "a.txt", "left to the folder");
    auto const path = folder->Path();
    folder.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(WindowsFiles, ANameAloneIsOneOfTheCurrentFolder) {
    tests::TemporaryFolder const folder;
    auto const before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Path());
    DiskFiles files;
    files.Replace("a.txt", "one");
    files.Replace("a.txt", "two");
    std::filesystem::current_path(before);
    EXPECT_EQ(folder.Read("a.txt"), "two");
    EXPECT_EQ(folder.Read("a.txt~"), "one");
}

TEST(WindowsFiles, TooLongNamesAreBadNames) {
    tests::TemporaryFolder const folder;
    DiskFiles files;
    for (std::size_t const length : {256U, 5000U, 40'000U}) {
        std::string const path = folder.File(std::string(length, 'x'));
        EXPECT_EQ(FaultOf([&] { static_cast<void>(files.OpenForInput(path)); }), Fault::BadFileName);
        EXPECT_EQ(FaultOf([&] { files.Replace(path, "x"); }), Fault::BadFileName);
    }
    EXPECT_EQ(folder.EntryCount(), 0);
}

} // namespace
} // namespace quorvex::platform::disk
