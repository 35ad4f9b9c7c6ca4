// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/QuoteTexts.h"
#include "support/TemporaryFolder.h"
#include "text/basNumbers.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quorvex::tests {
namespace {

using nlohmann::json;

std::string const Contract = GoldenPath("quotes/q250.txt");
// Where the length does not matter: the time grows with it.
std::string const ShortContract = GoldenPath("quotes/q137.txt");

TEST(EvaluateCommand, PrintsTableSurrogatesAndVerdicts) {
    auto const run = RunCompanion({"evaluate", Contract, "--every", "25", "--surrogates", "7"});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    EXPECT_TRUE(
        run.Output.starts_with("There are too few forecasts to tell whether any model is better than the "
                               "last close.\n\nForecasts from 5 days, every 25 days from "))
        << run.Output;
    for (auto const* part :
         {"\n\nModel                     Forecast   Days  Error",
          "\nDrift                     -             1  ", "\nFit of 3 cycles           scaled       25  ",
          "\nQuick search of 5 cycles  composite    10  ", "\n\nKey\n  window: ", "\n  [ ]: ", "\n  *: ",
          "\n\nCorrelation with the moving average of all days\n  Quick search of 1 cycle: ",
          " of 7 surrogates ", "\n\nVerdict\n  Fit of 1 cycle: not tested: 5 forecasts are too few\n"}) {
        EXPECT_NE(run.Output.find(part), std::string::npos) << part << '\n' << run.Output;
    }
    EXPECT_EQ(run.Output.find("Parameters"), std::string::npos);
}

TEST(EvaluateCommand, ComparesWithTwoHundredSurrogatesUnlessTold) {
    auto const run = RunCompanion({"evaluate", ShortContract, "--every", "200"});
    EXPECT_NE(run.Output.find(" of 200 surrogates "), std::string::npos) << run.Output;
}

TEST(EvaluateCommand, GivesTheSameWithAnyNumberOfThreads) {
    auto const one = RunCompanion({"evaluate", ShortContract, "--jobs", "1", "--surrogates", "20", "--json"});
    auto const three =
        RunCompanion({"evaluate", ShortContract, "--jobs", "3", "--surrogates", "20", "--json"});
    EXPECT_EQ(one.ExitStatus, 0);
    EXPECT_EQ(one.Output, three.Output);
}

// The numbers of the value that have more digits than twelve.
int CountLongNumbers(json const& value) {
    if (!value.is_structured()) {
        return value.is_number_float() && text::RoundedToDigits(value, 12) != value.get<double>() ? 1 : 0;
    }
    int count = 0;
    for (json const& member : value) {
        count += CountLongNumbers(member);
    }
    return count;
}

TEST(EvaluateCommand, PrintsOneJsonObjectWithTwelveDigitsANumber) {
    TemporaryFolder const folder;
    folder.Write("one.dat", "100, 40, 0, 0\n");
    auto const run = RunCompanion({"evaluate", Contract, "--every", "010", "--moving-average", "7",
                                   "--surrogates", "5", "--parameters", folder.File("one.dat"), "--json"});
    ASSERT_EQ(run.ExitStatus, 0) << run.Errors;
    auto const object = nlohmann::ordered_json::parse(run.Output);
    std::vector<std::string> members;
    for (auto const& [key, value] : object.items()) {
        members.push_back(key);
    }
    EXPECT_EQ(members, (std::vector<std::string>{"QuoteFileName", "MovingAverageLength", "Every",
                                                 "BlockLength", "SampleCount", "Dates", "Closes", "Origins",
                                                 "LastClose", "Drift", "Models", "Surrogates"}));
    EXPECT_EQ(object.at("MovingAverageLength"), 7);
    EXPECT_EQ(object.at("Every"), 10); // numbers are decimal, whatever they begin with
    EXPECT_EQ(object.at("BlockLength"), 3);
    EXPECT_EQ(object.at("Closes").size(), 250U);
    EXPECT_EQ(object.at("Origins").size(), 11U); // 125, 135 .. 225
    EXPECT_EQ(object.at("Origins").at(0).at("Day"), 125);
    EXPECT_EQ(object.at("Origins").at(0).at("Date"), object.at("Dates").at(124));
    EXPECT_EQ(object.at("LastClose").at("MeanAbsoluteError").size(), 4U);
    ASSERT_EQ(object.at("Models").size(), 8U);
    auto const& parameters = object.at("Models").back();
    EXPECT_EQ(parameters.at("Name"), "Parameters (fixed cycles)");
    EXPECT_EQ(parameters.at("IsRefitted"), false);
    EXPECT_EQ(object.at("Models").at(0).at("IsRefitted"), true);
    EXPECT_EQ(parameters.at("Method"), "parameters");
    EXPECT_TRUE(parameters.at("CycleCount").is_null());
    EXPECT_EQ(parameters.at("Faults"), nlohmann::ordered_json::object());
    auto const& forecast = parameters.at("Forecasts").at(1);
    EXPECT_EQ(forecast.at("Kind"), "composite");
    EXPECT_EQ(forecast.at("ForecastCount"), 11);
    EXPECT_EQ(forecast.at("Values").size(), 11U);
    EXPECT_EQ(forecast.at("Values").at(0).size(), 25U);
    auto const& horizon = forecast.at("Horizons").at(3);
    EXPECT_EQ(horizon.at("Days"), 25);
    for (auto const* figure : {"ErrorRatio", "RightDirections", "Correlation"}) {
        EXPECT_LE(horizon.at(figure).at("Low").get<double>(), horizon.at(figure).at("High").get<double>());
        EXPECT_TRUE(horizon.at(figure).at("Value").is_number());
    }
    EXPECT_TRUE(horizon.at("p").is_number());
    EXPECT_FALSE(horizon.at("IsBetter"));
    EXPECT_FALSE(object.at("Drift").at("Horizons").at(0).contains("p"));
    EXPECT_EQ(object.at("Surrogates").at("Count"), 5);
    EXPECT_EQ(object.at("Surrogates").at("Searches").size(), 4U);
    for (auto const* member : {"Models", "Drift", "LastClose", "Surrogates"}) {
        EXPECT_EQ(CountLongNumbers(object.at(member)), 0) << member;
    }
}

TEST(EvaluateCommand, TheWindowForecastIsThatOfAnAnalysisOfTheDaysUpToTheOrigin) {
    TemporaryFolder const folder;
    folder.Write("two.dat", "60, 40, 5, 0\n40, 90, -7, 0\n");
    auto const whole = json::parse(RunCompanion({"evaluate", ShortContract, "--every", "10", "--surrogates",
                                                 "1", "--parameters", folder.File("two.dat"), "--json"})
                                       .Output);
    auto const& origin = whole.at("Origins").at(1);
    auto const analysis =
        json::parse(RunCompanion({"analyse", ShortContract, "--parameters", folder.File("two.dat"), "--end",
                                  origin.at("Date").get<std::string>(), "--json"})
                        .Output);
    EXPECT_EQ(analysis.at("WorkingCount"), origin.at("Day"));
    for (std::size_t day = 0; day < 25; ++day) {
        double const forecast = whole.at("Models").back().at("Forecasts").at(0).at("Values").at(1).at(day);
        EXPECT_EQ(forecast, text::RoundedToDigits(analysis.at("Forecast").at("Values").at(day), 12));
    }
    double const unit =
        (analysis.at("PriceScaleHigh").get<double>() - analysis.at("PriceScaleLow").get<double>()) / 200;
    auto const& composite = analysis.at("CompositeCurve");
    auto const n = analysis.at("WorkingCount").get<std::size_t>();
    double const close = analysis.at("Quotes").at(n - 1).at(4);
    for (std::size_t day = 1; day <= 25; ++day) {
        double const change = composite.at(n - 1 + day).get<double>() - composite.at(n - 1).get<double>();
        EXPECT_NEAR(
            whole.at("Models").back().at("Forecasts").at(1).at("Values").at(1).at(day - 1).get<double>(),
            close + change * unit, 1e-9);
    }
}

TEST(EvaluateCommand, TestsTheDaysAskedFor) {
    auto const all = json::parse(RunCompanion({"analyse", Contract, "--json"}).Output);
    auto const endOf = [&all](std::size_t days) {
        return all.at("Quotes").at(days - 1).at(0).get<std::string>();
    };
    auto const tooFew = RunCompanion({"evaluate", Contract, "--end", endOf(124)});
    EXPECT_EQ(tooFew.Errors,
              "quorvex-cli: " + Contract + ": Forecasts are tested on 125 days at least; there are 124\n");
    auto const some = json::parse(RunCompanion({"evaluate", Contract, "--every", "50", "--surrogates", "1",
                                                "--end", endOf(200), "--json"})
                                      .Output);
    EXPECT_EQ(some.at("Closes").size(), 200U);
    EXPECT_EQ(some.at("Origins").at(0).at("Day"), 100);
}

TEST(EvaluateCommand, TellsWhyItRefuses) {
    TemporaryFolder const folder;
    folder.Write("short.txt", QuoteLines(124));
    folder.Write("none.dat", "0, 40, 5, 0\n");
    std::string level;
    for (int day = 0; day < 130; ++day) {
        level += "01/02/03, 5, 5, 5, 5, 1, 1\n";
    }
    folder.Write("level.txt", level);
    auto const expectRefused = [](std::vector<std::string> const& arguments, std::string const& message) {
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 1);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, "quorvex-cli: " + message + '\n');
    };
    std::string const shortFile = folder.File("short.txt");
    expectRefused({"evaluate", shortFile},
                  shortFile + ": Forecasts are tested on 125 days at least; there are 124");
    expectRefused({"evaluate", folder.File("level.txt")},
                  folder.File("level.txt") + ": The closes do not change: there is nothing to forecast");
    expectRefused({"evaluate", Contract, "--moving-average", "200"},
                  Contract + ": A moving average of 200 days does not fit into the 125 days before the first "
                             "forecast");
    expectRefused({"evaluate", Contract, "--moving-average", "99999"}, Contract + ": Overflow");
    expectRefused({"evaluate", Contract, "--parameters", folder.File("none.dat")},
                  folder.File("none.dat") + ": There is no cycle with a weight and a period");
    expectRefused({"evaluate", Contract, "--parameters", folder.File("missing.dat")},
                  folder.File("missing.dat") + ": File not found");
    std::string eleven;
    for (int cycle = 1; cycle <= 11; ++cycle) {
        eleven += "10, 40, 5, 0\n";
    }
    folder.Write("eleven.dat", eleven);
    expectRefused({"evaluate", Contract, "--parameters", folder.File("eleven.dat")},
                  folder.File("eleven.dat") + ": Subscript out of range");
    expectRefused({"evaluate", Contract, "--start", "01/01/48"},
                  Contract + ": No quote is dated 01/01/48 or later");
}

TEST(EvaluateCommand, SaysInItsHelpWhatIsEasilyMistaken) {
    auto const run = RunCompanion({"evaluate", "--help"});
    EXPECT_EQ(run.ExitStatus, 0);
    std::string words;
    for (char const letter : run.Output) { // however the lines are broken
        bool const isBlank = letter == ' ' || letter == '\n';
        words += isBlank && words.ends_with(' ') ? "" : std::string(1, isBlank ? ' ' : letter);
    }
    for (auto const* part : {"one contract of 125 days or more", "made of the days tested, they know them",
                             "at one phase of a cycle of so many days: compare with 4 or 6",
                             "with [200]; more tell smaller p, fewer take less time",
                             "the result is the same with any number", "in the place of one that is there"}) {
        EXPECT_NE(words.find(part), std::string::npos) << part << '\n' << run.Output;
    }
}

TEST(EvaluateCommand, EndsWithTwoOnWrongUsage) {
    ExpectWrongUsage({{"evaluate"},
                      {"evaluate", Contract, "--every", "0"},
                      {"evaluate", Contract, "--every", "x"},
                      {"evaluate", Contract, "--every", "0x3"},
                      {"evaluate", Contract, "--every", "401"},
                      {"evaluate", Contract, "--surrogates", "0"},
                      {"evaluate", Contract, "--surrogates", "10001"},
                      {"evaluate", Contract, "--jobs", "0"},
                      {"evaluate", Contract, "--jobs", "257"},
                      {"evaluate", Contract, "--automate", "1"},
                      {"evaluate", Contract, "--plot", "plot.json"}});
}

TEST(EvaluateCommand, DrawsThePlot) {
    TemporaryFolder const folder;
    std::string const path = folder.File("plot.SVG");
    auto const run =
        RunCompanion({"evaluate", ShortContract, "--every", "20", "--surrogates", "1", "--plot", path});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_TRUE(run.Output.starts_with("There are too few forecasts "));
    EXPECT_TRUE(folder.Read("plot.SVG").starts_with("<?xml"));
    EXPECT_NE(folder.Read("plot.SVG").find("Quick search of 3 cycles"), std::string::npos);
}

TEST(EvaluateCommand, PrintsItsTableWhenThePlotCannotBeWritten) {
    TemporaryFolder const folder;
    std::string const path = folder.File("nowhere/plot.svg");
    auto const run =
        RunCompanion({"evaluate", ShortContract, "--every", "20", "--surrogates", "1", "--plot", path});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + path + ": Path not found\n");
    EXPECT_TRUE(run.Output.starts_with("There are too few forecasts "));
}

#ifdef QUORVEX_PICTURES

TEST(EvaluateCommand, DrawsThePlotOnAPage) {
    TemporaryFolder const folder;
    auto const run = RunCompanion(
        {"evaluate", ShortContract, "--every", "20", "--surrogates", "1", "--plot", folder.File("plot.PDF")});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_TRUE(folder.Read("plot.PDF").starts_with("%PDF"));
}

#else

TEST(EvaluateCommand, DrawsNoPixelsWithoutQt) {
    auto const run = RunCompanion({"evaluate", Contract, "--plot", "plot.png"});
    EXPECT_EQ(run.ExitStatus, 2);
    EXPECT_NE(run.Errors.find("plot.png is a picture that this program, built without Qt, cannot draw"),
              std::string::npos);
}

#endif

} // namespace
} // namespace quorvex::tests
