// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace quorvex::tests {
namespace {

using nlohmann::json;

std::string const Quotes = GoldenPath("quotes/q060.txt");

TEST(Search, PrintsCyclesCorrelationAndWhatEachAdds) {
    auto const run = RunCompanion({"search", Quotes, "--cycles", "2"});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    for (auto const* part : {"Weight  Period   Shift   Decay", "Cycle 2",
                             "The coefficient of correlation between the", "Adds", "Correlation\n  1 "}) {
        EXPECT_NE(run.Output.find(part), std::string::npos) << part << '\n' << run.Output;
    }
    EXPECT_EQ(run.Output.find("Cycle 3"), std::string::npos);
}

TEST(Search, LooksForThreeCyclesUnlessToldOtherwise) {
    auto const object = json::parse(RunCompanion({"search", Quotes, "--json"}).Output);
    EXPECT_EQ(object.at("Search").size(), 3U);
}

TEST(Search, PrintsTheObjectOfAnAnalysisWithASearch) {
    auto const searched = RunCompanion({"search", Quotes, "--cycles", "3", "--json"});
    auto const analysed = RunCompanion({"analyse", Quotes, "--search", "3", "--json"});
    EXPECT_EQ(searched.ExitStatus, 0) << searched.Errors;
    EXPECT_EQ(searched.Output, analysed.Output);
    auto const object = json::parse(searched.Output);
    auto const& found = object.at("Search").back();
    EXPECT_NEAR(object.at("Correlation").at("r").get<double>(), found.at("Correlation").get<double>(), 1e-9);
    for (std::size_t i = 0; i < found.at("Cycles").size(); ++i) {
        auto const& cycle = found.at("Cycles").at(i);
        EXPECT_EQ(object.at("Grid").at(i), json({std::to_string(cycle.at("Weight").get<int>()),
                                                 std::to_string(cycle.at("Period").get<int>()),
                                                 std::to_string(cycle.at("Shift").get<int>()), "0"}));
    }
    EXPECT_FALSE(object.at("CompositeCurve").is_null());
    EXPECT_FALSE(object.at("Forecast").is_null());
}

TEST(Search, AnAnalysisWithoutOneDoesNotTellOfIt) {
    EXPECT_FALSE(json::parse(RunCompanion({"analyse", Quotes, "--json"}).Output).contains("Search"));
}

TEST(Search, WritesAParameterFileThatGivesTheSameAnalysis) {
    TemporaryFolder const folder;
    std::string const path = folder.File("found.dat");
    auto const run = RunCompanion({"search", Quotes, "--cycles", "3", "--json", "-o", path});
    ASSERT_EQ(run.ExitStatus, 0) << run.Errors;
    auto const found = json::parse(run.Output);
    auto const read = json::parse(RunCompanion({"analyse", Quotes, "--parameters", path, "--json"}).Output);
    for (auto const* member : {"Grid", "Correlation", "CompositeCurve", "Forecast"}) {
        EXPECT_EQ(read.at(member), found.at(member)) << member;
    }
}

TEST(Search, DoesNotReplaceAFileUnlessForced) {
    TemporaryFolder const folder;
    std::string const path = folder.File("mine.dat");
    folder.Write("mine.dat", "100, 20, 0, 0\r\n");
    auto const run = RunCompanion({"search", Quotes, "-o", path});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors,
              "quorvex-cli: " + path + ": The file is there already. Give --force to replace it\n");
    EXPECT_EQ(folder.Read("mine.dat"), "100, 20, 0, 0\r\n");

    EXPECT_EQ(RunCompanion({"search", Quotes, "-o", path, "--force"}).ExitStatus, 0);
    EXPECT_NE(folder.Read("mine.dat"), "100, 20, 0, 0\r\n");
    EXPECT_EQ(folder.Read("mine.dat~"), "100, 20, 0, 0\r\n");
}

TEST(Search, WritesTheParameterFileAloneOnStandardOutput) {
    auto const run = RunCompanion({"search", Quotes, "--cycles", "1", "-o", "-"});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Output.substr(0, 5), "100, ");
    EXPECT_EQ(std::count(run.Output.begin(), run.Output.end(), '\n'), 10);
}

TEST(Search, TellsAFileThatCannotBeWritten) {
    TemporaryFolder const folder;
    std::string const path = folder.File("missing/found.dat");
    auto const run = RunCompanion({"search", Quotes, "-o", path});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + path + ": Path not found\n");
}

TEST(Search, KeepsToTheRangeOfPeriods) {
    auto const run = RunCompanion({"search", Quotes, "--min-period", "8", "--max-period", "9", "--json"});
    auto const object = json::parse(run.Output);
    for (auto const& cycle : object.at("Search").back().at("Cycles")) {
        EXPECT_GE(cycle.at("Period").get<int>(), 8);
        EXPECT_LE(cycle.at("Period").get<int>(), 9);
    }
}

TEST(Search, TellsWhatCannotBeSearched) {
    TemporaryFolder const folder;
    std::string const path = folder.File("flat.txt");
    std::string lines;
    for (int day = 1; day <= 30; ++day) {
        lines += "01/02/19, 5.00, 6.00, 4.00, 5.00, 0, 0\r\n";
    }
    folder.Write("flat.txt", lines);
    auto const flat = RunCompanion({"search", path});
    EXPECT_EQ(flat.ExitStatus, 1);
    EXPECT_EQ(flat.Errors,
              "quorvex-cli: " + path + ": The moving average does not change: there is no cycle in it\n");

    auto const empty = RunCompanion({"search", Quotes, "--min-period", "40"});
    EXPECT_EQ(empty.ExitStatus, 1);
    EXPECT_EQ(empty.Errors,
              "quorvex-cli: " + Quotes + ": No period lies between 40 and 30 days (half the days)\n");
    EXPECT_EQ(empty.Output, "");

    auto const missing = RunCompanion({"search", folder.File("missing.txt")});
    EXPECT_EQ(missing.ExitStatus, 1);
    EXPECT_NE(missing.Errors, "");
}

TEST(Search, AnAnalysisGoesOnWithoutCyclesWhenNoneCanBeFound) {
    auto const run = RunCompanion({"analyse", Quotes, "--search", "3", "--min-period", "40", "--json"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_NE(run.Errors.find("No period lies between 40 and 30 days (half the days)"), std::string::npos);
    EXPECT_TRUE(json::parse(run.Output).at("Cycles").is_null());
}

TEST(Search, IsRefusedWithWrongOptions) {
    ExpectWrongUsage({{"search"},
                      {"search", "a.txt", "--cycles", "0"},
                      {"search", "a.txt", "--cycles", "11"},
                      {"search", "a.txt", "--cycles", "two"},
                      {"search", "a.txt", "--cycles", "0x3"},
                      {"search", "a.txt", "--cycles", "3.5"},
                      {"search", "a.txt", "--min-period", "1"},
                      {"search", Quotes, "--min-period", "50", "--max-period", "10"},
                      {"search", Quotes, "--max-period", "4"},
                      {"analyse", Quotes, "--search", "2", "--max-period", "4"},
                      {"search", "a.txt", "--min-swing", "91"},
                      {"search", "a.txt", "--force"},
                      {"search", Quotes, "-o", "-", "--json"},
                      {"search", "a.txt", "--max-period", "501"},
                      {"search", "a.txt", "-o", "a.txt"},
                      {"analyse", "a.txt", "--min-period", "5"},
                      {"analyse", "a.txt", "--detrend"},
                      {"analyse", "a.txt", "--search", "2", "--automate", "1"},
                      {"analyse", "a.txt", "--min-swing", "10"},
                      {"analyse", "a.txt", "--search", "2", "--parameters", "p.dat"}});
}

TEST(Search, ReadsNumbersAsDecimal) {
    EXPECT_EQ(RunCompanion({"search", Quotes, "--cycles", "02", "--min-period", "010"}).Output,
              RunCompanion({"search", Quotes, "--cycles", "2", "--min-period", "10"}).Output);
}

TEST(Search, TellsThatTheTrendWasTakenOut) {
    auto const run = RunCompanion({"search", Quotes, "--detrend"});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    std::string const line = "These are correlations with the moving average less its straight line.\n";
    EXPECT_TRUE(run.Output.ends_with(line)) << run.Output;
    EXPECT_EQ(RunCompanion({"search", Quotes}).Output.find(line), std::string::npos);
    EXPECT_EQ(json::parse(RunCompanion({"search", Quotes, "--detrend", "--json"}).Output).at("Detrend"),
              true);
    EXPECT_EQ(json::parse(RunCompanion({"search", Quotes, "--json"}).Output).at("Detrend"), false);
}

TEST(Search, FindsACompositeThatSwingsAsFarAsAskedFor) {
    auto const object = json::parse(RunCompanion({"search", Quotes, "--min-swing", "40", "--json"}).Output);
    auto const& composite = object.at("CompositeCurve");
    auto const end = composite.begin() + object.at("WorkingCount").get<int>();
    auto const [lowest, highest] = std::minmax_element(composite.begin(), end);
    EXPECT_GE((highest->get<double>() - lowest->get<double>()) / 2, 40 - 1e-6);
    EXPECT_GE(object.at("Search").back().at("Cycles").size(), 2U);
}

TEST(Search, TellsHowFarTheCompositeSwings) {
    EXPECT_NE(RunCompanion({"search", Quotes, "--cycles", "1"}).Output.find("The composite swings from -"),
              std::string::npos);
}

TEST(Search, PricesWithoutAChangeAreToldOfWhateverTheyAre) {
    TemporaryFolder const folder;
    std::string lines;
    for (int day = 1; day <= 100; ++day) {
        lines += "01/02/19, 361.37, 362.00, 361.00, 361.37, 0, 0\r\n";
    }
    folder.Write("level.txt", lines);
    for (auto const* average : {"3", "5", "7"}) {
        for (bool const isDetrended : {false, true}) {
            std::vector<std::string> arguments{"search", folder.File("level.txt"), "--moving-average",
                                               average};
            if (isDetrended) {
                arguments.emplace_back("--detrend");
            }
            EXPECT_EQ(RunCompanion(arguments).Errors,
                      "quorvex-cli: " + folder.File("level.txt") +
                          ": The moving average does not change: there is no cycle in it\n");
        }
    }
}

} // namespace
} // namespace quorvex::tests
