// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basSave.h"

#include "EditorTest.h"
#include "editor/basEdit.h"
#include "platform/disk/DiskFiles.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>

#include <sstream>

namespace quorvex::tests {
namespace {

using platform::Icon;
using testing::ElementsAre;

class SavedEdits : public EditorTest {
protected:
    bool Save() { return Ended(editor::SaveEdits(*edited, *series, settings, files, dialogs)); }

    bool SaveAs(std::string const& answer) {
        dialogs.Texts = {answer};
        return Ended(editor::SaveEditsAs(*edited, *series, settings, files, dialogs));
    }

    bool SaveData(std::string const& name, platform::Files& where) {
        return !text::Trap([&] { editor::SaveEditData(name, *edited, series->Master, settings, where); });
    }

    bool Ended(editor::SaveResult const& result) {
        status = result.Status;
        return result.IsSaved;
    }

    std::string status; // of the last save

    // The lines of the file, without their ends, which are checked.
    [[nodiscard]] Texts Lines(std::string const& name) const {
        Texts lines;
        std::istringstream stream(files.Contents.at(name));
        for (std::string line; std::getline(stream, line);) {
            EXPECT_TRUE(line.ends_with('\r'));
            lines.push_back(line.substr(0, line.size() - 1));
        }
        return lines;
    }
};

TEST_F(SavedEdits, AreWrittenToTheOpenFilesBareName) {
    OpenDays(2);
    EXPECT_TRUE(Save());
    EXPECT_EQ(files.Contents.size(), 1U);
    EXPECT_THAT(Lines("test.txt"), ElementsAre("01/01/01, 101.25, 101.75, 101.00, 101.00, 1200, 3400",
                                               "01/02/01, 102.25, 102.75, 102.00, 102.00, 1200, 3400"));
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(SavedEdits, AreWhatTheGridShows) {
    OpenDays(2);
    Type(1, 1, "1/1/2000");
    Type(1, 2, " 1,000.456 ");
    Type(2, 5, ".125");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Lines("test.txt"), ElementsAre("01/01/00, 1000.46, 101.75, 101.00, 101.00, 1200, 3400",
                                               "01/02/01, 102.25, 102.75, 102.00, 0.13, 1200, 3400"));
}

TEST_F(SavedEdits, AreSortedByDate) {
    OpenDays(3);
    Type(1, 1, "2/1/2001");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Lines("test.txt"), ElementsAre("01/02/01, 102.25, 102.75, 102.00, 102.00, 1200, 3400",
                                               "01/03/01, 103.25, 103.75, 103.00, 103.00, 1200, 3400",
                                               "02/01/01, 101.25, 101.75, 101.00, 101.00, 1200, 3400"));
}

TEST_F(SavedEdits, HaveVolumeAndOpenInterestOfTheLoadedRow) {
    Open(SeriesOf("01/01/01, 1, 1, 1, 1, 11, 21\r\n"
                  "01/02/01, 2, 2, 2, 2, 12, 22\r\n"
                  "01/03/01, 3, 3, 3, 3, 13.6, 23\r\n"));
    Type(2, 6, "777");
    Type(2, 7, "888");
    spread.GotoCell(1, 1);
    dialogs.Answers = {platform::Answer::Yes};
    editor::DeleteRow(*edited, settings, dialogs);
    editor::AppendRow(*edited, settings, dialogs);
    for (std::int16_t column = 2; column <= 7; ++column) {
        Type(3, column, "9");
    }
    Type(3, 1, "01/04/01");
    EXPECT_TRUE(Save());
    EXPECT_THAT(Lines("test.txt"), ElementsAre("01/02/01, 2.00, 2.00, 2.00, 2.00, 11, 21",
                                               "01/03/01, 3.00, 3.00, 3.00, 3.00, 12, 22",
                                               "01/04/01, 9.00, 9.00, 9.00, 9.00, 14, 23"));
}

TEST_F(SavedEdits, BeyondTheLoadedDaysTakeWhatTheMasterCopyHolds) {
    OpenDays(2);
    series->Master[3].Volume = 31;
    editor::AppendRow(*edited, settings, dialogs);
    Type(3, 1, "01/04/01");
    for (std::int16_t column = 2; column <= 7; ++column) {
        Type(3, column, "9");
    }
    EXPECT_TRUE(Save());
    EXPECT_EQ(Lines("test.txt").back(), "01/04/01, 9.00, 9.00, 9.00, 9.00, 31, 0");
}

TEST_F(SavedEdits, LeaveTheSeriesAsItWasLoaded) {
    OpenDays(30);
    quotes::QuoteSeries const before = *series;
    Type(2, 5, "555");
    Type(2, 1, "12/31/48");
    EXPECT_TRUE(Save());
    EXPECT_TRUE(SaveAs("other.txt"));
    EXPECT_EQ(series->QuoteFileName, "other.txt");
    EXPECT_EQ(series->QuoteCount, 30);
    EXPECT_EQ(series->LastQuoteDate, before.LastQuoteDate);
    for (std::int16_t day = 1; day <= 30; ++day) {
        EXPECT_EQ(series->Master[day].Date, before.Master[day].Date);
        EXPECT_EQ(series->Master[day].Close, before.Master[day].Close);
        EXPECT_EQ(series->Working[day].Date, before.Working[day].Date);
        EXPECT_EQ(series->Working[day].Close, before.Working[day].Close);
    }
}

TEST_F(SavedEdits, AreRefusedQuietlyWhenACellIsNoNumber) {
    for (std::int16_t column = 2; column <= 7; ++column) {
        OpenDays(3);
        Type(3, 1, "2/1/2001");
        Type(2, column, "12abc");
        EXPECT_FALSE(Save());
        EXPECT_TRUE(IsQuiet());
        EXPECT_EQ(series->QuoteFileName, "test.txt");
    }
}

TEST_F(SavedEdits, AreRefusedWhenTheFormatWouldNotReadBack) {
    OpenDays(3);
    files.Contents["test.txt"] = "old";
    for (auto const* format : {"#,##0.00", "$0.00", "0.00%", "1#0.00", "1", "0.04"}) {
        settings.CurrencyFormat = format;
        Type(2, 5, "1,234.50");
        dialogs.Messages.clear();
        EXPECT_FALSE(Save()) << format;
        ASSERT_EQ(dialogs.Messages.size(), 1U) << format;
        EXPECT_EQ(dialogs.Messages[0].Text.substr(0, 20), "The currency format ");
    }
    EXPECT_EQ(files.Contents["test.txt"], "old");
}

TEST_F(SavedEdits, AreRefusedWhenAPriceWouldBecomeZero) {
    OpenDays(3);
    files.Contents["test.txt"] = "old";
    Type(2, 4, "0.004");
    EXPECT_FALSE(Save());
    EXPECT_FALSE(SaveAs("new.txt"));
    ASSERT_EQ(dialogs.Messages.size(), 2U);
    EXPECT_EQ(dialogs.Messages[0].Text,
              "The currency format ####0.00 cannot hold the price on row 2. Nothing was saved.");
    EXPECT_EQ(dialogs.Messages[0].Title, "Edit");
    EXPECT_EQ(dialogs.Messages[0].Shown, platform::Icon::Exclamation);
    EXPECT_EQ(Cursor(), std::pair(2, 4));
    EXPECT_EQ(files.Contents["test.txt"], "old");
    EXPECT_EQ(files.Contents.size(), 1U);
    settings.CurrencyFormat = "####0.000";
    EXPECT_TRUE(Save());
}

TEST_F(SavedEdits, OfAFileThatCannotBeWrittenAreRefusedQuietly) {
    OpenDays(3);
    files.Contents["test.txt"] = "old";
    for (auto const fault : {text::Fault::DiskFull, text::Fault::PermissionDenied, text::Fault::PathNotFound,
                             text::Fault::BadFileName}) {
        files.BreakWriting = fault;
        EXPECT_FALSE(Save());
        EXPECT_FALSE(SaveAs("other.txt"));
    }
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_EQ(files.Contents.size(), 1U);
    EXPECT_EQ(files.Contents["test.txt"], "old");
    EXPECT_EQ(series->QuoteFileName, "test.txt");
}

TEST_F(SavedEdits, WithoutAnOpenFileHaveNoName) {
    Open(std::make_unique<quotes::QuoteSeries>());
    TemporaryFolder const folder;
    platform::disk::DiskFiles disk;
    EXPECT_FALSE(Ended(editor::SaveEdits(*edited, *series, settings, disk, dialogs)));
    EXPECT_EQ(status, "Not saved: Bad file name or number");
    EXPECT_TRUE(IsQuiet());
}

TEST_F(SavedEdits, WithoutRowsAreAnEmptyFile) {
    Open(std::make_unique<quotes::QuoteSeries>());
    EXPECT_TRUE(SaveAs("none.txt"));
    EXPECT_EQ(files.Contents.at("none.txt"), "");
}

TEST_F(SavedEdits, OfFiveHundredDaysAreAllThere) {
    Open(GoldenSeries("q500.txt", "####0.00"));
    Type(500, 5, "1.25");
    EXPECT_TRUE(Save());
    auto const lines = Lines("q500.txt");
    ASSERT_EQ(lines.size(), 500U);
    EXPECT_NE(lines.back().find(", 1.25, "), std::string::npos);
}

TEST_F(SavedEdits, ReadBackAsTheyWereTyped) {
    Open(GoldenSeries("q137.txt", "####0.00"));
    Type(7, 5, "123.456");
    ASSERT_TRUE(Save());
    auto const read = SeriesOf(files.Contents.at("q137.txt"));
    ASSERT_EQ(read->QuoteCount, 137);
    EXPECT_EQ(read->Master[7].Close, 123.46);
    EXPECT_EQ(read->Master[137].Date, series->Master[137].Date);
}

TEST_F(SavedEdits, TellHowManyRowsWentIntoWhichFile) {
    OpenDays(2);
    EXPECT_TRUE(Save());
    EXPECT_EQ(status, "2 rows saved to test.txt");
    EXPECT_TRUE(SaveAs("D:\\new.txt"));
    EXPECT_EQ(status, "2 rows saved to D:\\new.txt");
    OpenDays(1);
    EXPECT_TRUE(Save());
    EXPECT_EQ(status, "1 row saved to test.txt");
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(SavedEdits, TellWhenTheyWentIntoAnotherFileThanTheOpenOne) {
    OpenDays(2);
    files.CurrentFolder = "D:\\Work\\";
    EXPECT_TRUE(Save());
    EXPECT_EQ(status, "2 rows saved to test.txt in the current folder of the program, and not to "
                      "C:\\Quotes\\test.txt; Save As takes a whole path");
    EXPECT_TRUE(SaveAs("new.txt"));
    EXPECT_EQ(status, "2 rows saved to new.txt in the current folder of the program, and not to "
                      "C:\\Quotes\\new.txt; Save As takes a whole path");
    EXPECT_TRUE(SaveAs("C:\\Quotes\\new.txt"));
    EXPECT_EQ(status, "2 rows saved to C:\\Quotes\\new.txt");
}

TEST_F(SavedEdits, TellWhichCellIsNoNumber) {
    for (auto const& [column, head] :
         {std::pair<std::int16_t, std::string>(2, "Open"), {6, "Volume"}, {7, "Open Interest"}}) {
        OpenDays(3);
        Type(1, 1, "2/1/2001"); // the check puts this row last
        Type(1, column, "12abc");
        EXPECT_FALSE(Save());
        EXPECT_EQ(status, "Not saved: row 3, " + head + " is not a number");
    }
    OpenDays(3);
    Type(2, 6, "1e999");
    EXPECT_FALSE(SaveAs("new.txt"));
    EXPECT_EQ(status, "Not saved: row 2, Volume is too large");
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(SavedEdits, TellWhyTheFileCannotBeWritten) {
    OpenDays(3);
    for (auto const& [fault, description] :
         {std::pair<text::Fault, std::string>(text::Fault::PermissionDenied, "Permission denied"),
          {text::Fault::DiskFull, "Disk full"},
          {text::Fault::PathNotFound, "Path not found"}}) {
        files.BreakWriting = fault;
        EXPECT_FALSE(Save());
        EXPECT_EQ(status, "Not saved: " + description);
    }
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(SavedEdits, TellWhatTheirChecksRefuse) {
    OpenDays(3);
    Type(3, 1, "soon");
    EXPECT_FALSE(Save());
    EXPECT_EQ(status, "Not saved: row 3, Date is not a date");
    Type(3, 1, "01/02/01");
    EXPECT_FALSE(Save());
    EXPECT_EQ(status, "Not saved: rows 2 and 3 have the same date");
    Type(2, 5, "0");
    EXPECT_FALSE(Save());
    EXPECT_EQ(status, "Not saved: row 2, Close is not a price above 0");
    OpenDays(3);
    Type(2, 4, "0.004");
    EXPECT_FALSE(Save());
    EXPECT_EQ(status, "Not saved: row 2, Low does not fit the currency format ####0.00");
    EXPECT_FALSE(SaveAs("new.csv"));
    EXPECT_EQ(status, "Not saved: Invalid data file name");
    EXPECT_FALSE(SaveAs(" "));
    EXPECT_EQ(status, ""); // the user gave it up
}

TEST_F(SavedEdits, AsAsksForAName) {
    OpenDays(2);
    EXPECT_TRUE(SaveAs("  new.txt "));
    ASSERT_EQ(dialogs.Questions.size(), 1U);
    EXPECT_EQ(dialogs.Questions[0].Prompt, "Save test.txt As...");
    EXPECT_EQ(dialogs.Questions[0].Title, "Save As...");
    EXPECT_EQ(dialogs.Questions[0].Default, "test.txt");
    EXPECT_EQ(series->QuoteFileName, "new.txt");
    EXPECT_TRUE(files.Contents.contains("new.txt"));
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(SavedEdits, AsShowsTheGridInItsFormatsAgain) {
    OpenDays(2);
    Type(2, 1, "1/2/2001");
    Type(2, 5, "999.999");
    EXPECT_TRUE(SaveAs("new.txt"));
    EXPECT_THAT(RowTexts(2),
                ElementsAre("01/02/01", "102.25", "102.75", "102.00", "1000.00", "1200", "3400"));
}

TEST_F(SavedEdits, AsWithoutAnAnswerEnds) {
    OpenDays(2);
    for (auto const* answer : {"", "   "}) {
        EXPECT_FALSE(SaveAs(answer));
    }
    EXPECT_TRUE(dialogs.Messages.empty());
    EXPECT_TRUE(files.Contents.empty());
    EXPECT_EQ(series->QuoteFileName, "test.txt");
}

TEST_F(SavedEdits, AsAcceptsAndRefusesTheReferenceNames) {
    auto const names = GoldenVector("save_names");
    for (auto const& entry : names.at("quote")) {
        std::string const name = entry.at(0);
        if (name.find_first_not_of(' ') == std::string::npos) {
            continue; // no answer at all, above
        }
        SCOPED_TRACE(name);
        OpenDays(2);
        dialogs.Messages.clear();
        EXPECT_EQ(SaveAs(name), entry.at(1).get<bool>());
        EXPECT_EQ(series->QuoteFileName == "test.txt", !entry.at(1).get<bool>());
        if (!entry.at(1).get<bool>()) {
            EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data file name", "Quorvex", Icon::Critical));
        }
    }
}

TEST_F(SavedEdits, AsChecksTheNameBeforeTheRows) {
    OpenDays(2);
    Type(1, 1, "");
    EXPECT_FALSE(SaveAs("abc"));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data file name", "Quorvex", Icon::Critical));
    dialogs.Messages.clear();
    EXPECT_FALSE(SaveAs("abc.txt"));
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data entry on row 1", "Edit - Invalid Data Entry",
                              Icon::Exclamation));
    EXPECT_TRUE(files.Contents.empty());
    EXPECT_EQ(series->QuoteFileName, "test.txt");
}

TEST_F(SavedEdits, DataTakeTheNameAsItIs) {
    OpenDays(1);
    settings.DataPath = "C:\\Quotes\\";
    EXPECT_TRUE(SaveData("D:\\Else\\any name", files));
    EXPECT_TRUE(files.Contents.contains("D:\\Else\\any name"));
}

TEST_F(SavedEdits, DataKeepADateThatIsNone) {
    OpenDays(1);
    Type(1, 1, "soon");
    EXPECT_TRUE(SaveData("a.txt", files));
    EXPECT_EQ(Lines("a.txt").front(), "soon, 101.25, 101.75, 101.00, 101.00, 1200, 3400");
}

TEST_F(SavedEdits, OnDiskReplaceTheOldFileOrLeaveIt) {
    OpenDays(2);
    TemporaryFolder const folder;
    platform::disk::DiskFiles disk;
    std::string const path = folder.File("quotes.txt");
    folder.Write("quotes.txt", "old");
    Type(2, 6, "abc");
    EXPECT_FALSE(SaveData(path, disk));
    EXPECT_EQ(folder.Read("quotes.txt"), "old");
    Type(2, 6, "1");
    EXPECT_TRUE(SaveData(path, disk));
    EXPECT_TRUE(folder.Read("quotes.txt").starts_with("01/01/01, 101.25"));
    EXPECT_FALSE(SaveData(folder.File("none/quotes.txt"), disk));
    EXPECT_EQ(folder.Read("quotes.txt~"), "old");
    EXPECT_EQ(folder.EntryCount(), 2);
}

TEST_F(SavedEdits, OfRowsWithABadVolumeLeaveEveryDayInItsPlace) {
    OpenDays(4);
    auto const opened = GridTexts();
    Type(1, 1, "2/1/2001"); // the check puts this row last
    Type(3, 6, "abc");
    EXPECT_FALSE(Save());
    EXPECT_EQ(RowTexts(4).front(), "2/1/2001"); // the grid is sorted
    spread.GotoCell(4, 1);
    editor::InsertRow(*edited, settings, dialogs);
    auto expected = opened;
    expected.insert(expected.begin() + 3, {"", "0.00", "0.00", "0.00", "0.00", "0", "0"});
    EXPECT_EQ(GridTexts(), expected);
}

TEST_F(SavedEdits, CopiesWithACellThatIsNoNumberAreNotMade) {
    OpenDays(3);
    Type(1, 5, "555");
    Type(2, 1, "13/45/02");
    Type(2, 3, "x");
    Type(2, 4, "444");
    auto const error = text::Trap([&] { editor::CopySpreadToArray(*edited); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), text::Fault::TypeMismatch);
    EXPECT_EQ(edited->EditQuotes[1].Close, 101);
    EXPECT_EQ(edited->EditQuotes[2].Date, "01/02/01");
    EXPECT_EQ(edited->EditQuotes[2].Low, 102);
}

TEST_F(SavedEdits, CopiesOfMoreThan500RowsFault) {
    OpenDays(1);
    sheet.SetRowCount(501);
    for (std::int16_t row = 1; row <= 501; ++row) {
        for (std::int16_t column = 1; column <= 7; ++column) {
            Type(row, column, "1");
        }
    }
    auto const error = text::Trap([&] { editor::CopySpreadToArray(*edited); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Kind(), text::Fault::SubscriptOutOfRange);
    EXPECT_EQ(edited->EditQuotes[1].Close, 101);
}

} // namespace
} // namespace quorvex::tests
