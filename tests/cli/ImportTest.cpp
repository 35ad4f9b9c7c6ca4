// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/HelpDocuments.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace quorvex::tests {
namespace {

constexpr auto Head = "Date,Open,High,Low,Close,Volume,Open Interest\n";

// So many days of October and November 2019, as a vendor writes them, from this one on.
std::string Rows(int first, int count) {
    std::string rows;
    for (int day = first; day < first + count; ++day) {
        std::string const date = day <= 31 ? "2019-10-" + std::to_string(100 + day).substr(1)
                                           : "2019-11-" + std::to_string(100 + day - 31).substr(1);
        rows += date + "," + std::to_string(400 + day) + ".25,480,390.5," + std::to_string(401 + day) +
                ",1000,2000\n";
    }
    return rows;
}

std::string ImportedLines(int first, int count) {
    std::string lines;
    for (int day = first; day < first + count; ++day) {
        std::string const date = day <= 31 ? "10/" + std::to_string(100 + day).substr(1)
                                           : "11/" + std::to_string(100 + day - 31).substr(1);
        lines += date + "/19, " + std::to_string(400 + day) + ".25, 480.00, 390.50, " +
                 std::to_string(401 + day) + ".00, 1000, 2000\r\n";
    }
    return lines;
}

bool Has(std::string const& text, std::string const& part) {
    return text.find(part) != std::string::npos;
}

TEST(ImportCommand, TellsTheWordsOfAnOptionInTheirOrderOnce) {
    auto const run = RunCompanion({"import", "--help"});
    EXPECT_NE(run.Output.find("--date-order ymd|mdy|dmy "), std::string::npos) << run.Output;
    EXPECT_NE(run.Output.find("--fraction none|2|4|8|16|32|64|128\n"), std::string::npos) << run.Output;
    auto const wrong = RunCompanion({"import", "table.csv", "--date-order", "ydm"});
    EXPECT_NE(wrong.Errors.find("ydm is not ymd|mdy|dmy"), std::string::npos) << wrong.Errors;
}

TEST(Import, WritesAQuoteFileAndTellsWhatItDid) {
    TemporaryFolder const folder;
    folder.Write("in.csv", Head + Rows(1, 30) + "Total,,,,,1,2\n");
    auto const run = RunCompanion({"import", folder.File("in.csv"), "-o", folder.File("out.txt")});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(folder.Read("out.txt"), ImportedLines(1, 30));
    for (auto const* part :
         {"Separated by    commas", "Dates           year, month, day",
          "Decimal mark    point (401.25 at line 2)", "5    Close          close          heading",
          "Read            31 (oldest first)", "Line 32: \"Total\" is no date",
          "Days            30, 10/01/19 to 10/30/19"}) {
        EXPECT_TRUE(Has(run.Output, part)) << part << "\n" << run.Output;
    }
    EXPECT_TRUE(Has(run.Output, "Written         " + folder.File("out.txt")));
}

TEST(Import, KeepsWhatItReplaces) {
    TemporaryFolder const folder;
    folder.Write("out.txt", "old");
    auto const run = RunCompanion({"import", "-", "-o", folder.File("out.txt")}, Head + Rows(1, 30));
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(folder.Read("out.txt~"), "old");
}

TEST(Import, ReadsAPipeAndWritesOne) {
    EXPECT_EQ(RunCompanion({"import", "-", "-o", "-"}, Head + Rows(1, 2)).Output, "") << "refused";
    auto const run = RunCompanion({"import", "-", "-o", "-"}, Head + Rows(1, 30) + "x,1,2,3,4,5,6\n");
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Output, ImportedLines(1, 30));
    EXPECT_EQ(run.Errors, "quorvex-cli: standard input: Line 32: \"x\" is no date, left out\n");
}

TEST(Import, WritesNothingWithoutANameOrInADryRun) {
    TemporaryFolder const folder;
    for (std::vector<std::string> const& more :
         {std::vector<std::string>{}, {"-o", folder.File("out.txt"), "--dry-run"}}) {
        std::vector<std::string> arguments = {"import", "-"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        auto const run = RunCompanion(arguments, Head + Rows(1, 30));
        EXPECT_EQ(run.ExitStatus, 0);
        EXPECT_TRUE(Has(run.Output, "Nothing was written"));
        EXPECT_FALSE(std::filesystem::exists(folder.File("out.txt")));
    }
}

TEST(Import, RefusesAndTellsHowToSettle) {
    TemporaryFolder const folder;
    std::string const out = folder.File("out.txt");
    std::string doubtful = Head;
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= 3; ++day) {
            doubtful +=
                std::to_string(month) + "/" + std::to_string(day + month % 9) + "/2019,5,6.5,4,5,1,2\n";
        }
    }
    auto const run = RunCompanion({"import", "-", "-o", out}, doubtful);
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_TRUE(Has(run.Output, "Dates           month, day, year or day, month, year\n")) << run.Output;
    EXPECT_TRUE(Has(run.Output, "5    Close          close          heading"));
    EXPECT_FALSE(Has(run.Output, "Quote file"));
    EXPECT_EQ(run.Errors,
              "quorvex-cli: standard input: Line 2: \"1/2/2019\" and all other dates can be month, day, "
              "year or day, month, year. Give --date-order ymd|mdy|dmy\n");
    EXPECT_FALSE(std::filesystem::exists(out));
    EXPECT_EQ(RunCompanion({"import", "-", "-o", out, "--date-order", "mdy"}, doubtful).ExitStatus, 0);
    EXPECT_EQ(RunCompanion({"import", "-", "-o", out}, Head + Rows(1, 24)).Errors,
              "quorvex-cli: standard input: A quote file has 25 days at least, and there are 24\n");
    EXPECT_EQ(RunCompanion({"import", "-", "--strict"}, Head + Rows(1, 30) + "x,1,2,3,4,5,6\n").Errors,
              "quorvex-cli: standard input: Line 32: \"x\" is no date\n");
}

TEST(Import, TakesRowsOfWeeksOnlyOnRequest) {
    std::string table = "Date,Open,High,Low,Close\n";
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= 22; day += 7) {
            table += "2019-" + std::to_string(100 + month).substr(1) + "-" +
                     std::to_string(100 + day).substr(1) + ",5,6.5,4,5\n";
        }
    }
    auto const refused = RunCompanion({"import", "-"}, table);
    EXPECT_EQ(refused.ExitStatus, 1);
    EXPECT_EQ(refused.Errors,
              "quorvex-cli: standard input: The rows look weekly, not daily: the median distance "
              "of the days is 7. Give --any-bars to take each row for a day\n");
    auto const taken = RunCompanion({"import", "-", "--any-bars"}, table);
    EXPECT_EQ(taken.ExitStatus, 0);
    EXPECT_TRUE(Has(taken.Output, "The rows look weekly, not daily: the median distance of the days is 7\n"));
    EXPECT_EQ(
        RunCompanion({"import", "-", "-o", "-", "--any-bars"}, table).Errors,
        "quorvex-cli: standard input: The rows look weekly, not daily: the median distance of the days is "
        "7\n");
    auto const told =
        nlohmann::json::parse(RunCompanion({"import", "-", "--any-bars", "--json"}, table).Output);
    EXPECT_EQ(told["Rows"]["DaysApart"], 7);
}

TEST(Import, TellsOfPricesThatTheProgramRounds) {
    std::string const table = Head + Rows(1, 30) + "2019-11-01,400.125,480,390.0625s,401,1,2\n";
    std::string const rounding =
        "1 day with prices of more decimals than the Currency Format ####0.00 keeps, at "
        "line 32: the program rounds them\n";
    auto const run = RunCompanion({"import", "-"}, table);
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_TRUE(Has(run.Output, "  " + rounding)) << run.Output;
    EXPECT_TRUE(Has(run.Output, "  Mark s          1 (first at line 32)\n")) << run.Output;
    EXPECT_EQ(RunCompanion({"import", "-", "-o", "-"}, table).Errors,
              "quorvex-cli: standard input: " + rounding);
    EXPECT_FALSE(Has(RunCompanion({"import", "-", "--format", "0.0000"}, table).Output, "rounds them"));
    auto const told = nlohmann::json::parse(RunCompanion({"import", "-", "--json"}, table).Output);
    EXPECT_EQ(told["Rounded"], (nlohmann::json{{"Count", 1}, {"FirstLine", 32}}));
    EXPECT_EQ(told["Rows"]["WithSettlementMark"], (nlohmann::json{{"Count", 1}, {"FirstLine", 32}}));
}

TEST(Import, TakesTheContractWithoutAName) {
    std::string table = "Symbol," + std::string(Head);
    for (int day = 10; day < 40; ++day) {
        for (auto const* symbol : {"ZW", ""}) {
            std::string const row = Rows(day, 1);
            table.append(symbol).append(",").append(row);
        }
    }
    EXPECT_EQ(
        RunCompanion({"import", "-"}, table).Errors,
        "quorvex-cli: standard input: There are several contracts: ZW, one without a name. Give --symbol "
        "NAME (\"\" for one without a name), or --columns not-used=N for a column that does not name the "
        "contract\n");
    auto const run = RunCompanion({"import", "-", "-o", "-", "--symbol", ""}, table);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, ImportedLines(10, 30));
}

TEST(Import, TakesChoicesOfTheUser) {
    TemporaryFolder const folder;
    std::string const out = folder.File("out.txt");
    std::string const table = "Date;Open;High;Low;Last;Settle\n" + [] {
        std::string rows;
        for (int day = 1; day <= 30; ++day) {
            rows += std::to_string(day) + ".10.2019;1.401;1.404;1.399;1.402;1.403\n";
        }
        return rows;
    }();
    auto const run = RunCompanion({"import", "-", "-o", out, "--columns", "close=Last", "--decimal", "comma",
                                   "--days", "25", "--from", "10/03/19", "--to", "10/29/19"},
                                  table);
    EXPECT_EQ(run.Errors, "");
    auto const text = folder.Read("out.txt");
    EXPECT_TRUE(text.starts_with("10/05/19, 1401.00, 1404.00, 1399.00, 1402.00, 0, 0\r\n")) << text;
    EXPECT_TRUE(Has(text, "10/29/19"));
    EXPECT_FALSE(Has(text, "10/30/19"));
    EXPECT_EQ(
        RunCompanion({"import", "-", "-o", out, "--columns", "date,open,high,low,not-used,close", "--decimal",
                      "point", "--separator", "semicolon", "--encoding", "utf-8", "--fraction", "none"},
                     table)
            .Errors,
        "");
    EXPECT_TRUE(folder.Read("out.txt").starts_with("10/01/19, 1.401, 1.404, 1.399, 1.403, 0, 0\r\n"));
}

TEST(Import, TellsWhichOptionSettlesWhatIsOpen) {
    auto const columns = RunCompanion(
        {"import", "-"}, "Date,Open,High,Low,Close,Close\n2019-10-29,401.25,404.25,399.75,402.5,403\n");
    EXPECT_EQ(columns.ExitStatus, 1);
    EXPECT_TRUE(columns.Errors.ends_with(". Give --columns, such as close=5,volume=Vol\n")) << columns.Errors;
    auto const mark =
        RunCompanion({"import", "-"}, "Date;Open;High;Low;Close\n2019-10-29;1.401;1.404;1.399;1.402\n");
    EXPECT_EQ(mark.ExitStatus, 1);
    EXPECT_TRUE(mark.Errors.ends_with(". Give --decimal point|comma\n")) << mark.Errors;
    auto const fraction = RunCompanion({"import", "-"}, "2019-10-29,118-16,118-20,118-10,118-12\n");
    EXPECT_EQ(fraction.ExitStatus, 1);
    EXPECT_TRUE(fraction.Errors.ends_with(". Give --fraction none|2|4|8|16|32|64|128\n")) << fraction.Errors;
}

TEST(Import, BringsAQuoteFileUpToDate) {
    TemporaryFolder const folder;
    std::string const quotes = folder.File("quotes.txt");
    folder.Write("quotes.txt", ImportedLines(1, 30));
    auto const run = RunCompanion({"import", "-", "--into", quotes}, Head + Rows(28, 10));
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(folder.Read("quotes.txt"), ImportedLines(1, 37));
    EXPECT_EQ(folder.Read("quotes.txt~"), ImportedLines(1, 30));
    EXPECT_TRUE(Has(run.Output, "Appended        7"));
    EXPECT_TRUE(Has(run.Output, "There already   3"));

    auto const again = RunCompanion({"import", "-", "--into", quotes}, Head + Rows(28, 10));
    EXPECT_TRUE(Has(again.Output, "Nothing is new"));
    EXPECT_EQ(folder.Read("quotes.txt~"), ImportedLines(1, 30)) << "nothing was written";
}

TEST(Import, TakesChangedFiguresOnlyWhenTold) {
    TemporaryFolder const folder;
    std::string const quotes = folder.File("quotes.txt");
    folder.Write("quotes.txt", ImportedLines(1, 30));
    std::string const table = Head + Rows(1, 29) + "2019-10-30,430.25,480,390.5,431,1777,2000\n";
    auto const run = RunCompanion({"import", "-", "--into", quotes}, table);
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(folder.Read("quotes.txt"), ImportedLines(1, 30));
    EXPECT_TRUE(Has(run.Output,
                    "10/30/19: 430.25, 480, 390.5, 431, 1000, 2000 in the file, 430.25, 480, 390.5, 431, "
                    "1777, 2000 at line 31"));
    EXPECT_EQ(RunCompanion({"import", "-", "--into", quotes, "--replace"}, table).ExitStatus, 0);
    EXPECT_TRUE(Has(folder.Read("quotes.txt"), "431.00, 1777, 2000"));
}

TEST(Import, LeavesTheQuoteFileWhenAnythingIsRefused) {
    TemporaryFolder const folder;
    std::string const quotes = folder.File("quotes.txt");
    folder.Write("quotes.txt", ImportedLines(1, 30));
    auto const run =
        RunCompanion({"import", "-", "--into", quotes}, Head + Rows(31, 2) + "2019-10-31,5,6,4,5,1,2\n");
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: standard input: Line 4: The day of line 2 again with other figures: "
                          "take one of both rows out\n");
    EXPECT_EQ(folder.Read("quotes.txt"), ImportedLines(1, 30));
    EXPECT_EQ(RunCompanion({"import", "-", "--into", folder.File("gone.txt")}, Head + Rows(1, 30)).Errors,
              "quorvex-cli: " + folder.File("gone.txt") + ": File not found\n");
    EXPECT_EQ(RunCompanion({"import", folder.File("gone.csv"), "--into", quotes}).Errors,
              "quorvex-cli: " + folder.File("gone.csv") + ": File not found\n");
}

TEST(Import, HasEveryOptionOfTheReadMe) {
    std::string const text = TextOf(ReadHelp("Quorvex-ReadMe.rtf"));
    std::string const help = RunCompanion({"import", "--help"}).Output;
    int named = 0;
    std::size_t const chapter = text.find("Getting quotes in");
    ASSERT_NE(chapter, std::string::npos);
    std::size_t const end = text.find("The companion quorvex-cli", chapter);
    for (std::size_t at = text.find("--", chapter); at < end; at = text.find("--", at + 2)) {
        std::string const option = text.substr(at, text.find_first_of(" .,:;)\n", at) - at);
        EXPECT_TRUE(Has(help, option)) << option;
        ++named;
    }
    EXPECT_GE(named, 8);
}

TEST(Import, TellsOfHowManyDaysTheLatestAre) {
    auto const run = RunCompanion({"import", "-", "--days", "25"}, Head + Rows(1, 30));
    EXPECT_TRUE(Has(run.Output, "Days            25, 10/06/19 to 10/30/19, the latest of 30")) << run.Output;
}

TEST(Import, PrintsEverythingAsJson) {
    TemporaryFolder const folder;
    folder.Write("quotes.txt", ImportedLines(1, 30));
    auto const run = RunCompanion({"import", "-", "--into", folder.File("quotes.txt"), "--dry-run", "--json"},
                                  Head + Rows(30, 3) + "x,1,2,3,4,5,6\n");
    EXPECT_EQ(run.ExitStatus, 0);
    auto const parsed = nlohmann::json::parse(run.Output);
    EXPECT_FALSE(parsed.at("IsWritten").get<bool>());
    EXPECT_TRUE(parsed.at("Refused").is_null());
    EXPECT_EQ(parsed.at("Plan").at("DecimalMark"), "point");
    EXPECT_EQ(parsed.at("Plan").at("Columns").at(4).at("Role"), "close");
    EXPECT_EQ(parsed.at("Rows").at("Read"), 4);
    EXPECT_EQ(parsed.at("LeftOut").at("Lines").at(0).at("Line"), 5);
    EXPECT_EQ(parsed.at("Update").at("Appended").size(), 2U);
    EXPECT_EQ(parsed.at("Quotes").size(), 32U);
    EXPECT_EQ(parsed.at("Quotes").at(0).dump(), R"(["10/01/19",401.25,480,390.5,402,1000,2000])");

    auto const refused = RunCompanion({"import", "-", "--json"}, "nothing");
    EXPECT_EQ(refused.ExitStatus, 1);
    auto const why = nlohmann::json::parse(refused.Output);
    EXPECT_EQ(why.at("Refused").at("Text"), "No row with a date and four prices was found");
    EXPECT_TRUE(why.at("Quotes").is_null());
}

TEST(Import, EndsWithTwoOnWrongUsage) {
    for (std::vector<std::string> const& arguments : {std::vector<std::string>{"import"},
                                                      {"import", "a", "-o", "b", "--into", "c"},
                                                      {"import", "a", "--replace"},
                                                      {"import", "a", "--into", "-"},
                                                      {"import", "a", "--columns", "date,open,foo"},
                                                      {"import", "a", "--columns", "close=3,open"},
                                                      {"import", "a", "--columns", "close="},
                                                      {"import", "a", "--date-order", "x"},
                                                      {"import", "a", "--decimal", "."},
                                                      {"import", "a", "--fraction", "7"},
                                                      {"import", "a", "--from", "13/45/02"},
                                                      {"import", "a", "-o", "a"},
                                                      {"import", "a", "--into", "a"},
                                                      {"import", "a", "--from", "1/2/19", "--to", "1/1/19"},
                                                      {"import", "a", "-o", "-", "--json"},
                                                      {"import", "a", "--days", "501"},
                                                      {"import", "a", "--days", "24"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 2);
        EXPECT_NE(run.Errors, "");
    }
}

} // namespace
} // namespace quorvex::tests
