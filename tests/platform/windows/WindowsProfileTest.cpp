// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/windows/WindowsProfile.h"

#include "platform/disk/DiskFiles.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

namespace quorvex::platform::windows {
namespace {

using text::Fault;

class WindowsProfileTest : public testing::Test {
protected:
    [[nodiscard]] std::string DataPath() const { return profile_.ReadString("Globals", "DataPath", "none"); }

    void WriteDataPath(std::string_view value) {
        std::array<ProfileEntry, 1> const entries = {{{"DataPath", value}}};
        profile_.WriteStrings("Globals", entries);
    }

    tests::TemporaryFolder folder_;
    disk::DiskFiles files_;
    WindowsProfile profile_{folder_.File("Quorvex.INI"), files_};
};

TEST_F(WindowsProfileTest, GivesTheDefaultAsItIsWithoutAFileOrKey) {
    EXPECT_EQ(DataPath(), "none");
    EXPECT_EQ(profile_.ReadString("Globals", "DataPath", " 'x' "), " 'x' ");
    folder_.Write("Quorvex.INI", "[Globals]\r\nChartType=x\r\n");
    EXPECT_EQ(DataPath(), "none");
    folder_.Write("Quorvex.INI", "[Globals]\r\nDataPath=\r\n");
    EXPECT_EQ(DataPath(), "");
}

TEST_F(WindowsProfileTest, EveryCharacterComesBackAndTheFileIsUtf8) {
    for (std::string const value :
         {"C:\\Quotes\\", "C:\\W\xC3\xA4hrung \xE2\x82\xAC\\", "C:\\\xE5\xB0\x8F\xE9\xBA\xA6\\",
          "C:\\\xD0\x9F\xD1\x88\xD0\xB5\xD0\xBD\xD0\xB8\xD1\x86\xD0\xB0\\"}) {
        WriteDataPath(value);
        EXPECT_EQ(DataPath(), value);
        EXPECT_EQ(folder_.Read("Quorvex.INI"), "[Globals]\r\nDataPath=" + value + "\r\n");
    }
}

TEST_F(WindowsProfileTest, ReadsAPathOfAnyLanguage) {
    std::string const path = folder_.File("\xE5\xB0\x8F\xE9\xBA\xA6.INI");
    WindowsProfile profile(path, files_);
    std::array<ProfileEntry, 1> const entries = {{{"DataPath", "x"}}};
    profile.WriteStrings("Globals", entries);
    EXPECT_EQ(profile.ReadString("Globals", "DataPath", "none"), "x");
}

TEST_F(WindowsProfileTest, OtherContentStays) {
    std::string const before =
        "; by hand \xC3\xA4\r\n[Old]\r\nkey=1\r\n[Globals]\r\nChartType='x'\r\nDataPath=";
    folder_.Write("Quorvex.INI", before + "a\r\nExtra=1\r\n");
    WriteDataPath("b");
    EXPECT_EQ(folder_.Read("Quorvex.INI"), before + "b\r\nExtra=1\r\n");
    EXPECT_EQ(folder_.Read("Quorvex.INI~"), before + "a\r\nExtra=1\r\n");
    EXPECT_EQ(folder_.EntryCount(), 2);
}

TEST_F(WindowsProfileTest, MarksInFrontStay) {
    folder_.Write("Quorvex.INI", "\xEF\xBB\xBF[Globals]\r\nDataPath=\xC3\xA4\r\n");
    EXPECT_EQ(DataPath(), "\xC3\xA4");
    WriteDataPath("\xE2\x82\xAC");
    EXPECT_EQ(folder_.Read("Quorvex.INI"), "\xEF\xBB\xBF[Globals]\r\nDataPath=\xE2\x82\xAC\r\n");
    folder_.Write("Quorvex.INI", std::string("\xFF\xFE[\0G\0]\0\r\0\n\0k\0=\0\xE4\0", 18));
    EXPECT_EQ(profile_.ReadString("G", "k", "none"), "\xC3\xA4");
}

TEST_F(WindowsProfileTest, CutsLongValuesOnReadingOnly) {
    for (std::size_t const length : {126U, 127U, 128U, 1000U}) {
        std::string const value(length, 'x');
        WriteDataPath(value);
        EXPECT_EQ(DataPath(), value.substr(0, 127));
    }
}

TEST_F(WindowsProfileTest, RefusesAValueOfSeveralLinesOrOfOtherBytes) {
    folder_.Write("Quorvex.INI", "[Globals]\r\nDataPath=old\r\n");
    for (std::string_view const value : {"a\r", "a\n[Globals]", "\xE4"}) {
        std::array<ProfileEntry, 2> const entries = {{{"ChartType", "new"}, {"DataPath", value}}};
        auto const error = text::Trap([&] { profile_.WriteStrings("Globals", entries); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Kind(), Fault::InvalidProcedureCall);
    }
    EXPECT_EQ(folder_.Read("Quorvex.INI"), "[Globals]\r\nDataPath=old\r\n");
}

TEST_F(WindowsProfileTest, AFolderInPlaceOfTheFileIsDenied) {
    std::filesystem::create_directory(folder_.File("Quorvex.INI"));
    EXPECT_EQ(DataPath(), "none");
    auto const error = text::Trap([&] { WriteDataPath("x"); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PermissionDenied);
    EXPECT_EQ(folder_.EntryCount(), 1);
}

} // namespace
} // namespace quorvex::platform::windows
