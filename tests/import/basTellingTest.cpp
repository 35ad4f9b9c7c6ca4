// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "import/basTelling.h"

#include "Tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvex::imports {
namespace {

using testing::ElementsAre;
using tests::ImportText;

std::string Table(int days, std::string_view head = "Date,Open,High,Low,Close\n") {
    std::string table(head);
    for (int day = 1; day <= days; ++day) {
        table += "2024-03-" + std::to_string(100 + day).substr(1) + ",10,12,9,11\n";
    }
    return table;
}

std::vector<std::string> LinesOf(Plan const& plan) {
    std::vector<std::string> lines;
    for (PlanRow const& row : PlanRows(plan)) {
        lines.push_back(row.Is + "|" + row.Column);
        EXPECT_FALSE(row.Is != "not used" && row.Why.empty()) << row.Is;
    }
    return lines;
}

TEST(FindingText, NamesTheLineWhenThereIsOne) {
    EXPECT_EQ(FindingText({7, "odd"}), "Line 7: odd");
    EXPECT_EQ(FindingText({0, "odd"}), "odd");
}

TEST(PlanRows, GoFromTheDateToWhatIsNotUsed) {
    auto const read = ImportText("Change,Close,Low,High,Open,Date,Vol\n" + std::string() +
                                 "1,11,9,12,10,2024-03-01,5\n2,11,9,12,10,2024-03-04,5\n");
    EXPECT_THAT(LinesOf(read.Used), ElementsAre("date|6  Date", "open|5  Open", "high|4  High", "low|3  Low",
                                                "close|2  Close", "volume|7  Vol", "not used|1  Change"));
}

TEST(PlanRows, TellWhatIsMissing) {
    auto const read = ImportText("Date,Open,High,Low,Vol\n2024-03-01,10,12,9,5\n2024-03-04,10,12,9,5\n");
    auto const rows = PlanRows(read.Used);
    auto const missing = std::ranges::find(rows, std::string("close"), &PlanRow::Is);
    ASSERT_NE(missing, rows.end());
    EXPECT_EQ(missing->Column, "");
    EXPECT_EQ(missing->Why, "no column was found");
}

TEST(DescribeConversion, CountsAndNamesTheDays) {
    EXPECT_EQ(DescribeConversion(ImportText(Table(26))),
              "26 rows, oldest first: 26 days, 03/01/24 to 03/26/24.");
    EXPECT_EQ(DescribeConversion(ImportText(Table(1))), "1 row, oldest first: 1 day, 03/01/24 to 03/01/24.");
    EXPECT_EQ(DescribeConversion(ImportText(Table(26) + "2024-03-27,10,9,12,11\n2024-03-28,10,9,12,11\n")),
              "28 rows, oldest first: 26 days, 03/01/24 to 03/26/24. 2 rows are left out.");
    EXPECT_EQ(DescribeConversion(ImportText("nothing")), "No row with a date and four prices was found.");
}

TEST(DescribeConversion, TellsThatNoDayIsLeft) {
    Limits limits;
    limits.From = text::ParseDate("01/01/30");
    EXPECT_EQ(DescribeConversion(ImportText(Table(2), {}, limits)), "2 rows, oldest first: no days.");
}

TEST(DescribeQuoteFile, TellsItsDaysOrWhyThereIsNone) {
    EXPECT_EQ(DescribeQuoteFile(MakeQuoteFile(ImportText(Table(30)), 26)), "26 days, 03/05/24 to 03/30/24.");
    EXPECT_EQ(DescribeQuoteFile(MakeQuoteFile(ImportText(Table(3)), 500)),
              "A quote file has 25 days at least, and there are 3.");
}

// The update of a quote file of these days by a table.
QuoteFile Updated(std::string const& fileTable, std::string const& table, bool replaces,
                  std::size_t most = 500) {
    std::string const file = QuoteText(ImportText(fileTable).Days);
    text::TextSource source(file);
    return UpdateQuoteFile(source, ImportText(table), replaces, most);
}

TEST(DescribeUpdate, CountsWhatBecomesOfTheDays) {
    EXPECT_EQ(DescribeUpdate(Updated(Table(26), Table(28), false), "w.txt", false),
              "Update of w.txt: 2 days appended, 26 there already.");
    EXPECT_EQ(DescribeUpdate(Updated(Table(26), Table(26), false), "w.txt", false),
              "Update of w.txt: 0 days appended, 26 there already: nothing is new.");
    std::string const changed = Table(25) + "2024-03-26,10,12,9,12\n";
    EXPECT_EQ(
        DescribeUpdate(Updated(Table(26), changed, false), "w.txt", false),
        "Update of w.txt: 0 days appended, 25 there already, 1 changed and kept as in the file: nothing "
        "is new.");
    EXPECT_EQ(DescribeUpdate(Updated(Table(26), changed, true), "w.txt", true),
              "Update of w.txt: 0 days appended, 25 there already, 1 changed and replaced.");
    std::string gap = Table(27);
    auto const day = gap.find("2024-03-10");
    gap.erase(day, gap.find('\n', day) + 1 - day);
    EXPECT_EQ(DescribeUpdate(Updated(gap, Table(27), false), "w.txt", false),
              "Update of w.txt: 0 days appended, 1 inserted, 26 there already.");
    EXPECT_EQ(DescribeUpdate(Updated(Table(26), Table(28), false, 27), "w.txt", false),
              "Update of w.txt: 2 days appended, 26 there already, 1 leaving.");
    EXPECT_EQ(
        DescribeUpdate(Updated(Table(26),
                               "Date,Open,High,Low,Close\n2024-02-28,10,12,9,11\n"
                               "2024-05-01,10,12,9,11\n",
                               false),
                       "w.txt", false),
        "Update of w.txt: 1 day appended, 0 there already, 1 too old. More than a week lies between the last "
        "day of the file and the first new one.");
}

TEST(DescribeUpdate, TellsWhyThereIsNone) {
    EXPECT_EQ(DescribeUpdate(Updated(Table(2), Table(3), false), "w.txt", false),
              "Update of w.txt: A quote file has 25 days at least, and there are 3.");
}

TEST(ChangeText, HasBothFigures) {
    auto const file = Updated(Table(26), Table(25) + "2024-03-26,10,12,9,12\n", false);
    ASSERT_EQ(file.Merged->Changed.size(), 1U);
    EXPECT_EQ(ChangeText(file.Merged->Changed.front()),
              "03/26/24: 10, 12, 9, 11, 0, 0 in the file, 10, 12, 9, 12, 0, 0 at line 27");
}

TEST(FindingLines, TellEverything) {
    auto const read =
        ImportText("Prices of wheat,,,,\nDate,Open,High,Low,Close\n2024-03-01,10,12,9,11\n2024-03-01,10,"
                   "12,9,11\n2024-03-02,10,12,9,11\n2024-03-04,10,9,12,11\n");
    EXPECT_THAT(FindingLines(read),
                ElementsAre("Line 6: the high is below the low, left out", "Line 1: Prices of wheat (no row)",
                            "1 row repeated", "2 days without volume, which is 0",
                            "2 days without open interest, which is 0", "1 day on weekends"));
}

TEST(FindingLines, TellOfMarksOfSettlements) {
    auto const read = ImportText("Date,Open,High,Low,Close,Volume,OI\n2024-03-01,10,12,9,11,1,1\n"
                                 "2024-03-04,10,12,9,11s,1,1\n2024-03-05,10,12,9,11s,1,1\n");
    EXPECT_THAT(FindingLines(read), ElementsAre("2 days with the mark s of a settlement, which is passed "
                                                "over, the first at line 3"));
}

// A line for each day, the close of the second one with four decimals.
std::string TableWithDecimals() {
    std::string table = Table(30);
    std::string const second = "2024-03-02,10,12,9,11";
    return table.replace(table.find(second), second.size(), second + ".0625");
}

TEST(DescribeRounding, CountsDaysAndNamesTheFirstLine) {
    auto const file = MakeQuoteFile(ImportText(TableWithDecimals()), 500);
    EXPECT_EQ(DescribeRounding(file, "####0.00"),
              "1 day with prices of more decimals than the Currency Format ####0.00 keeps, at line 3: the "
              "program rounds them");
    EXPECT_EQ(DescribeRounding(file, "####0.0000"), "");
    EXPECT_EQ(DescribeRounding(file, ""), "");
    EXPECT_EQ(DescribeRounding(MakeQuoteFile(ImportText(TableWithDecimals()), 28), "####0.00"), "")
        << "the day is none of the latest";
    auto const eighths =
        MakeQuoteFile(ImportText(Table(28) + "2024-04-02,10,12,9.125,11\n2024-04-03,10.375,12,9,11\n"), 500);
    EXPECT_EQ(
        DescribeRounding(eighths, "####0.00"),
        "2 days with prices of more decimals than the Currency Format ####0.00 keeps, the first at line "
        "30: the program rounds them");
}

TEST(DescribeRounding, LooksAtTheTableAlone) {
    std::string const file = QuoteText(ImportText(TableWithDecimals()).Days);
    text::TextSource source(file);
    auto const updated =
        UpdateQuoteFile(source, ImportText("Date,Open,High,Low,Close\n2024-04-01,10,12,9,11\n"), false, 500);
    EXPECT_EQ(updated.Days.size(), 31U);
    EXPECT_EQ(DescribeRounding(updated, "####0.00"), "");
}

TEST(DescribeRounding, LeavesAFormatThatSpellsNoNumbersToTheProgram) {
    EXPECT_EQ(DescribeRounding(MakeQuoteFile(ImportText(Table(30)), 500), "\"$\"0.00"), "");
    EXPECT_EQ(DescribeRounding(MakeQuoteFile(ImportText(Table(3)), 500), "####0.00"), "") << "no file";
}

TEST(FindingLines, CountWhatIsTooMuch) {
    std::string table = Table(26);
    for (int row = 0; row < 1005; ++row) {
        table += "2024-04-01,10,9,12,11\n";
    }
    auto const lines = FindingLines(ImportText(table));
    EXPECT_EQ(lines.at(1000), "5 more lines of this kind");
}

TEST(FindingLines, BeginWithTheRefusal) {
    EXPECT_THAT(FindingLines(ImportText("nothing")),
                ElementsAre("No row with a date and four prices was found"));
}

} // namespace
} // namespace quorvex::imports
