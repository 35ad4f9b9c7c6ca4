// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "editor/tables/basTables.h"

#include "editor/Change.h"
#include "editor/PlainSpread.h"
#include "editor/basBlocks.h"
#include "editor/basEdit.h"
#include "platform/fake/ScriptedDialogs.h"
#include "support/QuoteTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quorvex::tests {
namespace {

using editor::tables::FindReading;
using editor::tables::IsTable;
using testing::ElementsAre;

constexpr char const* Refused = "The table was not pasted.\n";
constexpr char const* Volumes =
    ". Their volume and open interest are not saved, those of the loaded rows are; "
    "Import... takes them into the file";

// A table of one day of March 2002.
std::string Day(std::string const& day, std::string const& close) {
    return "Date,Open,High,Low,Close\n2002-03-" + day + ",11,13,10," + close + '\n';
}

std::string ThreeDays() {
    return Day("15", "12") + "2002-03-18,11,13,10,12\n2002-03-19,11,13,10,12\n";
}

class Tables : public testing::Test {
protected:
    void OpenDays(int count) {
        series = SeriesOf(QuoteLines(count), settings.CurrencyFormat);
        editor::OpenEditor(*edited, *series);
        editor::RebuildGrid(*edited, settings);
    }

    // What the status line tells.
    std::string PasteTold(std::int16_t row, std::string const& text) {
        return editor::tables::PasteTable(*edited, row, text, series->Master, settings, dialogs);
    }

    bool Paste(std::int16_t row, std::string const& text) { return !PasteTold(row, text).empty(); }

    [[nodiscard]] std::vector<std::string> RowTexts(std::int16_t row) const {
        std::vector<std::string> texts;
        for (std::int16_t column = 1; column <= editor::Sheet::Columns; ++column) {
            texts.push_back(sheet.Text(row, column));
        }
        return texts;
    }

    // The one message that was shown, which is an exclamation of the editor.
    [[nodiscard]] std::string Told() const {
        if (dialogs.Messages.size() != 1) {
            return std::to_string(dialogs.Messages.size()) + " messages";
        }
        platform::Message const& message = dialogs.Messages.front();
        bool const isUsual = message.Title == "Edit" && message.Shown == platform::Icon::Exclamation &&
                             message.Offered == platform::Buttons::Ok;
        return isUsual ? message.Text : "another kind of message";
    }

    std::unique_ptr<quotes::QuoteSeries> series;
    settings::Settings settings = settings::DefaultSettings("C:\\Quotes");
    platform::fake::ScriptedDialogs dialogs;
    editor::Sheet sheet;
    editor::PlainSpread spread{sheet};
    std::unique_ptr<editor::Editor> edited =
        std::make_unique<editor::Editor>(editor::Editor{sheet, spread, {}, 0});
};

TEST_F(Tables, AreNotCellsWithoutDays) {
    EXPECT_FALSE(IsTable(""));
    EXPECT_FALSE(IsTable("7"));
    EXPECT_FALSE(IsTable("1\t2\n3\t4\n"));
    EXPECT_FALSE(IsTable("3/5/2002\t1,234.5\r\n"));
    EXPECT_FALSE(IsTable("01/01/10\n01/02/10\n01/03/10\n"));
    EXPECT_FALSE(IsTable("Some words, and some more.\n"));
}

TEST_F(Tables, HaveDaysWhateverTheirFormsAndSeparators) {
    EXPECT_TRUE(IsTable("03/15/02\t1\t3\t1\t2\n")); // as the grid would take it
    EXPECT_TRUE(IsTable("Date\tOpen\tHigh\tLow\tClose\n01/02/02\t1\t3\t1\t2\n"));
    EXPECT_TRUE(IsTable("15.03.2002\t1\t3\t1\t2\n"));
    EXPECT_TRUE(IsTable("03/15/02\t1,5\t3\t1\t2\n"));
    EXPECT_TRUE(IsTable("03/15/02\t$1\t$3\t$1\t$2\n"));
    EXPECT_TRUE(IsTable("03/15/02\t\"1\"\t\"3\"\t\"1\"\t\"2\"\n"));
    EXPECT_TRUE(IsTable("03/15/02\t1\t3\t1\t2\t5\t6\tcorn\n")); // eight columns
    EXPECT_TRUE(IsTable("corn\t03/15/02\t1\t3\t1\t2\n"));
    EXPECT_TRUE(IsTable("2002-03-15,1,3,1,2\n"));
    EXPECT_TRUE(IsTable("2002-03-15;1;3;1;2\r\n2002-03-16;1;3;1;2"));
}

TEST_F(Tables, BecomeRowsInTheFormatsOfTheGrid) {
    OpenDays(30);
    spread.GotoCell(1, 4);
    EXPECT_TRUE(Paste(2, "Date,Close,Open,High,Low,Volume\n"
                         "2002-03-18,12.345,11,13,10.5,\"1,200\"\n"
                         "2002-03-15,2,1,3,1,7\n"));
    EXPECT_THAT(RowTexts(2), ElementsAre("03/15/02", "1.00", "3.00", "1.00", "2.00", "7", "0"));
    EXPECT_THAT(RowTexts(3), ElementsAre("03/18/02", "11.00", "13.00", "10.50", "12.35", "1200", "0"));
    EXPECT_EQ(RowTexts(4)[0], "01/04/01");
    EXPECT_EQ(RowTexts(1)[0], "01/01/01");
    EXPECT_EQ(sheet.RowCount(), 30);
    EXPECT_EQ(spread.ActiveRow(), 2);
    EXPECT_EQ(spread.ActiveColumn(), 1);
    EXPECT_TRUE(dialogs.Messages.empty());
}

TEST_F(Tables, StayWhenTheGridIsFilledAnew) {
    OpenDays(30);
    ASSERT_TRUE(Paste(2, Day("15", "12.345")));
    EXPECT_EQ(edited->EditQuotes[2].Close, 12.35);
    auto const row = RowTexts(2);
    editor::RebuildGrid(*edited, settings);
    EXPECT_EQ(RowTexts(2), row);
}

TEST_F(Tables, KeepWhatWasTypedElsewhere) {
    OpenDays(30);
    sheet.SetText(9, 5, "555");
    ASSERT_TRUE(Paste(2, Day("15", "12")));
    EXPECT_EQ(sheet.Text(9, 5), "555");
}

TEST_F(Tables, AddRowsWhereThereAreTooFew) {
    OpenDays(30);
    EXPECT_TRUE(Paste(30, ThreeDays()));
    EXPECT_EQ(sheet.RowCount(), 32);
    EXPECT_EQ(edited->EditCount, 32);
    EXPECT_EQ(RowTexts(32)[0], "03/19/02");
    EXPECT_EQ(sheet.CellAt(32, 2).Kind, editor::CellKind::Number);
    EXPECT_TRUE(sheet.CellAt(32, 2).BackColour.has_value());
}

TEST_F(Tables, FillAnEmptyGrid) {
    OpenDays(0);
    EXPECT_TRUE(Paste(1, Day("15", "12") + "2002-03-18,11,13,10,12\n"));
    EXPECT_EQ(sheet.RowCount(), 2);
}

TEST_F(Tables, OfMoreDaysThanThereIsRoomForAreRefused) {
    OpenDays(499);
    auto const before = editor::RowsOf(*edited);
    EXPECT_FALSE(Paste(499, ThreeDays()));
    EXPECT_THAT(Told(), testing::StartsWith(std::string(Refused) +
                                            "It has 3 days, and from row 499 on there is room for 2\n"));
    EXPECT_TRUE(editor::RowsOf(*edited) == before);
    EXPECT_TRUE(Paste(498, ThreeDays()));
    EXPECT_EQ(sheet.RowCount(), 500);
}

TEST_F(Tables, ThatCanBeReadInTwoWaysAreRefused) {
    OpenDays(30);
    auto const before = editor::RowsOf(*edited);
    EXPECT_FALSE(Paste(2, "Date,Open,High,Low,Close\n03/05/2002,1,3,1,2\n04/05/2002,1,3,1,2\n"));
    EXPECT_THAT(Told(), testing::StartsWith(Refused));
    EXPECT_THAT(Told(), testing::HasSubstr("month, day, year or day, month, year"));
    EXPECT_THAT(Told(),
                testing::EndsWith("\nImport... in the context menu of the first chart lets you choose "
                                  "how a table is read."));
    EXPECT_TRUE(editor::RowsOf(*edited) == before);
}

// The grid itself would take the month first and the comma for a mark of thousands.
TEST_F(Tables, OfRowsWithoutAHeadAreNotGuessedEither) {
    OpenDays(30);
    auto const before = editor::RowsOf(*edited);
    EXPECT_FALSE(Paste(2, "03/02/2020\t11\t13\t10\t12\n"));
    EXPECT_THAT(Told(), testing::HasSubstr("month, day, year or day, month, year"));
    dialogs.Messages.clear();
    EXPECT_FALSE(Paste(2, "2020-03-02\t2,345\t2,345\t2,345\t2,345\n"));
    EXPECT_THAT(Told(), testing::StartsWith(Refused));
    EXPECT_THAT(Told(), testing::HasSubstr("the open can be 2345 or 2.345"));
    EXPECT_TRUE(editor::RowsOf(*edited) == before);
}

TEST_F(Tables, OfRowsWithoutAHeadAreReadWhenTheirColumnsTell) {
    OpenDays(30);
    EXPECT_TRUE(Paste(2, "03/02/2020\t2,345\t2,5\t2\t2,25\n13/02/2020\t11\t13\t10\t12\n"));
    EXPECT_THAT(RowTexts(2), ElementsAre("02/03/20", "2.35", "2.50", "2.00", "2.25", "0", "0"));
    EXPECT_THAT(RowTexts(3), ElementsAre("02/13/20", "11.00", "13.00", "10.00", "12.00", "0", "0"));
}

TEST_F(Tables, TellWhereTheyWent) {
    OpenDays(30);
    series->Master = {};
    EXPECT_EQ(PasteTold(31, Day("15", "12")), "1 day pasted into row 31");
    EXPECT_EQ(PasteTold(32, ThreeDays()), "3 days pasted into rows 32 to 34");
    EXPECT_EQ(PasteTold(32, ThreeDays()), "3 days pasted into rows 32 to 34"); // over the same days
}

TEST_F(Tables, TellWhichDaysTheyReplaced) {
    OpenDays(30);
    series->Master = {};
    EXPECT_EQ(PasteTold(30, ThreeDays()),
              "3 days pasted into rows 30 to 32 over 1 other day; Undo brings it back");
    EXPECT_EQ(PasteTold(2, ThreeDays()),
              "3 days pasted into rows 2 to 4 over 3 other days; Undo brings them back");
}

TEST_F(Tables, TellThatVolumesAreNotSaved) {
    OpenDays(30);
    std::string const head = "Date,Open,High,Low,Close,Volume,Open Interest\n2001-01-02,1,3,1,2,";
    EXPECT_EQ(PasteTold(2, head + "1200,3400\n"), "1 day pasted into row 2");
    EXPECT_EQ(PasteTold(2, head + "1201,3400\n"), std::string("1 day pasted into row 2") + Volumes);
    EXPECT_EQ(PasteTold(2, head + "1200,3401\n"), std::string("1 day pasted into row 2") + Volumes);
    EXPECT_EQ(PasteTold(2, "Date,Open,High,Low,Close\n2001-01-02,1,3,1,2\n"),
              std::string("1 day pasted into row 2") + Volumes); // which has none
}

TEST_F(Tables, AreNotNeededToTellHowCellsAreRead) {
    EXPECT_EQ(FindReading("1.5\t2,345\n"), "2,345 is read as 2345");
    EXPECT_EQ(FindReading("1,5"), "1,5 is read as 15");
    EXPECT_EQ(FindReading("x\r\n03/02/2020\r\n2,345"), "03/02/2020 is read as month 3, day 2");
    EXPECT_EQ(FindReading("3-2-20"), "3-2-20 is read as month 3, day 2");
    EXPECT_EQ(FindReading("03/03/2020\t03/13/2020\t2020-03-02\t2020/03/02\tMar 2, 2020\t1,234.5\tabc, d"),
              "");
    EXPECT_EQ(FindReading(""), "");
}

TEST_F(Tables, WithoutAGoodDayAreRefused) {
    OpenDays(30);
    EXPECT_FALSE(Paste(2, "Date,Open,High,Low,Close\n2002-03-15,0,3,1,2\n"));
    EXPECT_THAT(Told(), testing::StartsWith(std::string(Refused) + "Line 2: "));
}

TEST_F(Tables, TellTheRowsThatAreLeftOut) {
    OpenDays(30);
    EXPECT_TRUE(Paste(2, "Date,Open,High,Low,Close\n2002-03-15,1,3,1,2\n2002-03-18,1,3,1,\n"
                         "2002-03-19,1,3,1,2\n"));
    EXPECT_EQ(Told(), "1 row of the table was left out.\nLine 3: the close is missing");
    EXPECT_EQ(RowTexts(3)[0], "03/19/02");
}

TEST_F(Tables, TellNoMoreThanTenOfThem) {
    OpenDays(30);
    std::string text = "Date,Open,High,Low,Close\n2002-03-01,1,3,1,2\n";
    for (int day = 10; day < 30; ++day) {
        text += "2002-03-" + std::to_string(day) + ",1,3,1,\n";
    }
    EXPECT_TRUE(Paste(2, text));
    EXPECT_THAT(Told(),
                testing::StartsWith("20 rows of the table were left out.\nLine 3: the close is missing\n"));
    EXPECT_THAT(Told(), testing::EndsWith("Line 12: the close is missing\n..."));
}

} // namespace
} // namespace quorvex::tests
