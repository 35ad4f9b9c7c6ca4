// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// What happens to quote files and to the series in memory when files are odd and devices fail.

#include "platform/disk/DiskFiles.h"
#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "quotes/QuoteMessages.h"
#include "quotes/basDisk.h"
#include "support/AsOrdinaryUser.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace quorvex::quotes {
namespace {

using platform::Icon;
using tests::IsOnlyMessage;
using tests::QuoteLines;
using text::Fault;

class QuoteFileFaults : public testing::Test {
protected:
    std::int16_t Load(std::string const& name) {
        series->QuoteFileName = name;
        return LoadQuoteFile(*series, settings, disk, dialogs);
    }

    std::int16_t LoadText(std::string const& text) {
        folder.Write("test.txt", text);
        return Load("test.txt");
    }

    tests::TemporaryFolder folder;
    std::unique_ptr<QuoteSeries> series = std::make_unique<QuoteSeries>();
    settings::Settings settings = settings::DefaultSettings(folder.Text());
    platform::disk::DiskFiles disk;
    platform::fake::ScriptedDialogs dialogs;
};

TEST_F(QuoteFileFaults, AMissingFileIsReportedAndLeavesTheSeries) {
    ASSERT_EQ(LoadText(QuoteLines(30)), 30);
    EXPECT_EQ(Load("gone.txt"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "File not found", "Quorvex", Icon::None));
    EXPECT_EQ(series->QuoteCount, 30);
    EXPECT_EQ(series->WorkingCount, 30);
    EXPECT_EQ(series->Working[30].Close, 130);
}

TEST_F(QuoteFileFaults, AMissingFolderIsReported) {
    settings.DataPath = folder.Text() + "nowhere\\";
    EXPECT_EQ(Load("test.txt"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Path not found", "Quorvex", Icon::None));
}

TEST_F(QuoteFileFaults, AFolderInPlaceOfAFileIsReported) {
    std::filesystem::create_directory(folder.File("folder.txt"));
    EXPECT_EQ(Load("folder.txt"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
}

#ifndef _WIN32
TEST_F(QuoteFileFaults, AnUnreadableFileIsReported) {
    folder.Write("secret.txt", QuoteLines(30));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder.File("secret.txt"), std::filesystem::perms::none);
    {
        tests::AsOrdinaryUser const user;
        EXPECT_EQ(Load("secret.txt"), 0);
    }
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
}
#endif

TEST_F(QuoteFileFaults, ADeviceThatFailsHalfWayLeavesTheCountsAsTheyWere) {
    platform::fake::MemoryFiles files;
    files.Contents[folder.File("bad.txt")] = QuoteLines(100);
    files.BreakReading = {2000, Fault::PermissionDenied};
    ASSERT_EQ(LoadText(QuoteLines(30)), 30);
    series->QuoteFileName = "bad.txt";
    EXPECT_EQ(LoadQuoteFile(*series, settings, files, dialogs), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Permission denied", "Quorvex", Icon::None));
    EXPECT_EQ(series->QuoteCount, 30);
    EXPECT_EQ(series->WorkingCount, 30);
}

TEST_F(QuoteFileFaults, ANumberBeyondADoubleIsReported) {
    EXPECT_EQ(LoadText(QuoteLines(30) + "03/05/02, 1e999, 1, 1, 1, 1, 1\r\n"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Overflow", "Quorvex", Icon::None));
}

TEST_F(QuoteFileFaults, AVolumeBeyondADoubleIsReported) {
    EXPECT_EQ(LoadText(QuoteLines(30) + "03/05/02, 1, 1, 1, 1, 1e999, 1\r\n"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Overflow", "Quorvex", Icon::None));
}

TEST_F(QuoteFileFaults, AProductOfPricesBeyondADoubleIsReported) {
    EXPECT_EQ(LoadText(QuoteLines(30) + "03/05/02, 1e300, 1e300, 1, 1, 1, 1\r\n"), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Overflow", "Quorvex", Icon::None));
}

TEST_F(QuoteFileFaults, ACurrencyFormatThatPrintsNoNumberIsReported) {
    settings.CurrencyFormat = "$0.00";
    EXPECT_EQ(LoadText(QuoteLines(30)), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Type mismatch", "Quorvex", Icon::None));
}

TEST_F(QuoteFileFaults, RefusesFilesWithoutQuotes) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    std::string binary;
    for (int times = 0; times < 1000; ++times) {
        binary += everyByte;
    }
    for (std::string const& text : {std::string(), std::string("\x1a"), std::string("\xEF\xBB\xBF"),
                                    std::string(" \t\r\n \r\r\n"), std::string(100'000, '\0'), binary}) {
        SCOPED_TRACE(text.size());
        dialogs.Messages.clear();
        EXPECT_EQ(LoadText(text), 0);
        EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, TooFewQuotes, "Quorvex Requirements", Icon::Information));
    }
}

TEST_F(QuoteFileFaults, RefusesALineOfAHundredMegabytes) {
    constexpr std::size_t HundredMegabytes = 100'000'000;
    EXPECT_EQ(LoadText(std::string(HundredMegabytes, 'x')), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, TooFewQuotes, "Quorvex Requirements", Icon::Information));
}

TEST_F(QuoteFileFaults, ReadsQuotesBehindALineOfAHundredMegabytes) {
    constexpr std::size_t HundredMegabytes = 100'000'000;
    EXPECT_EQ(LoadText(std::string(HundredMegabytes, ' ') + "\r\n" + QuoteLines(25)), 25);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteFileFaults, ReadsAllLineEndsAByteOrderMarkAndACtrlZ) {
    std::string text = "\xEF\xBB\xBF" + QuoteLines(26);
    // The first line ends with CR alone, the second with LF alone.
    text.erase(text.find('\n'), 1);
    text.erase(text.find('\r', text.find('\r') + 1), 1);
    EXPECT_EQ(LoadText(text + "\x1a"), 26);
    EXPECT_EQ(series->FirstQuoteDate, "01/01/01");
    EXPECT_EQ(series->Working[26].OpenInterest, 3400);
}

TEST_F(QuoteFileFaults, AFailedSaveChangesNeitherFileNorSeries) {
    ASSERT_EQ(LoadText(QuoteLines(30)), 30);
    platform::fake::MemoryFiles files;
    files.Contents[folder.File("old.txt")] = "old";
    series->WorkingCount = 10;
    for (Fault const fault :
         {Fault::DiskFull, Fault::PermissionDenied, Fault::PathNotFound, Fault::BadFileName}) {
        files.BreakWriting = fault;
        dialogs.Messages.clear();
        EXPECT_FALSE(SaveQuoteFile("old.txt", *series, settings, files, dialogs));
        EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, text::RunTimeError(fault).what(), "Quorvex", Icon::None));
        EXPECT_EQ(files.Contents[folder.File("old.txt")], "old");
        EXPECT_EQ(series->QuoteCount, 30);
        EXPECT_EQ(series->LastQuoteDate, series->Working[30].Date);
    }
}

TEST_F(QuoteFileFaults, SavesOverTheFileThatIsOpen) {
    ASSERT_EQ(LoadText(QuoteLines(30)), 30);
    series->Working[30].Close = 999;
    EXPECT_TRUE(SaveQuoteFile("test.txt", *series, settings, disk, dialogs));
    EXPECT_EQ(Load("test.txt"), 30);
    EXPECT_EQ(series->Working[30].Close, 999);
    EXPECT_EQ(folder.Read("test.txt~"), QuoteLines(30));
    EXPECT_EQ(folder.EntryCount(), 2);
}

} // namespace
} // namespace quorvex::quotes
