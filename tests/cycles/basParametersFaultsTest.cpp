// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Odd and unreadable parameter files on a real disk.

#include "CycleTexts.h"
#include "cycles/basParameters.h"
#include "platform/disk/DiskFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/AsOrdinaryUser.h"
#include "support/Messages.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace quorvex::cycles {
namespace {

using platform::Icon;
using tests::IsOnlyMessage;

class ParameterFileFaults : public testing::Test {
protected:
    bool Read(std::string const& name) { return ReadParameterFile(folder.File(name), *set, disk, dialogs); }

    bool ReadText(std::string const& text) {
        folder.Write("test.dat", text);
        return Read("test.dat");
    }

    tests::TemporaryFolder folder;
    std::unique_ptr<CycleParameterSet> set = SetOf({{9, 9, 9, 9}});
    platform::disk::DiskFiles disk;
    platform::fake::ScriptedDialogs dialogs;
};

TEST_F(ParameterFileFaults, AFolderInPlaceOfAFileIsReported) {
    std::filesystem::create_directory(folder.File("folder.dat"));
    EXPECT_FALSE(Read("folder.dat"));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_EQ(set->Cycles[1].Weight, 9);
}

TEST_F(ParameterFileFaults, AMissingFolderIsReported) {
    EXPECT_FALSE(Read("nowhere/test.dat"));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Path not found", "Quorvex", Icon::None));
}

#ifndef _WIN32
TEST_F(ParameterFileFaults, AnUnreadableFileIsReported) {
    folder.Write("secret.dat", "1, 2, 3, 4\r\n");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder.File("secret.dat"), std::filesystem::perms::none);
    {
        tests::AsOrdinaryUser const user;
        EXPECT_FALSE(Read("secret.dat"));
    }
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
}
#endif

TEST_F(ParameterFileFaults, AnEmptyFileChangesNothing) {
    EXPECT_TRUE(ReadText(""));
    EXPECT_TRUE(ReadText("\xEF\xBB\xBF\x1a"));
    EXPECT_TRUE(ReadText(" \r\n\r\n"));
    EXPECT_EQ(set->Cycles[1].Weight, 9);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(ParameterFileFaults, ReadsAllLineEndsAByteOrderMarkAndACtrlZ) {
    EXPECT_TRUE(ReadText("\xEF\xBB\xBF"
                         "1, 2, 3, 4\r5, 6, 7, 8\n9, 10, 11, 12\r\n\x1a"));
    EXPECT_EQ(set->Cycles[1].Weight, 1);
    EXPECT_EQ(set->Cycles[2].Weight, 5);
    EXPECT_EQ(set->Cycles[3].Decay, 12);
}

TEST_F(ParameterFileFaults, ABinaryFileGivesZerosAndTooManyCycles) {
    std::string binary;
    for (int times = 0; times < 1000; ++times) {
        binary += std::string("\0\x01,\xff\xfe,", 6);
    }
    EXPECT_FALSE(ReadText(binary));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Subscript out of range", "Quorvex", Icon::None));
    EXPECT_EQ(set->Cycles[1].Weight, 0);
}

TEST_F(ParameterFileFaults, ALineOfAHundredMegabytesEndsInsideItsCycle) {
    constexpr std::size_t HundredMegabytes = 100'000'000;
    EXPECT_FALSE(ReadText(std::string(HundredMegabytes, 'x')));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Input past end of file", "Quorvex", Icon::None));
    EXPECT_EQ(set->Cycles[1].Weight, 9);
}

} // namespace
} // namespace quorvex::cycles
