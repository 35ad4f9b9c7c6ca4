// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Approximate.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "support/Sanitizers.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <map>

namespace quorvex::tests {
namespace {

using nlohmann::json;

// The analysis of a reference quote file as JSON.
json AnalyseGolden(std::string const& file, std::string const& format,
                   std::vector<std::string> const& more = {}) {
    std::vector<std::string> arguments = {"analyse", GoldenPath("quotes/" + file), "--format", format,
                                          "--json"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    auto const run = RunCompanion(arguments);
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    return json::parse(run.Output);
}

void ExpectNumbers(json const& actual, json const& days, json const& expected) {
    ASSERT_EQ(days.size(), expected.size());
    for (std::size_t index = 0; index < days.size(); ++index) {
        EXPECT_TRUE(IsClose(actual.at(days.at(index).get<std::size_t>() - 1), expected.at(index)));
    }
}

TEST(AnalyseJson, HasItsMembersInOrder) {
    auto const run = RunCompanion({"analyse", GoldenPath("quotes/q060.txt"), "--automate", "2", "--json"});
    auto const object = nlohmann::ordered_json::parse(run.Output);
    std::vector<std::string> members;
    for (auto const& [key, value] : object.items()) {
        members.push_back(key);
    }
    std::vector<std::string> const expected = {
        "QuoteFileName", "QuoteCount",         "WorkingCount",   "FirstQuoteDate", "LastQuoteDate",
        "Quotes",        "MovingAverageCurve", "PriceScaleHigh", "PriceScaleLow",  "Grid",
        "Cycles",        "CompositeCurve",     "ResidualCurve",  "Fits",           "Correlation",
        "Forecast",      "Properties"};
    EXPECT_EQ(members, expected);
    EXPECT_EQ(run.Output.back(), '\n');
}

TEST(AnalyseJson, TellsTheQuotesAsLoaded) {
    for (auto const& expected : GoldenVector("quote_files")) {
        if (expected.at("refused")) {
            continue;
        }
        SCOPED_TRACE(expected.at("file").get<std::string>());
        auto const actual = AnalyseGolden(expected.at("file"), expected.at("currency_format"));
        EXPECT_EQ(actual.at("QuoteFileName"), expected.at("file"));
        EXPECT_EQ(actual.at("QuoteCount"), expected.at("count"));
        EXPECT_EQ(actual.at("WorkingCount"), expected.at("count"));
        EXPECT_EQ(actual.at("FirstQuoteDate"), expected.at("first_date"));
        EXPECT_EQ(actual.at("LastQuoteDate"), expected.at("last_date"));
        EXPECT_EQ(actual.at("Quotes"), expected.at("records"));
    }
}

TEST(AnalyseJson, WhatDoesNotExistIsNull) {
    auto const actual = AnalyseGolden("q060.txt", "####0.00");
    for (auto const* member : {"Cycles", "CompositeCurve", "ResidualCurve", "Fits", "Forecast"}) {
        EXPECT_TRUE(actual.at(member).is_null()) << member;
    }
    EXPECT_TRUE(actual.at("Correlation").at("r").is_null());
    EXPECT_EQ(actual.at("Correlation").at("message"), "Insufficient data to perform correlation");
    EXPECT_EQ(actual.at("Correlation").at("title"), "Quorvex - Correlation");
    EXPECT_EQ(actual.at("Grid"), json(std::vector(10, std::vector<std::string>(4, "0"))));
}

TEST(AnalyseJson, AgreesWithTheReferenceFits) {
    constexpr double FitTolerance = 1e-7;
    auto const formats = [] {
        std::map<std::string, std::string> found;
        for (auto const& entry : GoldenVector("quote_files")) {
            found.emplace(entry.at("file"), entry.at("currency_format"));
        }
        return found;
    }();
    int number = 0;
    for (auto const& expected : GoldenVector("fits")) {
        if (!expected.contains("file") || expected.at("fragile") || ++number % tests::Stride != 0) {
            continue;
        }
        std::string const file = expected.at("file");
        SCOPED_TRACE(file);
        auto const actual = AnalyseGolden(
            file, formats.at(file),
            {"--moving-average", expected.at("moving_average_index"), "--automate", expected.at("m").dump()});
        auto const& fits = expected.at("fits");
        ASSERT_EQ(actual.at("Fits").size(), fits.size());
        for (std::size_t index = 0; index < fits.size(); ++index) {
            auto const& fit = actual.at("Fits").at(index);
            EXPECT_TRUE(IsClose(fit.at("Amplitude"), fits.at(index).at("amplitude"), FitTolerance));
            EXPECT_TRUE(IsClose(fit.at("Frequency"), fits.at(index).at("omega"), FitTolerance));
            EXPECT_TRUE(IsClose(fit.at("Phase"), fits.at(index).at("phase"), FitTolerance));
            EXPECT_TRUE(IsClose(fit.at("CosineCoefficient"), fits.at(index).at("a"), FitTolerance));
            EXPECT_TRUE(IsClose(fit.at("SineCoefficient"), fits.at(index).at("b"), FitTolerance));
            // Weights are in percent of their sum by then.
            auto const& row = actual.at("Grid").at(index);
            EXPECT_EQ(row.at(1), expected.at("grid").at(index).at(1));
            EXPECT_EQ(row.at(2), expected.at("grid").at(index).at(2));
        }
    }
}

TEST(AnalyseJson, AgreesWithTheReferenceCurvesOfWholePercentages) {
    int compared = 0;
    for (auto const& expected : GoldenVector("curves")) {
        double total = 0;
        std::string parameters;
        bool whole = true;
        for (auto const& cycle : expected.at("cycles")) {
            total += cycle.at(0).get<double>();
            for (auto const& number : cycle) {
                whole = whole && number.get<double>() == std::floor(number.get<double>());
                parameters += number.dump() + ", ";
            }
            parameters += "\r\n";
        }
        if (!whole || total < 98 || total > 102) {
            continue;
        }
        // Typed into the grid, weights that do not sum to 100 would be scaled.
        bool const kept = total == 100;
        TemporaryFolder const folder;
        std::string trimmed;
        for (std::size_t begin = 0; begin < parameters.size();) {
            auto const end = parameters.find(", \r\n", begin);
            trimmed += parameters.substr(begin, end - begin) + "\r\n";
            begin = end + 4;
        }
        folder.Write("p.dat", trimmed);
        auto const actual = AnalyseGolden(
            expected.at("file"), expected.at("currency_format"),
            {"--parameters", folder.File("p.dat"), "--moving-average", expected.at("moving_average_index")});
        EXPECT_TRUE(IsClose(actual.at("PriceScaleHigh"), expected.at("price_scale").at("high")));
        EXPECT_TRUE(IsClose(actual.at("PriceScaleLow"), expected.at("price_scale").at("low")));
        if (kept) {
            ExpectNumbers(actual.at("CompositeCurve"), expected.at("curve_days"), expected.at("composite"));
            ExpectNumbers(actual.at("ResidualCurve"), expected.at("residual_days"), expected.at("residual"));
            EXPECT_TRUE(IsClose(actual.at("Correlation").at("r"), expected.at("correlation").at("r")));
            ++compared;
        }
        auto const& forecast = actual.at("Forecast");
        EXPECT_EQ(forecast.at("Dates"), expected.at("forecast").at("dates"));
        EXPECT_EQ(forecast.at("List1"), expected.at("forecast").at("list1"));
        EXPECT_EQ(forecast.at("List2"), expected.at("forecast").at("list2"));
        for (std::size_t day = 0; day < 25; ++day) {
            EXPECT_TRUE(IsClose(forecast.at("Values").at(day), expected.at("forecast").at("values").at(day)));
        }
    }
    EXPECT_EQ(compared, 4);
}

TEST(AnalyseJson, AgreesWithTheReferenceProperties) {
    for (auto const& expected : GoldenVector("properties")) {
        if (expected.contains("label")) {
            continue;
        }
        SCOPED_TRACE(expected.at("file").get<std::string>());
        std::vector<std::string> range;
        if (!expected.at("range").is_null()) {
            range = {"--start", expected.at("range").at(0), "--end", expected.at("range").at(1)};
        }
        auto const actual = AnalyseGolden(expected.at("file"), expected.at("currency_format"), range);
        EXPECT_EQ(actual.at("Properties"), expected.at("captions"));
    }
}

TEST(Analyse, RefusesAShortFileWithTheProgramsMessage) {
    std::string const file = GoldenPath("quotes/few24.txt");
    auto const run = RunCompanion({"analyse", file, "--json"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "quorvex-cli: " + file +
                              ": A minimum of 25 daily quotes is required to perform cyclical analysis\n");
}

TEST(Analyse, ReportsFilesThatCannotBeRead) {
    TemporaryFolder const folder;
    auto run = RunCompanion({"analyse", folder.File("gone.txt")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "quorvex-cli: " + folder.File("gone.txt") + ": File not found\n");
    run = RunCompanion({"analyse", folder.Text()});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
}

TEST(Analyse, TakesAnEmptyPathForABadName) {
    auto run = RunCompanion({"analyse", ""});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: Bad file name or number\n");
    run = RunCompanion({"analyse", GoldenPath("quotes/q060.txt"), "--parameters", ""});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: Bad file name or number\n");
}

TEST(Analyse, RefusesALastDayThatNoQuoteBears) {
    auto const run = RunCompanion({"analyse", GoldenPath("quotes/q250.txt"), "--end", "08/14/99", "--json"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Output, "");
    EXPECT_EQ(run.Errors, "quorvex-cli: " + GoldenPath("quotes/q250.txt") + ": No quote is dated 08/14/99\n");
}

TEST(Analyse, PrintsWhatThereIsWhenTheParameterFileBreaksOff) {
    auto const run = RunCompanion({"analyse", GoldenPath("quotes/q060.txt"), "--parameters",
                                   GoldenPath("params/eleven.dat"), "--json"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + GoldenPath("params/eleven.dat") + ": Subscript out of range\n");
    EXPECT_EQ(json::parse(run.Output).at("Cycles").size(), 10U);
}

TEST(Analyse, ReportsAFitThatFails) {
    std::string flat;
    for (int day = 1; day <= 28; ++day) {
        flat += "01/" + std::to_string(day) + "/02, 5, 6, 4, 5, 1, 1\r\n";
    }
    TemporaryFolder const folder;
    folder.Write("flat.txt", flat);
    auto const run = RunCompanion({"analyse", folder.File("flat.txt"), "--automate", "1", "--json"});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + folder.File("flat.txt") + ": Division by zero\n");
    EXPECT_TRUE(json::parse(run.Output).at("Fits").is_null());
}

TEST(AnalyseReport, ReadsAsATextOfFiveParts) {
    auto const run = RunCompanion({"analyse", GoldenPath("quotes/q250.txt"), "--automate", "3"});
    EXPECT_EQ(run.ExitStatus, 0);
    for (auto const* part :
         {"Quotes\n  Quote file     q250.txt\n", "  High           452.53\n",
          "Cycles        Weight  Period   Shift   Decay\n", "  Cycle 1         50      14      -7       0\n",
          "Fit           Period, days", "Correlation\n  The coefficient", "Forecast\n  Previous Closes",
          "226  ", " 1  01/07/00 "}) {
        EXPECT_NE(run.Output.find(part), std::string::npos) << part << "\n" << run.Output;
    }
    EXPECT_EQ(run.Output.find("* close"), std::string::npos) << "a chart is for a terminal";
}

TEST(AnalyseReport, SaysHowToGetCycles) {
    auto const run = RunCompanion({"analyse", GoldenPath("quotes/q250.txt")});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_NE(run.Output.find("none: give --parameters FILE.dat, --automate 1|2|3 or --search N"),
              std::string::npos);
}

} // namespace
} // namespace quorvex::tests
