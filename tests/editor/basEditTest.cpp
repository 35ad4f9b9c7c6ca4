// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/basEdit.h"

#include "EditorTest.h"
#include "editor/basSave.h"
#include "quotes/basDateRange.h"
#include "support/Golden.h"
#include "support/Messages.h"
#include "support/QuoteTexts.h"
#include "text/RunTimeError.h"

#include <gmock/gmock.h>

namespace quorvex::tests {
namespace {

using editor::AppendRow;
using editor::CellKind;
using editor::DeleteRow;
using editor::InsertRow;
using platform::Answer;
using platform::Icon;
using testing::ElementsAre;

constexpr auto FullMessage = "Maximum number of daily quotes (500) has been reached.";

class QuoteEditor : public EditorTest {
protected:
    void Append() { AppendRow(*edited, settings, dialogs); }

    void InsertAt(std::int16_t row) {
        spread.GotoCell(row, 3);
        InsertRow(*edited, settings, dialogs);
    }

    void DeleteAt(std::int16_t row, Answer answer = Answer::Yes) {
        spread.GotoCell(row, 3);
        dialogs.Answers = {answer};
        DeleteRow(*edited, settings, dialogs);
    }

    // The rows' first texts, which tell them apart.
    [[nodiscard]] Texts Dates() const {
        Texts dates;
        for (auto const& row : GridTexts()) {
            dates.push_back(row.front());
        }
        return dates;
    }
};

TEST_F(QuoteEditor, CaptionNamesTheFile) {
    EXPECT_EQ(editor::EditorCaption(*series), "Quorvex - Edit");
    series->QuoteFileName = "corn.txt";
    EXPECT_EQ(editor::EditorCaption(*series), "Quorvex - Edit - [corn.txt]");
}

TEST_F(QuoteEditor, OpensWithHeadsAndRows) {
    OpenDays(3);
    EXPECT_THAT(RowTexts(0), ElementsAre("Date", "Open", "High", "Low", "Close", "Volume", "Open Interest"));
    EXPECT_THAT(RowTexts(1), ElementsAre("01/01/01", "101.25", "101.75", "101.00", "101.00", "1200", "3400"));
    EXPECT_EQ(sheet.RowCount(), 3);
    EXPECT_EQ(edited->EditCount, 3);
    EXPECT_TRUE(spread.IsVisible());
}

TEST_F(QuoteEditor, OpensWithColumnsThatFillTheWidth) {
    spread.SetSize(7900, 0);
    OpenDays(1);
    for (std::int16_t column = 1; column <= 7; ++column) {
        EXPECT_DOUBLE_EQ(spread.ColumnWidth(column), 1000);
    }
}

TEST_F(QuoteEditor, ColumnsKeepTheirWidthAfterwards) {
    spread.SetSize(7900, 0);
    OpenDays(1);
    editor::SizeGrid(spread, 16000, 9000);
    Append();
    EXPECT_DOUBLE_EQ(spread.ColumnWidth(7), 1000);
}

TEST_F(QuoteEditor, TheGridFollowsTheSizeOfTheWindow) {
    editor::SizeGrid(spread, 12000, 9000);
    EXPECT_DOUBLE_EQ(spread.Width(), 11900);
    EXPECT_DOUBLE_EQ(spread.Height(), 7920);
}

TEST_F(QuoteEditor, OpensTheWholeFileWhateverTheDateRange) {
    auto narrowed = SeriesOf(QuoteLines(40));
    quotes::DateRange range{"01/08/01", "01/19/01"};
    quotes::AdjustQuoteDateRange(*narrowed, range);
    ASSERT_EQ(narrowed->WorkingCount, 10);
    Open(std::move(narrowed));
    EXPECT_EQ(sheet.RowCount(), 40);
    EXPECT_EQ(RowTexts(1).front(), "01/01/01");
}

TEST_F(QuoteEditor, HasDateAndNumberCells) {
    OpenDays(2);
    for (std::int16_t row = 1; row <= 2; ++row) {
        EXPECT_EQ(sheet.CellAt(row, 1).Kind, CellKind::Date);
        for (std::int16_t column = 2; column <= 7; ++column) {
            EXPECT_EQ(sheet.CellAt(row, column).Kind, CellKind::Number);
        }
    }
    EXPECT_EQ(sheet.CellAt(0, 1).Kind, CellKind::Text);
}

TEST_F(QuoteEditor, ShowsPricesInTheCurrencyFormatAndTheRestWhole) {
    settings.CurrencyFormat = "####0.0000";
    Open(SeriesOf("3/5/2002, 0.12345, 2, 0.1, 1, 10.5, 20.4\r\n", settings.CurrencyFormat));
    EXPECT_THAT(RowTexts(1), ElementsAre("03/05/02", "0.1235", "2.0000", "0.1000", "1.0000", "11", "20"));
}

TEST_F(QuoteEditor, OpensAnewFromWhatWasLoaded) {
    OpenDays(3);
    Type(2, 5, "555");
    ASSERT_TRUE(editor::SaveEdits(*edited, *series, settings, files, dialogs).IsSaved);
    Append();
    Open(std::move(series));
    EXPECT_EQ(sheet.RowCount(), 3);
    EXPECT_EQ(RowTexts(2)[4], "102.00");
}

TEST_F(QuoteEditor, RebuildingDropsWhatWasTyped) {
    OpenDays(3);
    Type(2, 5, "555");
    editor::RebuildGrid(*edited, settings);
    EXPECT_EQ(RowTexts(2)[4], "102.00");
}

TEST_F(QuoteEditor, RebuildingKeepsATextThatIsNoDate) {
    OpenDays(2);
    Type(1, 1, "13/45/02");
    Type(2, 1, "3/5/2002");
    editor::CopySpreadToArray(*edited);
    editor::RebuildGrid(*edited, settings);
    EXPECT_THAT(Dates(), ElementsAre("13/45/02", "03/05/02"));
}

TEST_F(QuoteEditor, AppendAddsAnEmptyDay) {
    OpenDays(3);
    Append();
    EXPECT_EQ(sheet.RowCount(), 4);
    EXPECT_EQ(edited->EditCount, 4);
    EXPECT_THAT(RowTexts(4), ElementsAre("", "0.00", "0.00", "0.00", "0.00", "0", "0"));
    EXPECT_EQ(Cursor(), std::pair(4, 1));
    EXPECT_TRUE(sheet.CellAt(4, 1).BackColour);
    EXPECT_EQ(sheet.CellAt(4, 1).Kind, CellKind::Date);
    EXPECT_TRUE(IsQuiet());
}

TEST_F(QuoteEditor, AppendOnAnEmptyGridGivesRowOne) {
    Open(std::make_unique<quotes::QuoteSeries>());
    Append();
    EXPECT_THAT(RowTexts(1), ElementsAre("", "0.00", "0.00", "0.00", "0.00", "0", "0"));
    EXPECT_EQ(Cursor(), std::pair(1, 1));
    EXPECT_FALSE(editor::SaveEdits(*edited, *series, settings, files, dialogs).IsSaved);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, "Invalid data entry on row 1", "Edit - Invalid Data Entry",
                              Icon::Exclamation));
}

TEST_F(QuoteEditor, AppendLosesWhatWasTyped) {
    OpenDays(3);
    Type(2, 5, "555");
    Append();
    EXPECT_EQ(RowTexts(2)[4], "102.00");
}

TEST_F(QuoteEditor, AppendInAFormatThatIsNoNumberChangesNothing) {
    OpenDays(3);
    settings.CurrencyFormat = "$0.00";
    EXPECT_THROW(Append(), text::RunTimeError);
    EXPECT_EQ(sheet.RowCount(), 3);
    EXPECT_EQ(edited->EditCount, 3);
}

TEST_F(QuoteEditor, OneDayFitsBehind499) {
    Open(GoldenSeries("q499.txt", settings.CurrencyFormat));
    Append();
    EXPECT_EQ(sheet.RowCount(), 500);
    EXPECT_TRUE(IsQuiet());
    Append();
    EXPECT_EQ(sheet.RowCount(), 500);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, FullMessage, "Edit", Icon::Exclamation));
}

TEST_F(QuoteEditor, NoDayFitsInto500) {
    Open(GoldenSeries("many600.txt", settings.CurrencyFormat)); // of which 500 are read
    auto const before = GridTexts();
    ASSERT_EQ(before.size(), 500U);
    Append();
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, FullMessage, "Edit", Icon::Exclamation));
    dialogs.Messages.clear();
    InsertAt(250);
    EXPECT_TRUE(IsOnlyMessage(dialogs.Messages, FullMessage, "Edit", Icon::Exclamation));
    EXPECT_EQ(GridTexts(), before);
    EXPECT_EQ(Cursor(), std::pair(250, 3));
}

TEST_F(QuoteEditor, BeyondTheLimitARowHasNoRecord) {
    OpenDays(3);
    sheet.SetRowCount(501);
    EXPECT_THROW(InsertAt(1), text::RunTimeError);
    edited->EditCount = 500;
    EXPECT_THROW(Append(), text::RunTimeError);
}

TEST_F(QuoteEditor, CountsOverflowBehindSixteenBits) {
    OpenDays(3);
    sheet.SetRowCount(32767);
    spread.GotoCell(1, 1);
    auto const error = text::Trap([&] { InsertRow(*edited, settings, dialogs); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Description(), "Overflow");
    EXPECT_EQ(edited->EditCount, 3);
}

TEST_F(QuoteEditor, InsertMovesTheRowsDown) {
    OpenDays(4);
    InsertAt(2);
    EXPECT_THAT(Dates(), ElementsAre("01/01/01", "", "01/02/01", "01/03/01", "01/04/01"));
    EXPECT_THAT(RowTexts(2), ElementsAre("", "0.00", "0.00", "0.00", "0.00", "0", "0"));
    EXPECT_THAT(RowTexts(5), ElementsAre("01/04/01", "104.25", "104.75", "104.00", "104.00", "1200", "3400"));
    EXPECT_EQ(edited->EditCount, 5);
    EXPECT_EQ(Cursor(), std::pair(2, 3)); // it does not move
    EXPECT_TRUE(IsQuiet());
}

TEST_F(QuoteEditor, InsertAtTheFirstAndAtTheLastRow) {
    OpenDays(2);
    InsertAt(1);
    InsertAt(3);
    EXPECT_THAT(Dates(), ElementsAre("", "01/01/01", "", "01/02/01"));
}

TEST_F(QuoteEditor, InsertFillsTheLastRowOfAll) {
    Open(GoldenSeries("q499.txt", settings.CurrencyFormat));
    auto const last = RowTexts(499);
    InsertAt(1);
    EXPECT_EQ(RowTexts(500), last);
    EXPECT_TRUE(IsQuiet());
}

TEST_F(QuoteEditor, WithoutAnActiveRowNothingIsInsertedOrDeleted) {
    OpenDays(2);
    InsertAt(0);
    DeleteAt(0);
    EXPECT_EQ(sheet.RowCount(), 2);
    EXPECT_TRUE(IsQuiet());
    Open(std::make_unique<quotes::QuoteSeries>());
    InsertAt(0);
    DeleteAt(0);
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_TRUE(IsQuiet());
}

TEST_F(QuoteEditor, DeleteAsksFirst) {
    OpenDays(3);
    DeleteAt(2, Answer::No);
    EXPECT_EQ(sheet.RowCount(), 3);
    ASSERT_EQ(dialogs.Messages.size(), 1U);
    EXPECT_EQ(dialogs.Messages[0].Text, "Delete row no. 2?");
    EXPECT_EQ(dialogs.Messages[0].Title, "Delete Row");
    EXPECT_EQ(dialogs.Messages[0].Shown, Icon::Question);
    EXPECT_EQ(dialogs.Messages[0].Offered, platform::Buttons::YesNo);
}

TEST_F(QuoteEditor, DeleteMovesTheRowsUp) {
    OpenDays(4);
    DeleteAt(2);
    EXPECT_THAT(Dates(), ElementsAre("01/01/01", "01/03/01", "01/04/01"));
    EXPECT_EQ(edited->EditCount, 3);
    EXPECT_EQ(Cursor(), std::pair(2, 3));
}

TEST_F(QuoteEditor, DeleteOfTheLastRowMovesNothing) {
    OpenDays(2);
    DeleteAt(2);
    EXPECT_THAT(Dates(), ElementsAre("01/01/01"));
    EXPECT_EQ(Cursor(), std::pair(1, 3));
    DeleteAt(1);
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_EQ(edited->EditCount, 0);
    EXPECT_EQ(spread.ActiveRow(), 0);
}

TEST_F(QuoteEditor, HelpTellsTheFormat) {
    editor::ShowEditHelp(dialogs);
    EXPECT_TRUE(
        IsOnlyMessage(dialogs.Messages,
                      "\n\n\nQuorvex uses industry standard text files to load and save the   \n"
                      "daily quotes raw data. The required format is:\n\n"
                      "    Date, Open, High, Low, Close, Volume, Open Interest [Return]\n\n"
                      "Date format is mm/dd/yy\n\nDates must be entered in ascending order\n\n"
                      "Individual data fields must be separated by a comma\n\n"
                      "Each record (one day) must be followed by pressing the Return key\n\n"
                      "The optional Volume and Open Interest fields must be represented by a zero\n\n\n\n",
                      "Quorvex - Edit Help", Icon::Information));
}

} // namespace
} // namespace quorvex::tests
