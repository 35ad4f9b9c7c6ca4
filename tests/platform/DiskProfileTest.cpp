// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/disk/DiskProfile.h"

#include "platform/disk/DiskFiles.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace quorvex::platform::disk {
namespace {

using text::Fault;

class DiskProfileTest : public testing::Test {
protected:
    [[nodiscard]] std::string DataPath() const { return profile_.ReadString("Globals", "DataPath", "none"); }

    void WriteDataPath(std::string_view value) {
        std::array<ProfileEntry, 1> const entries = {{{"DataPath", value}}};
        profile_.WriteStrings("Globals", entries);
    }

    std::optional<Fault> FaultOfWriting(std::string_view value) {
        auto const error = text::Trap([&] { WriteDataPath(value); });
        return error ? std::optional(error->Kind()) : std::nullopt;
    }

    tests::TemporaryFolder folder_;
    DiskFiles files_;
    DiskProfile profile_{folder_.File("Quorvex.INI"), files_};
};

TEST_F(DiskProfileTest, GivesTheDefaultAsItIsWithoutAFileOrKey) {
    EXPECT_EQ(DataPath(), "none");
    EXPECT_EQ(profile_.ReadString("Globals", "DataPath", " 'x' "), " 'x' ");
    std::string const deep(300, 'd');
    EXPECT_EQ(profile_.ReadString("Globals", "DataPath", deep), deep);
    folder_.Write("Quorvex.INI", "[Globals]\r\nChartType=x\r\n");
    EXPECT_EQ(DataPath(), "none");
}

TEST_F(DiskProfileTest, AnEmptyValueIsOne) {
    folder_.Write("Quorvex.INI", "[Globals]\r\nDataPath=\r\n");
    EXPECT_EQ(DataPath(), "");
}

TEST_F(DiskProfileTest, RemovesOnePairOfQuotationMarks) {
    folder_.Write("Quorvex.INI",
                  "[Globals]\r\nDataPath = \" C:\\Quotes \" \r\nB=''x''\r\nC=\"x'\r\nD=\"\r\n");
    EXPECT_EQ(DataPath(), " C:\\Quotes ");
    EXPECT_EQ(profile_.ReadString("Globals", "B", ""), "'x'");
    EXPECT_EQ(profile_.ReadString("Globals", "C", ""), "\"x'");
    EXPECT_EQ(profile_.ReadString("Globals", "D", ""), "\"");
}

TEST_F(DiskProfileTest, CutsLongValuesOnReadingOnly) {
    for (std::size_t const length : {126U, 127U, 128U, 129U, 5000U}) {
        std::string const value = "C:\\" + std::string(length - 3, 'x');
        WriteDataPath(value);
        EXPECT_EQ(DataPath(), value.substr(0, 127)) << length;
        EXPECT_EQ(folder_.Read("Quorvex.INI"), "[Globals]\r\nDataPath=" + value + "\r\n");
    }
}

TEST_F(DiskProfileTest, CutsBehindTheQuotationMarks) {
    WriteDataPath('"' + std::string(127, 'x') + '"');
    EXPECT_EQ(DataPath(), std::string(127, 'x'));
}

TEST_F(DiskProfileTest, BytesOutsideAsciiComeBack) {
    for (std::string const value : {"C:\\W\xC3\xA4hrung \xE2\x82\xAC\\", "\xE4\xF6\xFC", "\x80\xFF\x01"}) {
        WriteDataPath(value);
        EXPECT_EQ(DataPath(), value);
    }
}

TEST_F(DiskProfileTest, KeepsForeignContent) {
    std::string const before =
        "; by hand\n\n[Old]\r\nkey = 1\r\n\r\n[globals]\r\nChartType='x' \r\ndatapath = ";
    std::string const after = "\r\nExtra=1\r\n\r\n[New]\r\nkey=2";
    folder_.Write("Quorvex.INI", before + "a" + after);
    WriteDataPath("C:\\Quotes\\");
    EXPECT_EQ(folder_.Read("Quorvex.INI"), before + "C:\\Quotes\\" + after);
    EXPECT_EQ(folder_.Read("Quorvex.INI~"), before + "a" + after);
    EXPECT_EQ(folder_.EntryCount(), 2);
}

TEST_F(DiskProfileTest, ReadsAFileLargerThanItsBuffer) {
    std::string const filling(20'000, 'f');
    folder_.Write("Quorvex.INI", "[Filling]\r\nkey=" + filling + "\r\n[Globals]\r\nDataPath=x\r\n");
    EXPECT_EQ(DataPath(), "x");
    WriteDataPath("y");
    EXPECT_EQ(folder_.Read("Quorvex.INI"), "[Filling]\r\nkey=" + filling + "\r\n[Globals]\r\nDataPath=y\r\n");
}

TEST_F(DiskProfileTest, RefusesAValueOfSeveralLines) {
    folder_.Write("Quorvex.INI", "[Globals]\r\nDataPath=old\r\n");
    for (std::string_view const value :
         {std::string_view("a\r"), std::string_view("a\n[Globals]"), std::string_view("a\0b", 3)}) {
        std::array<ProfileEntry, 2> const entries = {{{"ChartType", "new"}, {"DataPath", value}}};
        auto const error = text::Trap([&] { profile_.WriteStrings("Globals", entries); });
        ASSERT_TRUE(error);
        EXPECT_EQ(error->Kind(), Fault::InvalidProcedureCall);
        EXPECT_EQ(folder_.Read("Quorvex.INI"), "[Globals]\r\nDataPath=old\r\n");
    }
}

TEST_F(DiskProfileTest, AFolderInPlaceOfTheFileIsDenied) {
    std::filesystem::create_directory(folder_.File("Quorvex.INI"));
    EXPECT_EQ(DataPath(), "none");
    EXPECT_EQ(FaultOfWriting("x"), Fault::PermissionDenied);
    EXPECT_EQ(folder_.EntryCount(), 1);
}

TEST_F(DiskProfileTest, AMissingFolderIsNotMade) {
    DiskProfile nowhere(folder_.File("nowhere/Quorvex.INI"), files_);
    std::array<ProfileEntry, 1> const entries = {{{"DataPath", "x"}}};
    EXPECT_EQ(nowhere.ReadString("Globals", "DataPath", "none"), "none");
    auto const error = text::Trap([&] { nowhere.WriteStrings("Globals", entries); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), Fault::PathNotFound);
    EXPECT_EQ(folder_.EntryCount(), 0);
}

} // namespace
} // namespace quorvex::platform::disk
