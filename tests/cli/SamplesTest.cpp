// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// The sample data that come with the program load and suit each other.

#include "RunCompanion.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace quorvex::tests {
namespace {

std::string Sample(std::string const& name) {
    return std::string(QUORVEX_SAMPLES) + '/' + name;
}

nlohmann::json AnalyseSample(std::vector<std::string> const& more) {
    std::vector<std::string> arguments = {"analyse", "--json"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    auto const run = RunCompanion(arguments);
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    return nlohmann::json::parse(run.Output);
}

TEST(Samples, HoldTwoHundredAndFiftyDaysEach) {
    for (auto const* name : {"Wheat.txt", "CrudeOil.txt", "Gold.txt"}) {
        SCOPED_TRACE(name);
        auto const analysis = AnalyseSample({Sample(name), "--automate", "3"});
        EXPECT_EQ(analysis.at("QuoteCount"), 250);
        EXPECT_EQ(analysis.at("LastQuoteDate"), "11/05/19");
        EXPECT_EQ(analysis.at("Fits").size(), 3U);
        EXPECT_EQ(analysis.at("Forecast").at("Dates").at(0), "11/06/19");
    }
}

TEST(Samples, HaveCyclesThatFollowTheirContract) {
    for (std::string const name : {"Wheat", "CrudeOil"}) {
        SCOPED_TRACE(name);
        auto const analysis = AnalyseSample({Sample(name + ".txt"), "--parameters", Sample(name + ".dat")});
        EXPECT_EQ(analysis.at("Cycles").size(), 3U);
        EXPECT_GT(analysis.at("Correlation").at("r"), 0.85);
    }
}

} // namespace
} // namespace quorvex::tests
