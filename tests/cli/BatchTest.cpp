// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "support/Sanitizers.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <regex>

namespace quorvex::tests {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr auto* TooFew = "A minimum of 25 daily quotes is required to perform cyclical analysis";

std::vector<std::string> LinesOf(std::string const& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const end = text.find('\n', at);
        lines.push_back(text.substr(at, end - at));
        at = end == std::string::npos ? text.size() : end + 1;
    }
    return lines;
}

// The whole text. GoogleTest's own expressions know neither sets nor counts on Windows.
MATCHER_P(Matches, expression, "matches " + std::string(expression)) {
    return std::regex_match(arg, std::regex(expression));
}

// The fields of a line without marks.
std::vector<std::string> FieldsOf(std::string const& line) {
    std::vector<std::string> fields(1);
    for (char const letter : line) {
        if (letter == ',') {
            fields.emplace_back();
        } else {
            fields.back() += letter;
        }
    }
    return fields;
}

// A folder of three contracts, of which the second one is too short.
class BatchTest : public testing::Test {
protected:
    BatchTest() {
        folder_.Write("a.txt", GoldenFile("quotes/q060.txt"));
        folder_.Write("b.txt", QuoteLines(24));
        folder_.Write("c.txt", GoldenFile("quotes/q250.txt"));
    }

    [[nodiscard]] CompanionRun Run(std::vector<std::string> arguments, std::string const& input = {}) const {
        arguments.insert(arguments.begin(), "batch");
        return RunCompanion(arguments, input);
    }

    [[nodiscard]] std::string File(std::string_view name) const { return folder_.File(name); }

    // With the system's separators.
    [[nodiscard]] std::string NativeFile(std::string_view name) const {
        return std::filesystem::path(File(name)).make_preferred().string();
    }

    TemporaryFolder folder_;
};

TEST_F(BatchTest, WritesALineForEachFileInOrder) {
    auto const run = Run({folder_.Text(), "--automate", "2"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_THAT(run.Errors, Matches("quorvex-cli: 3 files; 1 with a message; [0-9.]+ s, [0-9.]+ a second\n"));
    auto const lines = LinesOf(run.Output);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0],
              "File,Message,QuoteCount,WorkingCount,FirstQuoteDate,LastQuoteDate,LastClose,Correlation,"
              "Weight1,Period1,Shift1,Weight2,Period2,Shift2,Forecast1,Forecast5,Forecast10,Forecast25");
    EXPECT_EQ(lines[2], File("b.txt") + "," + TooFew + std::string(16, ','));
    auto const object =
        json::parse(RunCompanion({"analyse", File("c.txt"), "--automate", "2", "--json"}).Output);
    auto const fields = FieldsOf(lines[3]);
    ASSERT_EQ(fields.size(), 18U);
    EXPECT_EQ(fields[0], File("c.txt"));
    EXPECT_EQ(fields[1], "");
    EXPECT_EQ(fields[2], "250");
    EXPECT_EQ(fields[3], "250");
    EXPECT_THAT(fields[4], Matches("[0-9]{4}-[0-9]{2}-[0-9]{2}"));
    EXPECT_EQ(fields[5].substr(5, 2), object.at("LastQuoteDate").get<std::string>().substr(0, 2));
    EXPECT_EQ(json::parse(fields[6]).get<double>(), object.at("Quotes").at(249).at(4).get<double>());
    EXPECT_EQ(json::parse(fields[7]).get<double>(), object.at("Correlation").at("r").get<double>());
    EXPECT_EQ(json::parse(fields[12]).get<double>(), object.at("Cycles").at(1).at("Period").get<double>());
    std::size_t field = 14;
    for (std::size_t const day : {0U, 4U, 9U, 24U}) {
        EXPECT_EQ(json::parse(fields[field++]).get<double>(),
                  object.at("Forecast").at("Values").at(day).get<double>());
    }
}

TEST_F(BatchTest, HasTheColumnsOfTheCyclesThatWereAskedFor) {
    auto const head = [&](std::vector<std::string> arguments) {
        arguments.push_back(File("c.txt"));
        auto const run = Run(arguments);
        EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
        return LinesOf(run.Output).front();
    };
    EXPECT_THAT(head({}), EndsWith("LastClose,Correlation,Forecast1,Forecast5,Forecast10,Forecast25"));
    EXPECT_THAT(head({"--search", "3"}), HasSubstr(",Weight3,Period3,Shift3,Forecast1,"));
    EXPECT_THAT(head({"--parameters", GoldenPath("params/lf.dat")}),
                HasSubstr(",Weight10,Period10,Shift10,"));
}

TEST_F(BatchTest, WritesTheObjectsOfAnalyse) {
    for (std::vector<std::string> const& cycles : {std::vector<std::string>{"--automate", "3"},
                                                   {"--search", "2", "--min-period", "10"},
                                                   {},
                                                   {"--parameters", GoldenPath("params/lf.dat")},
                                                   {"--moving-average", "11", "--end", "03/01/99"}}) {
        std::vector<std::string> arguments = {"--format", "jsonl", File("c.txt"), File("a.txt"),
                                              File("c.txt")};
        arguments.insert(arguments.end(), cycles.begin(), cycles.end());
        std::string expected;
        std::string errors;
        for (auto const* name : {"c.txt", "a.txt", "c.txt"}) {
            std::vector<std::string> analyse = {"analyse", "--json", File(name)};
            analyse.insert(analyse.end(), cycles.begin(), cycles.end());
            auto const run = RunCompanion(analyse);
            if (run.ExitStatus == 0) {
                expected += run.Output;
            } else {
                errors += run.Errors;
            }
        }
        auto const run = Run(arguments);
        if (errors.empty()) {
            EXPECT_EQ(run.Output, expected);
            EXPECT_EQ(run.ExitStatus, 0);
        } else {
            EXPECT_EQ(run.ExitStatus, 1);
            EXPECT_THAT(run.Output, HasSubstr(R"("Refusal":")"));
        }
    }
}

TEST_F(BatchTest, TellsARefusalInItsObject) {
    auto const run = Run({folder_.Text(), "--format", "jsonl"});
    EXPECT_EQ(run.ExitStatus, 1);
    auto const lines = LinesOf(run.Output);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(json::parse(lines[1]),
              json({{"QuoteFileName", "b.txt"}, {"Refusal", TooFew}, {"Path", File("b.txt")}}));
    EXPECT_THAT(lines[1], StartsWith(R"({"QuoteFileName":"b.txt","Refusal":")"));
}

TEST_F(BatchTest, GivesTheSameBytesWithAnyNumberOfJobs) {
    for (auto const* format : {"csv", "jsonl"}) {
        auto const one = Run({folder_.Text(), "--automate", "1", "--format", format, "--jobs", "1"});
        for (auto const* jobs : {"2", "8"}) {
            EXPECT_EQ(Run({folder_.Text(), "--automate", "1", "--format", format, "--jobs", jobs}).Output,
                      one.Output);
        }
    }
}

TEST_F(BatchTest, TakesNamesFromAListOrAPipe) {
    std::string const list = File("c.txt") + "\r\n\n" + File("a.txt") + "\n" + File("no.txt");
    folder_.Write("list", list);
    auto const run = Run({"--files-from", File("list")});
    auto const lines = LinesOf(run.Output);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_THAT(lines[1], StartsWith(File("c.txt") + ",,250,"));
    EXPECT_THAT(lines[2], StartsWith(File("a.txt") + ",,60,"));
    EXPECT_THAT(lines[3], StartsWith(File("no.txt") + ",File not found,"));
    EXPECT_EQ(Run({"--files-from", "-"}, list).Output, run.Output);
    auto const missing = Run({"--files-from", File("nowhere")});
    EXPECT_EQ(missing.ExitStatus, 3);
    EXPECT_EQ(missing.Output, "");
    EXPECT_EQ(missing.Errors, "quorvex-cli: " + File("nowhere") + ": File not found\n");
}

TEST_F(BatchTest, GoesThroughFoldersOfFolders) {
    std::filesystem::create_directory(folder_.File("sub"));
    folder_.Write("sub/d.txt", QuoteLines(30));
    EXPECT_EQ(LinesOf(Run({folder_.Text()}).Output).size(), 4U);
    auto const lines = LinesOf(Run({"-r", folder_.Text()}).Output);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_THAT(lines[4], StartsWith(NativeFile("sub/d.txt") + ",,30,"));
}

TEST_F(BatchTest, TellsOfAnEmptyFolderInItsLine) {
    std::filesystem::create_directory(folder_.File("sub"));
    auto const run = Run({File("sub"), File("a.txt")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_THAT(LinesOf(run.Output)[1], StartsWith(NativeFile("sub/") + ",There is no file *.txt,"));
    EXPECT_THAT(LinesOf(run.Output)[2], StartsWith(File("a.txt") + ",,"));
}

TEST_F(BatchTest, QuotesFieldsThatNeedIt) {
    folder_.Write("a, b.txt", QuoteLines(30));
    auto const run = Run({File("a, b.txt")});
    EXPECT_THAT(LinesOf(run.Output)[1], StartsWith('"' + File("a, b.txt") + "\",,30,"));
}

TEST_F(BatchTest, KeepsWhatItCouldComputeBesideAMessage) {
    folder_.Write("flat.txt", [] {
        std::string text;
        for (int day = 1; day <= 30; ++day) {
            text +=
                "01/" + std::string(day < 10 ? "0" : "") + std::to_string(day) + "/02, 5, 5, 5, 5, 0, 0\r\n";
        }
        return text;
    }());
    auto const alone = RunCompanion({"analyse", "--json", "--automate", "3", File("flat.txt")});
    auto const table = Run({"--automate", "3", File("flat.txt")});
    auto const objects = Run({"--automate", "3", "--format", "jsonl", File("flat.txt")});
    EXPECT_EQ(objects.Output, alone.Output);
    EXPECT_EQ(objects.ExitStatus, alone.ExitStatus);
    EXPECT_EQ(table.ExitStatus, alone.ExitStatus);
    EXPECT_THAT(objects.Errors, StartsWith(alone.Errors));
    auto const fields = FieldsOf(LinesOf(table.Output)[1]);
    EXPECT_EQ(fields[1].empty(), alone.Errors.empty());
    EXPECT_EQ(fields[2], "30");
}

TEST_F(BatchTest, TestsForecasts) {
    std::string const file = GoldenPath("quotes/q250.txt");
    std::vector<std::string> const test = {"--surrogates", "3", "--every", "20"};
    std::vector<std::string> arguments = {file, File("a.txt"), "--automate", "1", "--evaluate"};
    arguments.insert(arguments.end(), test.begin(), test.end());
    auto const table = Run(arguments);
    auto const lines = LinesOf(table.Output);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_THAT(lines[0], EndsWith(",Forecast25,BetterModels,LeastErrorRatio,LeastChance,Verdict"));
    EXPECT_THAT(lines[2], StartsWith(File("a.txt") + ","));
    EXPECT_THAT(lines[2], EndsWith(",,,,")); // too short for a test, which its message tells
    EXPECT_EQ(table.ExitStatus, 1);
    auto const alone = RunCompanion({"evaluate", file, "--json", "--surrogates", "3", "--every", "20"});
    auto const analysis = RunCompanion({"analyse", file, "--json", "--automate", "1"});
    arguments.insert(arguments.end(), {"--format", "jsonl"});
    auto const objects = LinesOf(Run(arguments).Output);
    auto expected = nlohmann::ordered_json::parse(analysis.Output);
    expected["Evaluation"] = nlohmann::ordered_json::parse(alone.Output);
    EXPECT_EQ(nlohmann::ordered_json::parse(objects[0]), expected);
    EXPECT_TRUE(json::parse(objects[1]).at("Evaluation").is_null());
}

TEST_F(BatchTest, RefusesAParameterFileOnce) {
    auto const run = Run({folder_.Text(), "--parameters", File("no.dat"), "-o", File("out.csv")});
    EXPECT_EQ(run.ExitStatus, 3);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + File("no.dat") + ": File not found\n");
    EXPECT_FALSE(std::filesystem::exists(folder_.File("out.csv")));
}

TEST_F(BatchTest, GoesOnBehindWholeLines) {
    for (auto const* format : {"csv", "jsonl"}) {
        auto const whole = Run({folder_.Text(), "--format", format}).Output;
        for (std::size_t length = 0; length <= whole.size(); length += 1 + whole.size() / Repetitions(17U)) {
            folder_.Write("out", whole.substr(0, length));
            auto const run = Run({folder_.Text(), "--format", format, "-o", File("out"), "--resume"});
            EXPECT_EQ(folder_.Read("out"), whole) << length;
            EXPECT_EQ(run.ExitStatus, 1); // though the refusal may stand in an earlier line
            EXPECT_THAT(run.Errors, HasSubstr("3 files"));
        }
        std::filesystem::remove(folder_.File("out"));
        EXPECT_EQ(Run({folder_.Text(), "--format", format, "-o", File("out"), "--resume"}).ExitStatus, 1);
        EXPECT_EQ(folder_.Read("out"), whole);
        auto const again = Run({folder_.Text(), "--format", format, "-o", File("out"), "--resume"});
        EXPECT_THAT(again.Errors, HasSubstr("3 files, 3 of them before; 1 with a message;"));
        EXPECT_EQ(folder_.Read("out"), whole);
    }
}

TEST_F(BatchTest, DoesNotGoOnBehindTheLinesOfAnotherBatch) {
    auto const earlier = Run({folder_.Text(), "--automate", "1"}).Output;
    folder_.Write("out", earlier);
    auto const resume = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), {"-o", File("out"), "--resume"});
        auto const run = Run(arguments);
        EXPECT_EQ(run.ExitStatus, 3);
        EXPECT_EQ(folder_.Read("out"), earlier);
        return run.Errors;
    };
    std::string const about = "quorvex-cli: " + File("out") + ": ";
    EXPECT_EQ(resume({folder_.Text(), "--automate", "2"}),
              about + "Its first line is another one than these options give\n");
    EXPECT_EQ(resume({File("c.txt"), "--automate", "1"}),
              about + "Line 2 is not that of " + File("c.txt") + "\n");
    EXPECT_EQ(resume({folder_.Text(), "--automate", "1", "--moving-average", "11"}),
              about + "The line of " + File("c.txt") +
                  " would be another one now: other options, or the file has changed\n");
    EXPECT_EQ(resume({File("a.txt"), "--automate", "1"}), about + "It has more lines than there are files\n");
}

TEST_F(BatchTest, WritesOverNothingButItsOwnLines) {
    std::string const before = folder_.Read("a.txt");
    auto const run = Run({folder_.Text(), "-o", File("a.txt")});
    EXPECT_EQ(run.ExitStatus, 3);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + File("a.txt") +
                              ": It is there and was not written by batch: it stays as it is\n");
    EXPECT_EQ(folder_.Read("a.txt"), before);
    folder_.Write("own.csv", Run({File("a.txt"), "--format", "jsonl"}).Output);
    EXPECT_EQ(Run({File("c.txt"), "-o", File("own.csv")}).ExitStatus, 0);
    EXPECT_EQ(folder_.Read("own.csv"), Run({File("c.txt")}).Output);
}

TEST_F(BatchTest, WritesOverNoTableWithOtherColumns) {
    folder_.Write("own.csv", "File,Message,Notes\na,b,c\n");
    for (std::vector<std::string> const& resumed : {std::vector<std::string>{}, {"--resume"}}) {
        std::vector<std::string> arguments = {File("a.txt"), "-o", File("own.csv")};
        arguments.insert(arguments.end(), resumed.begin(), resumed.end());
        EXPECT_EQ(Run(arguments).ExitStatus, 3);
        EXPECT_EQ(folder_.Read("own.csv"), "File,Message,Notes\na,b,c\n");
    }
}

TEST_F(BatchTest, LooksAgainAtTheFileThatWasRefusedLast) {
    for (auto const* format : {"csv", "jsonl"}) {
        std::vector<std::string> const arguments = {File("a.txt"), File("b.txt"), File("c.txt"), "--format",
                                                    format,        "-o",          File("out"),   "--resume"};
        folder_.Write("b.txt", QuoteLines(24));
        folder_.Write("out", Run({File("a.txt"), File("b.txt"), "--format", format}).Output);
        folder_.Write("b.txt", QuoteLines(30)); // repaired
        EXPECT_EQ(Run(arguments).ExitStatus, 0);
        EXPECT_EQ(folder_.Read("out"),
                  Run({File("a.txt"), File("b.txt"), File("c.txt"), "--format", format}).Output);
        std::filesystem::remove(folder_.File("out"));
    }
}

TEST_F(BatchTest, RemembersAMissingTestOfForecasts) {
    std::vector<std::string> const arguments = {
        File("a.txt"), "--evaluate", "--surrogates", "1", "--format", "jsonl", "-o", File("out"), "--resume"};
    for (int time = 1; time <= 2; ++time) {
        EXPECT_EQ(Run(arguments).ExitStatus, 1) << time;
    }
}

TEST_F(BatchTest, DoesNotTakeItsOwnOutputForQuotes) {
    auto const run = Run({folder_.Text(), "-o", File("results.txt")});
    EXPECT_EQ(LinesOf(folder_.Read("results.txt")).size(), 4U);
    EXPECT_EQ(LinesOf(folder_.Read("results.txt")).back().find("results.txt"), std::string::npos);
    EXPECT_EQ(Run({folder_.Text(), "-o", File("results.txt"), "--resume"}).ExitStatus, 1);
    EXPECT_EQ(LinesOf(folder_.Read("results.txt")).size(), 4U);
}

TEST_F(BatchTest, TellsWhatCannotBeWritten) {
    auto const run = Run({folder_.Text(), "-o", File("nowhere/out.csv")});
    EXPECT_EQ(run.ExitStatus, 3);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + File("nowhere/out.csv") + ": Path not found\n");
#ifdef __linux__
    auto const full = RunCompanion({"batch", "-o", "/dev/full", File("a.txt")});
    EXPECT_EQ(full.ExitStatus, 3);
    EXPECT_EQ(full.Errors, "quorvex-cli: /dev/full: Permission denied\n");
#endif
}

TEST(BatchCommand, EndsWithTwoOnWrongUsage) {
    ExpectWrongUsage({{"batch"},
                      {"batch", "a.txt", "--files-from", "b"},
                      {"batch", "a.txt", "--resume"},
                      {"batch", "a.txt", "--jobs", "0"},
                      {"batch", "a.txt", "--jobs", "x"},
                      {"batch", "a.txt", "--format", "xml"},
                      {"batch", "a.txt", "--automate", "2", "--search", "2"},
                      {"batch", "a.txt", "--every", "4"},
                      {"batch", "a.txt", "--search", "2", "--min-period", "90", "--max-period", "30"}});
}

} // namespace
} // namespace quorvex::tests
