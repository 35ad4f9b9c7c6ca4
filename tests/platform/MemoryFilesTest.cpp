// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/fake/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace quorvex::platform::fake {
namespace {

using testing::ElementsAre;

TEST(MemoryFiles, KeepWhatWasWritten) {
    MemoryFiles files;
    files.Replace("C:\\a.txt", "hello");
    std::array<char, 16> buffer{};
    auto const source = files.OpenForInput("C:\\a.txt");
    EXPECT_EQ(source->Read(buffer), 5U);
    EXPECT_EQ(std::string(buffer.data(), 5), "hello");
    EXPECT_EQ(source->Read(buffer), 0U);
    EXPECT_THROW(static_cast<void>(files.OpenForInput("C:\\b.txt")), text::RunTimeError);
}

TEST(MemoryFiles, ListTheFilesOfOneFolder) {
    MemoryFiles files;
    files.Contents = {{"C:\\q\\b.TXT", ""}, {"C:\\q\\a.txt", ""}, {"C:\\q\\x\\c.txt", ""}, {"C:\\d.txt", ""}};
    EXPECT_THAT(files.List("C:\\q\\", "*.Txt"), ElementsAre("a.txt", "b.TXT"));
}

TEST(MemoryFiles, FailAsTold) {
    MemoryFiles files;
    files.Contents = {{"a.txt", "hello"}};
    files.BreakReading = {2, text::Fault::PermissionDenied};
    std::array<char, 16> buffer{};
    auto const source = files.OpenForInput("a.txt");
    EXPECT_EQ(source->Read(buffer), 2U);
    EXPECT_THROW(static_cast<void>(source->Read(buffer)), text::RunTimeError);
    files.BreakWriting = text::Fault::DiskFull;
    EXPECT_THROW(files.Replace("a.txt", "new"), text::RunTimeError);
    EXPECT_EQ(files.Contents.at("a.txt"), "hello");
}

} // namespace
} // namespace quorvex::platform::fake
