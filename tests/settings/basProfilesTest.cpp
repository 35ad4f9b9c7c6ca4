// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "settings/basProfiles.h"

#include "platform/disk/DiskFiles.h"
#include "platform/disk/DiskProfile.h"
#include "platform/fake/MemoryProfile.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvex::settings {
namespace {

using Entry = platform::fake::MemoryProfile::Entry;
using testing::ElementsAre;

constexpr char const* Folder = "C:\\Quorvex\\";

// An INI file on the disk that settings are read from and written to.
class IniFile {
public:
    [[nodiscard]] Settings Read() const {
        Settings settings;
        ReadProfile(settings, profile_, Folder);
        return settings;
    }

    void Write(Settings const& settings) { WriteProfile(settings, profile_); }

    void SetContent(std::string_view content) const { folder_.Write("Quorvex.INI", content); }

    [[nodiscard]] std::string Content() const { return folder_.Read("Quorvex.INI"); }

private:
    tests::TemporaryFolder folder_;
    platform::disk::DiskFiles files_;
    platform::disk::DiskProfile profile_{folder_.File("Quorvex.INI"), files_};
};

TEST(Profiles, AreNamedAfterTheExecutable) {
    EXPECT_EQ(ProfileFileName("C:\\Quorvex\\", "Quorvex"), "C:\\Quorvex\\Quorvex.INI");
    EXPECT_EQ(ProfileFileName("/home/ann", "Trader"), "/home/ann/Trader.INI");
}

TEST(Profiles, WithoutAFileGiveTheDefaults) {
    Settings const settings = IniFile().Read();
    EXPECT_EQ(settings.DataPath, "C:\\Quorvex\\");
    EXPECT_EQ(settings.ChartType, "Daily Bar Chart");
    EXPECT_EQ(settings.DataSource, "Close Only");
    EXPECT_EQ(settings.MovingAverageIndex, "3");
    EXPECT_EQ(settings.CurrencyFormat, "####0.00");
}

TEST(Profiles, MissingKeysHaveTheirDefaults) {
    IniFile const file;
    file.SetContent("[Globals]\r\nMovingAverageIndex=9\r\n");
    Settings const settings = file.Read();
    EXPECT_EQ(settings.DataPath, "C:\\Quorvex\\");
    EXPECT_EQ(settings.ChartType, "Daily Bar Chart");
    EXPECT_EQ(settings.MovingAverageIndex, "9");
}

TEST(Profiles, ReadEverySettingWhateverItIs) {
    IniFile const file;
    file.SetContent(
        "[globals]\ncurrencyformat='#,##0'\nMOVINGAVERAGEINDEX = forty\nDataSource=\nChartType=Pie\n"
        "DataPath=D:\\q\\\n");
    Settings const settings = file.Read();
    EXPECT_EQ(settings.DataPath, "D:\\q\\");
    EXPECT_EQ(settings.ChartType, "Pie");
    EXPECT_EQ(settings.DataSource, "");
    EXPECT_EQ(settings.MovingAverageIndex, "forty");
    EXPECT_EQ(settings.CurrencyFormat, "#,##0");
}

TEST(Profiles, ADataPathGetsItsSeparator) {
    IniFile const file;
    file.SetContent("[Globals]\r\nDataPath=C:\\Quotes\r\n");
    EXPECT_EQ(file.Read().DataPath, "C:\\Quotes\\");
    file.SetContent("[Globals]\r\nDataPath=/home/ann/quotes\r\n");
    EXPECT_EQ(file.Read().DataPath, "/home/ann/quotes/");
    file.SetContent("[Globals]\r\nDataPath=" + std::string(200, 'x') + "\r\n");
    EXPECT_EQ(file.Read().DataPath, std::string(127, 'x') + "\\");
}

TEST(Profiles, AreWrittenInTheOrderOfTheTable) {
    IniFile file;
    file.Write({"C:\\Quotes\\", "Line Chart", "OHLC Average", "5", "####0.000"});
    EXPECT_EQ(file.Content(), "[Globals]\r\n"
                              "DataPath=C:\\Quotes\\\r\n"
                              "ChartType=Line Chart\r\n"
                              "DataSource=OHLC Average\r\n"
                              "MovingAverageIndex=5\r\n"
                              "CurrencyFormat=####0.000\r\n");
}

TEST(Profiles, GiveBackWhatWasWritten) {
    IniFile file;
    for (Settings const& written :
         {Settings{"C:\\Quotes\\", "Candlestick Chart", "High-Low Average", "0", "####0"},
          Settings{"/home/ann/W\xC3\xA4hrung \xE2\x82\xAC/", "", " ", "'5'", "\"US$ \"0.00\" each\""},
          Settings{" C:\\a;b#c=d[e]\\", "\"", "''", "\t7 ", ";0.00"},
          Settings{std::string(126, 'x') + '\\', std::string(127, ' '), std::string(127, '\''), "=",
                   "[Globals]"}}) {
        file.Write(written);
        Settings const read = file.Read();
        for (SettingRow const& row : SettingTable()) {
            EXPECT_EQ(read.*row.Member, written.*row.Member) << row.Key;
        }
    }
}

TEST(Profiles, KeepWhatElseStandsInTheFile) {
    IniFile file;
    file.SetContent(
        "; mine\n[Recent]\nFile1 = corn.txt\n\n[Globals]\n; old\nChartType = Line Chart\n\n[Tail]\nx=1\n");
    file.Write({"C:\\Quotes\\", "Pie", "Close Only", "3", "####0.00"});
    EXPECT_EQ(file.Content(), "; mine\n[Recent]\nFile1 = corn.txt\n\n[Globals]\n; old\nChartType = Pie\n"
                              "DataPath=C:\\Quotes\\\r\nDataSource=Close Only\r\nMovingAverageIndex=3\r\n"
                              "CurrencyFormat=####0.00\r\n\n[Tail]\nx=1\n");
}

TEST(Profiles, AskForTheirSectionAndKeys) {
    platform::fake::MemoryProfile profile;
    WriteProfile({"a\\", "b", "c", "d", "e"}, profile);
    EXPECT_THAT(profile.Entries,
                ElementsAre(Entry{"Globals", "DataPath", "a\\"}, Entry{"Globals", "ChartType", "b"},
                            Entry{"Globals", "DataSource", "c"}, Entry{"Globals", "MovingAverageIndex", "d"},
                            Entry{"Globals", "CurrencyFormat", "e"}));
}

TEST(Profiles, RaiseTheFaultOfWriting) {
    platform::fake::MemoryProfile profile;
    profile.BreakWriting = text::Fault::DiskFull;
    auto const error = text::Trap([&] { WriteProfile(DefaultSettings(Folder), profile); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), text::Fault::DiskFull);
}

} // namespace
} // namespace quorvex::settings
