// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "quotes/basDisk.h"

#include "platform/fake/MemoryFiles.h"
#include "platform/fake/ScriptedDialogs.h"
#include "quotes/QuoteMessages.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "text/basFormats.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

namespace quorvex::quotes {
namespace {

using platform::Icon;
using tests::IsOnlyMessage;
using tests::QuoteLines;

class QuoteFile : public testing::Test {
protected:
    std::int16_t Load(std::string const& text, std::string const& name = "test.txt") {
        files.Contents["C:\\Quotes\\" + name] = text;
        series->QuoteFileName = name;
        return LoadQuoteFile(*series, settings, files, dialogs);
    }

    bool Save(std::string const& name) { return SaveQuoteFile(name, *series, settings, files, dialogs); }

    void ExpectRefusedSave() {
        dialogs.Messages.clear();
        files.Contents["C:\\Quotes\\kept.txt"] = "as it was";
        EXPECT_FALSE(Save("kept.txt"));
        EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Type mismatch", "Quorvex", Icon::None));
        EXPECT_EQ(files.Contents["C:\\Quotes\\kept.txt"], "as it was");
        dialogs.Messages.clear();
    }

    std::unique_ptr<QuoteSeries> series = std::make_unique<QuoteSeries>();
    settings::Settings settings = settings::DefaultSettings("C:\\Quotes");
    platform::fake::MemoryFiles files;
    platform::fake::ScriptedDialogs dialogs;
};

void ExpectRow(QuoteRecord const& record, nlohmann::json const& row) {
    EXPECT_EQ(record.Date, row.at(0));
    EXPECT_EQ(record.Open, row.at(1));
    EXPECT_EQ(record.High, row.at(2));
    EXPECT_EQ(record.Low, row.at(3));
    EXPECT_EQ(record.Close, row.at(4));
    EXPECT_EQ(record.Volume, row.at(5));
    EXPECT_EQ(record.OpenInterest, row.at(6));
}

TEST_F(QuoteFile, LoadsEveryReferenceFile) {
    for (auto const& expected : tests::GoldenVector("quote_files")) {
        std::string const name = expected.at("file");
        SCOPED_TRACE(name + " " + expected.at("currency_format").get<std::string>());
        series = std::make_unique<QuoteSeries>();
        dialogs.Messages.clear();
        settings.CurrencyFormat = expected.at("currency_format");
        EXPECT_EQ(Load(tests::GoldenFile("quotes/" + name), name), expected.at("count"));
        auto const& rows = expected.at("records");
        for (std::size_t index = 0; index < rows.size(); ++index) {
            ExpectRow(series->Master[static_cast<int>(index) + 1], rows.at(index));
            ExpectRow(series->Working[static_cast<int>(index) + 1], rows.at(index));
        }
        ASSERT_EQ(dialogs.Messages.size(), expected.at("messages").size());
        if (expected.at("refused")) {
            auto const& message = expected.at("messages").at(0);
            EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, message.at("text"), message.at("title"),
                                      tests::IconNamed(message.at("icon"))));
            EXPECT_EQ(series->QuoteFileName, "");
        } else {
            EXPECT_EQ(series->QuoteCount, expected.at("count"));
            EXPECT_EQ(series->WorkingCount, expected.at("count"));
            EXPECT_EQ(series->FirstQuoteDate, expected.at("first_date"));
            EXPECT_EQ(series->LastQuoteDate, expected.at("last_date"));
        }
    }
}

TEST_F(QuoteFile, WritesEveryReferenceFile) {
    for (auto const& expected : tests::GoldenVector("written_quotes")) {
        std::string const name = expected.at("file");
        settings.CurrencyFormat = expected.at("currency_format");
        SCOPED_TRACE(name + " " + settings.CurrencyFormat);
        ASSERT_GT(Load(tests::GoldenFile("quotes/" + name), name), 0);
        EXPECT_TRUE(Save("copy.txt"));
        EXPECT_EQ(files.Contents["C:\\Quotes\\copy.txt"], expected.at("text"));
    }
}

TEST_F(QuoteFile, AcceptsTwentyFiveDays) {
    EXPECT_EQ(Load(QuoteLines(25)), 25);
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_TRUE(series->HasQuotes());
    EXPECT_EQ(series->FirstQuoteDate, "01/01/01");
    EXPECT_EQ(series->LastQuoteDate, "02/02/01");
}

TEST_F(QuoteFile, RefusesTwentyFourDaysHoweverManyInvalidLines) {
    std::string const invalid =
        "13/45/02, 1, 1, 1, 1, 1, 1\r\n03/15/02, 0, 247.25, 244.00, 246.75, 100, 200\r\n";
    EXPECT_EQ(Load(invalid + QuoteLines(24) + invalid + invalid), 0);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, TooFewQuotes, "Quorvex Requirements", Icon::Information));
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_EQ(series->QuoteCount, 0);
    EXPECT_EQ(series->WorkingCount, 0);
}

TEST_F(QuoteFile, ARefusedFileClosesTheOneThatWasOpen) {
    ASSERT_EQ(Load(QuoteLines(30)), 30);
    EXPECT_EQ(Load(QuoteLines(3)), 0);
    EXPECT_FALSE(series->HasQuotes());
    EXPECT_EQ(series->WorkingCount, 0);
    EXPECT_EQ(series->QuoteCount, 0);
}

TEST_F(QuoteFile, SkipsALineWithAPriceOfZero) {
    EXPECT_EQ(Load(QuoteLines(25) + "03/15/02, 0, 247.25, 244.00, 246.75, 100, 200\r\n"), 25);
    EXPECT_EQ(series->LastQuoteDate, "02/02/01");
}

TEST_F(QuoteFile, SkipsALineWhoseDateDoesNotExist) {
    EXPECT_EQ(Load(QuoteLines(25) + "13/45/02, 245, 247.25, 244.00, 246.75, 100, 200\r\n"), 25);
    EXPECT_EQ(series->LastQuoteDate, "02/02/01");
}

TEST_F(QuoteFile, SkipsAnOddNumberOfNegativePricesAndKeepsAnEvenOne) {
    EXPECT_EQ(Load(QuoteLines(25) + "03/14/02, -1, 2, 3, 4, 5, 6\r\n03/15/02, -1, -2, 3, 4, 5, 6\r\n"), 26);
    EXPECT_EQ(series->LastQuoteDate, "03/15/02");
    EXPECT_EQ(series->Working[26].Low, 3);
}

TEST_F(QuoteFile, SkipsALineBeforeItsNumbersMatter) {
    EXPECT_EQ(Load("no date, 1e999, 1, 1, 1, 1, 1\r\n03/05/02, 0, 1, 1, 1, 1e999, 1\r\n" + QuoteLines(25)),
              25);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteFile, DoesNotCheckVolumeAndOpenInterest) {
    EXPECT_EQ(Load(QuoteLines(25) + "03/15/02, 1, 2, 3, 4, none, -7\r\n"), 26);
    EXPECT_EQ(series->Working[26].Volume, 0);
    EXPECT_EQ(series->Working[26].OpenInterest, -7);
}

TEST_F(QuoteFile, KeepsTheFirstFiveHundredOfSixHundredDays) {
    EXPECT_EQ(Load(QuoteLines(600)), 500);
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_EQ(series->QuoteCount, 500);
    EXPECT_EQ(series->Working[500].Close, 600);
    EXPECT_EQ(series->LastQuoteDate, series->Working[500].Date);
}

TEST_F(QuoteFile, StopsReadingBehindDayFiveHundred) {
    // Were the rest read, its number would overflow.
    EXPECT_EQ(Load(QuoteLines(501) + "03/15/08, 1e999, 1, 1, 1, 1, 1\r\n"), 500);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(QuoteFile, NormalisesDates) {
    EXPECT_EQ(Load("3/5/2002, 1, 2, 3, 4, 5, 6\r\n\"March 6, 2002\", 1, 2, 3, 4, 5, 6\r\n" + QuoteLines(25)),
              27);
    EXPECT_EQ(series->Working[1].Date, "03/05/02");
    EXPECT_EQ(series->Working[2].Date, "03/06/02");
}

TEST_F(QuoteFile, StoresPricesRoundedToTheCurrencyFormat) {
    EXPECT_EQ(Load("03/05/02, 245.256, 245.255, 1e2, 12abc, 100.126, 7.5\r\n" + QuoteLines(25)), 26);
    QuoteRecord const& record = series->Working[1];
    EXPECT_EQ(record.Open, 245.26);
    EXPECT_EQ(record.High, 245.26);
    EXPECT_EQ(record.Low, 100);
    EXPECT_EQ(record.Close, 12);
    EXPECT_EQ(record.Volume, 100.13);
    EXPECT_EQ(record.OpenInterest, 7.5);
    ASSERT_TRUE(Save("copy.txt"));
    EXPECT_TRUE(files.Contents["C:\\Quotes\\copy.txt"].starts_with(
        "03/05/02, 245.26, 245.26, 100.00, 12.00, 100.13, 7.50\r\n"));
}

TEST_F(QuoteFile, ChecksPricesBeforeRounding) {
    settings.CurrencyFormat = "####0";
    EXPECT_EQ(Load("03/05/02, 0.2, 0.2, 0.2, 0.2, 1, 1\r\n" + QuoteLines(25)), 26);
    EXPECT_EQ(series->Working[1].Close, 0);
}

TEST_F(QuoteFile, TakesSevenFieldsWhereverTheyStand) {
    EXPECT_EQ(Load("03/05/02, 1, 2\r\n3, 4\r\n\r\n5, 6, 03/06/02, 7, 8, 9, 10, 11, 12\r\n" + QuoteLines(25)),
              27);
    EXPECT_EQ(series->Working[1].OpenInterest, 6);
    EXPECT_EQ(series->Working[2].Date, "03/06/02");
    EXPECT_EQ(series->Working[2].OpenInterest, 12);
}

TEST_F(QuoteFile, ReadsMissingFieldsOfTheLastLineAsEmpty) {
    EXPECT_EQ(Load(QuoteLines(25) + "03/05/02, 1, 2, 3, 4"), 26);
    EXPECT_EQ(series->Working[26].Close, 4);
    EXPECT_EQ(series->Working[26].Volume, 0);
    EXPECT_EQ(Load(QuoteLines(25) + "03/05/02, 1, 2, 3"), 25);
}

TEST_F(QuoteFile, SavingThenLoadingGivesTheSameSeries) {
    for (auto const* format : {"####0", "####0.0", "####0.00", "####0.000", "####0.0000"}) {
        SCOPED_TRACE(format);
        settings.CurrencyFormat = format;
        int const count = Load(tests::GoldenFile("quotes/q250.txt"));
        ASSERT_EQ(count, 250);
        auto const before = std::make_unique<QuoteSeries>(*series);
        ASSERT_TRUE(Save("again.txt"));
        series = std::make_unique<QuoteSeries>();
        ASSERT_EQ(Load(files.Contents["C:\\Quotes\\again.txt"], "again.txt"), count);
        for (int day = 1; day <= count; ++day) {
            EXPECT_EQ(series->Working[day].Date, before->Working[day].Date);
            EXPECT_EQ(series->Working[day].Open, before->Working[day].Open);
            EXPECT_EQ(series->Working[day].High, before->Working[day].High);
            EXPECT_EQ(series->Working[day].Low, before->Working[day].Low);
            EXPECT_EQ(series->Working[day].Close, before->Working[day].Close);
            EXPECT_EQ(series->Working[day].Volume, before->Working[day].Volume);
            EXPECT_EQ(series->Working[day].OpenInterest, before->Working[day].OpenInterest);
        }
    }
}

TEST_F(QuoteFile, SavingMakesTheWorkingCopyTheMasterCopy) {
    ASSERT_EQ(Load(QuoteLines(40)), 40);
    for (int day = 1; day <= 10; ++day) {
        series->Working[day] = series->Working[day + 30];
    }
    series->WorkingCount = 10;
    ASSERT_TRUE(Save("last.txt"));
    EXPECT_EQ(series->QuoteCount, 10);
    EXPECT_EQ(series->WorkingCount, 10);
    EXPECT_EQ(series->Master[1].Close, 131);
    EXPECT_EQ(series->FirstQuoteDate, series->Working[1].Date);
    EXPECT_EQ(series->LastQuoteDate, series->Working[10].Date);
}

TEST_F(QuoteFile, SavingNoQuotesWritesAnEmptyFile) {
    ASSERT_TRUE(Save("none.txt"));
    EXPECT_EQ(files.Contents.at("C:\\Quotes\\none.txt"), "");
    EXPECT_EQ(series->QuoteCount, 0);
}

TEST_F(QuoteFile, RefusesToWriteNumbersThatWouldNotReadBack) {
    // "1,234.50" would come back as two fields, "$5.00" as zero, "11234.50" as "111234.50"; "1" and "1234.54"
    // are other numbers.
    for (auto const* format :
         {"#,##0.00", "$0.00", "0.00%", "\"x\"", "1#0.00", "1", "0.04", "0e0", "0.00;;1"}) {
        SCOPED_TRACE(format);
        settings.CurrencyFormat = "####0.00";
        ASSERT_EQ(Load("03/05/02, 1234.5, 1234.5, 1234.5, 1234.5, 1, 0\r\n" + QuoteLines(25)), 26);
        settings.CurrencyFormat = format;
        ExpectRefusedSave();
    }
}

TEST_F(QuoteFile, RefusesToWriteWhatItsFormatHasMadeOfTheNumbersOnceTheyWereRead) {
    std::string const positive = "03/05/02, 1234.56, 1234.56, 1234.56, 1234.56, 1, 0\r\n";
    std::string const negative = "03/05/02, -1234.56, 1234.56, -1234.56, 1234.56, 1, 0\r\n";
    for (auto const& [format, line] : {std::pair("1", positive),
                                       {"0.0E+00", positive},
                                       {"0.00;;1", positive},
                                       {"0.00;-0.00;5", positive},
                                       {"\"\"", positive},
                                       {"0\\5", positive},
                                       {"0;0", negative},
                                       {"0.00;-1", negative}}) {
        SCOPED_TRACE(format);
        settings.CurrencyFormat = format;
        ASSERT_EQ(Load(line + QuoteLines(25)), 26);
        ExpectRefusedSave();
    }
}

TEST_F(QuoteFile, LoadsThousandsThroughAFormatWithCommas) {
    settings.CurrencyFormat = "#,##0.0";
    EXPECT_EQ(Load("03/05/02, 1234.56, 1234.56, 1234.56, 1234.56, 1000000, 1\r\n" + QuoteLines(25)), 26);
    EXPECT_EQ(series->Working[1].Open, 1234.6);
    EXPECT_EQ(series->Working[1].Volume, 1000000);
}

TEST_F(QuoteFile, LoadsThroughAFormatThatLeavesZeroBlank) {
    settings.CurrencyFormat = "###.##";
    EXPECT_EQ(Load("03/05/02, 1.5, 1, 1, 1, 0, 0\r\n" + QuoteLines(25)), 26);
    EXPECT_EQ(series->Working[1].Open, 1.5);
    EXPECT_EQ(series->Working[1].Volume, 0);
}

TEST_F(QuoteFile, WritesThroughFormatsThatPrintNothingButTheNumber) {
    for (auto const* format : {"", "0", "#", "0.", "#.##", ".00", "0.00#", "#0.00000", " 0.00\" \"",
                               "0.00;-0.00;0", "0.00;(0.00)", "0.00;;\"0\"", ";-0.00;"}) {
        SCOPED_TRACE(format);
        settings.CurrencyFormat = format;
        ASSERT_EQ(Load("03/05/02, 1234, 1234, 1234, 1234, 1, 0\r\n" + QuoteLines(25)), 26);
        EXPECT_TRUE(Save("kept.txt"));
        EXPECT_EQ(Load(files.Contents["C:\\Quotes\\kept.txt"]), 26);
        EXPECT_EQ(series->Working[1].Open, 1234);
        EXPECT_EQ(series->Working[1].Volume, 1);
        EXPECT_EQ(series->Working[1].OpenInterest, 0);
    }
}

} // namespace
} // namespace quorvex::quotes
