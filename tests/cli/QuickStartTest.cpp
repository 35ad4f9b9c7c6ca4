// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The Quick Start gives the figures that its reader will see.

#include "RunCompanion.h"
#include "search/basSearch.h"
#include "support/HelpDocuments.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace quorvex::tests {
namespace {

class QuickStart : public testing::Test {
protected:
    static nlohmann::json AnalyseWheat(std::vector<std::string> const& more) {
        return RunOnWheat("analyse", more);
    }

    static nlohmann::json SearchWheat(std::vector<std::string> const& more) {
        return RunOnWheat("search", more);
    }

    static nlohmann::json RunOnWheat(std::string const& command, std::vector<std::string> const& more) {
        std::string const samples = QUORVEX_SAMPLES;
        std::vector<std::string> arguments = {command, "--json", samples + "/Wheat.txt"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        auto const run = RunCompanion(arguments);
        EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
        return nlohmann::json::parse(run.Output);
    }

    static std::string WheatCycles() { return std::string(QUORVEX_SAMPLES) + "/Wheat.dat"; }

    // The last word of the message: the percentage.
    static std::string CorrelationOf(nlohmann::json const& analysis) {
        std::string const message = analysis.at("Correlation").at("message");
        return message.substr(message.rfind(' ') + 1);
    }

    void ExpectText(std::string const& expected) const { EXPECT_THAT(text_, testing::HasSubstr(expected)); }

    // The day's line of the estimated values without its number: date and value.
    static std::pair<std::string, std::string> EstimateOf(nlohmann::json const& analysis, std::size_t day) {
        std::string const date = analysis.at("Forecast").at("Dates").at(day);
        std::string const line = analysis.at("Forecast").at("List2").at(day);
        return {date, line.substr(line.rfind(' ') + 1)};
    }

    // The table's rows below the header as the grid shows the first three cycles.
    void ExpectGridTable(std::size_t index, nlohmann::json const& analysis) const {
        auto const* table = TablesOf(document_).at(index);
        for (std::size_t parameter = 0; parameter < 4; ++parameter) {
            auto const& cells = table->Rows.at(parameter + 1).Cells;
            for (std::size_t cycle = 0; cycle < 3; ++cycle) {
                EXPECT_EQ(TextOf(cells.at(cycle + 1)),
                          analysis.at("Grid").at(cycle).at(parameter).get<std::string>())
                    << TextOf(cells.front());
            }
        }
    }

    richtext::RichTextDocument document_ = ReadHelp("Quorvex-QuickStart.rtf");
    std::string text_ = TextOf(document_);
};

TEST_F(QuickStart, TellsOfTheFit) {
    auto const analysis = AnalyseWheat({"--automate", "3"});
    ExpectText("250 days");
    ExpectGridTable(0, analysis);
    ExpectText("The message says " + CorrelationOf(analysis) + ".");
}

TEST_F(QuickStart, TellsOfTheForecast) {
    auto const analysis = AnalyseWheat({"--automate", "3"});
    std::vector<double> const values = analysis.at("Forecast").at("Values");
    auto const lowest = std::ranges::min_element(values) - values.begin();
    auto const highest = std::ranges::max_element(values) - values.begin();
    for (std::ptrdiff_t const day : {std::ptrdiff_t{0}, lowest, highest, std::ptrdiff_t{24}}) {
        auto const [date, value] = EstimateOf(analysis, static_cast<std::size_t>(day));
        std::string expected = value;
        expected.append(" on ").append(date);
        ExpectText(expected);
    }
}

TEST_F(QuickStart, TellsOfTheCyclesFromTheFile) {
    auto const analysis = AnalyseWheat({"--parameters", WheatCycles()});
    ExpectGridTable(1, analysis);
    ExpectText("\nCorrelation now says " + CorrelationOf(analysis));
    ExpectText("begins at " + EstimateOf(analysis, 0).second + " and ends at " +
               EstimateOf(analysis, 24).second);
}

// The whole numbers between which the composite swings.
std::string SwingOf(nlohmann::json const& analysis) {
    std::vector<double> curve = analysis.at("CompositeCurve");
    curve.resize(analysis.at("WorkingCount").get<std::size_t>());
    auto const [lowest, highest] = std::ranges::minmax(curve);
    return std::to_string(std::lround(lowest)) + " to " + std::to_string(std::lround(highest));
}

TEST_F(QuickStart, TellsOfTheBestCycles) {
    std::string const swing = std::to_string(search::VisibleSwing); // that of the window
    auto const half = SearchWheat({"--min-swing", swing});
    ExpectText("correlation of " + CorrelationOf(half) + ", and that the composite swings from " +
               SwingOf(half));
    auto const whole = SearchWheat({"--min-swing", swing, "--max-period", "250"});
    ExpectText("Now the composite swings from " + SwingOf(whole) + ". Press OK. Correlation now says " +
               CorrelationOf(whole) + ",");
}

TEST_F(QuickStart, TellsWhetherTheyForecast) {
    TemporaryFolder const folder;
    std::string const found = folder.File("found.dat");
    static_cast<void>(SearchWheat(
        {"--min-swing", std::to_string(search::VisibleSwing), "--max-period", "250", "-o", found}));
    auto const run = RunCompanion({"evaluate", std::string(QUORVEX_SAMPLES) + "/Wheat.txt", "--parameters",
                                   found, "--surrogates", "1"});
    EXPECT_THAT(run.Output,
                testing::StartsWith("None of the 7 models forecasts better than the last close. The fixed "
                                    "cycles look better, which counts only if they were chosen before "));
    ExpectText("none of the seven models which know only the past forecasts better than the last close. Your "
               "fixed cycles look better,");
}

TEST_F(QuickStart, TellsOfTheDateRange) {
    auto const analysis =
        AnalyseWheat({"--parameters", WheatCycles(), "--start", "05/01/19", "--end", "11/05/19"});
    ExpectText("falls to " + std::to_string(analysis.at("WorkingCount").get<int>()) + ":");
    ExpectText("is now " + CorrelationOf(analysis) + ":");
}

} // namespace
} // namespace quorvex::tests
