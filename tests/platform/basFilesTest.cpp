// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/basFiles.h"

#include "platform/fake/MemoryFiles.h"

#include <gtest/gtest.h>

namespace quorvex::platform {
namespace {

TEST(ReadWholeFile, ReadsEveryByte) {
    fake::MemoryFiles files;
    for (std::size_t const size : {0U, 1U, 4095U, 4096U, 4097U, 20'000U}) {
        files.Contents["a.txt"] = std::string(size, 'a') + std::string("\0\r\n", 3);
        EXPECT_EQ(ReadWholeFile(files, "a.txt"), files.Contents["a.txt"]);
    }
}

TEST(ReadWholeFile, RaisesEveryFault) {
    fake::MemoryFiles files;
    EXPECT_THROW(static_cast<void>(ReadWholeFile(files, "a.txt")), text::RunTimeError);
    files.Contents["a.txt"] = "hello";
    files.BreakReading = {2, text::Fault::PermissionDenied};
    EXPECT_THROW(static_cast<void>(ReadWholeFile(files, "a.txt")), text::RunTimeError);
}

TEST(ReadFileIfThere, ToleratesAMissingFileAlone) {
    fake::MemoryFiles files;
    EXPECT_EQ(ReadFileIfThere(files, "a.txt"), std::nullopt);
    files.Contents["a.txt"] = "hello";
    EXPECT_EQ(ReadFileIfThere(files, "a.txt"), "hello");
    files.BreakReading = {2, text::Fault::PermissionDenied};
    EXPECT_THROW(static_cast<void>(ReadFileIfThere(files, "a.txt")), text::RunTimeError);
}

TEST(IsThere, AFileIsThereEvenWhenItCannotBeRead) {
    fake::MemoryFiles files;
    EXPECT_FALSE(IsThere(files, "a.txt"));
    files.Contents["a.txt"] = "";
    files.BreakReading = {0, text::Fault::PermissionDenied};
    EXPECT_TRUE(IsThere(files, "a.txt"));
}

TEST(BareName, IsWhatStandsBehindTheLastSeparator) {
    EXPECT_EQ(BareName("C:\\Quotes\\a.txt"), "a.txt");
    EXPECT_EQ(BareName("/home/ann/a b.txt"), "a b.txt");
    EXPECT_EQ(BareName("C:\\Quotes/a.txt"), "a.txt");
    EXPECT_EQ(BareName("a.txt"), "a.txt");
    EXPECT_EQ(BareName("Quotes\\"), "");
    EXPECT_EQ(BareName(""), "");
#ifdef _WIN32
    EXPECT_EQ(BareName("C:a.txt"), "a.txt");
#else
    EXPECT_EQ(BareName("C:a.txt"), "C:a.txt");
#endif
}

} // namespace
} // namespace quorvex::platform
