// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "support/Golden.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>

namespace quorvex::tests {
namespace {

using nlohmann::json;

TEST(Chart, RecordsOneRedrawOfTheFourBoxes) {
    TemporaryFolder const folder;
    auto const run = RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "--automate", "2", "--size",
                                   "12000x9000", "-o", folder.File("charts.json")});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Output, "");
    auto const charts = json::parse(folder.Read("charts.json"));
    auto const layout = GoldenVector("layout");
    auto const& controls = layout.at(0).at("controls");
    for (std::string const name : {"Pic1", "Pic2", "Pic3", "Pic4"}) {
        auto const& box = charts.at(name);
        EXPECT_NEAR(box.at("width").get<double>(), controls.at(name).at(2).get<double>(), 0.01);
        EXPECT_NEAR(box.at("height").get<double>(), controls.at(name).at(3).get<double>(), 0.01);
        EXPECT_EQ(box.at("ops").at(0), json::array({"clear"}));
        EXPECT_EQ(box.at("ops").back().at(0), "rect");
    }
    std::map<std::string, int> kinds;
    for (auto const& operation : charts.at("Pic1").at("ops")) {
        ++kinds[operation.at(0)];
    }
    EXPECT_EQ(kinds["print"], 3);
    EXPECT_EQ(kinds["font"], 1);
    EXPECT_EQ(kinds["point"], 1);
    EXPECT_EQ(kinds["rect"], 3 * 60 + 60);
}

TEST(Chart, GoesToStandardOutput) {
    auto const run = RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "-o", "-"});
    EXPECT_EQ(run.ExitStatus, 0);
    EXPECT_EQ(json::parse(run.Output).at("Pic1").at("width"), 16005);
}

TEST(Chart, RefusesOtherFilesAndSizes) {
    auto const file = GoldenPath("quotes/q060.txt");
    for (std::vector<std::string> const& arguments : {std::vector<std::string>{"chart", file},
                                                      {"chart", file, "-o", "chart.txt"},
                                                      {"chart", file, "-o", "-", "--size", "12000"},
                                                      {"chart", file, "-o", "-", "--size", "0x9000"},
                                                      {"chart", file, "-o", "-", "--size", "12000x9000x"},
                                                      {"chart", file, "-o", "-", "--size", "x"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        EXPECT_EQ(RunCompanion(arguments).ExitStatus, 2);
    }
}

TEST(Chart, ReportsAFileThatCannotBeWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "-o", folder.File("nowhere/charts.json")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "Path not found\n");
}

TEST(Chart, OfARefusedFileIsNotWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"chart", GoldenPath("quotes/few24.txt"), "-o", folder.File("charts.json")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(folder.EntryCount(), 0);
}

} // namespace
} // namespace quorvex::tests
