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

TEST(MemoryFiles, FindBareNamesInTheCurrentFolder) {
    MemoryFiles files;
    files.Contents["C:\\Quotes\\a.txt"] = "one";
    EXPECT_FALSE(files.AreSame("a.txt", "C:\\Quotes\\a.txt"));
    files.CurrentFolder = "C:\\Quotes\\";
    EXPECT_TRUE(files.AreSame("a.txt", "C:\\Quotes\\a.txt"));
    EXPECT_FALSE(files.AreSame("b.txt", "C:\\Quotes\\b.txt")); // which is not there
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

TEST(MemoryFiles, KeepWhatIsReplaced) {
    MemoryFiles files;
    files.Contents = {{"a.txt", "old"}, {"empty.txt", ""}};
    files.Replace("a.txt", "old");
    files.Replace("empty.txt", "new");
    files.Overwrite("empty.txt", "newer");
    files.Keep("gone.txt");
    EXPECT_EQ(files.Contents.size(), 2U);
    files.BreakKeeping = text::Fault::PermissionDenied;
    EXPECT_THROW(files.Replace("a.txt", "new"), text::RunTimeError);
    EXPECT_THROW(files.Keep("a.txt"), text::RunTimeError);
    EXPECT_EQ(files.Contents.at("a.txt"), "old");
    EXPECT_EQ(files.Contents.size(), 2U);
    files.BreakKeeping.reset();
    files.Replace("a.txt", "new");
    EXPECT_EQ(files.Contents.at("a.txt"), "new");
    EXPECT_EQ(files.Contents.at("a.txt~"), "old");
    files.Keep("a.txt");
    EXPECT_EQ(files.Contents.at("a.txt~"), "new");
}

TEST(MemoryFiles, AreEmptiedWrittenMeasuredAndRemoved) {
    MemoryFiles files;
    files.Contents = {{"a.txt", "old text"}};
    auto const sink = files.OpenForOutput("a.txt");
    EXPECT_EQ(files.Length("a.txt"), 0U);
    sink->Write("hel");
    sink->Write("lo");
    sink->Close();
    EXPECT_EQ(files.Contents.at("a.txt"), "hello");
    EXPECT_EQ(files.Length("a.txt"), 5U);
    files.Remove("a.txt");
    EXPECT_TRUE(files.Contents.empty());
    EXPECT_THROW(files.Remove("a.txt"), text::RunTimeError);
    EXPECT_THROW(static_cast<void>(files.Length("a.txt")), text::RunTimeError);
}

TEST(MemoryFiles, CountWhatIsOpenAndKeepIt) {
    MemoryFiles files;
    files.Contents = {{"a.txt", "hello"}, {"b.txt", "old"}};
    auto source = files.OpenForInput("a.txt");
    auto again = files.OpenForInput("a.txt");
    auto sink = files.OpenForOutput("b.txt");
    EXPECT_EQ(files.OpenCount(), 3U);
    again.reset();
    EXPECT_THROW(files.Remove("a.txt"), text::RunTimeError);
    EXPECT_THROW(files.Remove("b.txt"), text::RunTimeError);
    EXPECT_TRUE(files.Contents.contains("a.txt") && files.Contents.contains("b.txt"));
    source.reset();
    files.Remove("a.txt");
    sink->Close();
    EXPECT_EQ(files.OpenCount(), 0U);
    files.Remove("b.txt");
    sink.reset();
    EXPECT_EQ(files.OpenCount(), 0U);
    files.OpenForOutput("c.txt").reset();
    EXPECT_EQ(files.OpenCount(), 0U);
}

TEST(MemoryFiles, CountNoFileAsOpenThatBrokeOnClosing) {
    MemoryFiles files;
    files.BreakOutput = {4, text::Fault::DiskFull};
    auto const sink = files.OpenForOutput("a.txt");
    EXPECT_THROW(sink->Close(), text::RunTimeError);
    EXPECT_EQ(files.OpenCount(), 0U);
}

TEST(MemoryFiles, BreakOffWhileTheyAreWritten) {
    MemoryFiles files;
    files.BreakOutput = {4, text::Fault::DiskFull};
    auto const sink = files.OpenForOutput("a.txt");
    sink->Write("hel");
    EXPECT_THROW(sink->Write("lo"), text::RunTimeError);
    EXPECT_EQ(files.Contents.at("a.txt"), "hell");
    auto const full = files.OpenForOutput("b.txt");
    full->Write("hell");
    EXPECT_THROW(full->Close(), text::RunTimeError);
    files.BreakRemoving = text::Fault::PermissionDenied;
    EXPECT_THROW(files.Remove("a.txt"), text::RunTimeError);
    files.BreakWriting = text::Fault::PermissionDenied;
    EXPECT_THROW(static_cast<void>(files.OpenForOutput("a.txt")), text::RunTimeError);
    EXPECT_EQ(files.Contents.at("a.txt"), "hell");
}

} // namespace
} // namespace quorvex::platform::fake
