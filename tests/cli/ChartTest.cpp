// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "RunCompanion.h"
#include "cli/ChartJson.h"
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

TEST(Chart, SpellsEveryOperation) {
    platform::RecordingCanvas box(150, 75.5);
    box.Clear();
    box.SetForeColour(platform::Magenta);
    box.Point(1, 2.5, 0x0000C0);
    box.LineTo(3, 4, 0xC00000);
    box.Rectangle(5, 6, 7, 8, platform::Black, platform::Fill::Filled);
    box.Rectangle(5, 6, 7, 8, platform::Black, platform::Fill::Outline);
    box.SetFont("Arial", 8, true);
    box.SetTextPosition(0, 0.25);
    box.Print("253.02");
    platform::RecordingCanvas const empty(1, 1);
    EXPECT_EQ(cli::ChartJson({&box, &empty, &empty, &empty}),
              R"({"Pic1":{"width":150,"height":75.5,"ops":[["clear"],["fore",16711935],["point",1,2.5,192],)"
              R"(["line",1,2.5,3,4,12582912],["rect",5,6,7,8,0,true],["rect",5,6,7,8,0,false],)"
              R"(["font","Arial",8,true],["text_pos",0,0.25],["print","253.02"]]},)"
              R"("Pic2":{"width":1,"height":1,"ops":[]},"Pic3":{"width":1,"height":1,"ops":[]},)"
              R"("Pic4":{"width":1,"height":1,"ops":[]}})"
              "\n");
}

TEST(Chart, ShowsTheCyclesThatAnalyseTells) {
    // Weights that a second reading of the grid would scale once more.
    TemporaryFolder const folder;
    std::string parameters = "45, 40, 0, 0\r\n";
    for (int cycle = 2; cycle <= 10; ++cycle) {
        parameters += "5, " + std::to_string(10 + cycle) + ", 0, 0\r\n";
    }
    folder.Write("p.dat", parameters);
    std::vector<std::string> const options = {GoldenPath("quotes/q060.txt"), "--parameters",
                                              folder.File("p.dat")};
    auto with = [&options](std::vector<std::string> arguments, std::vector<std::string> const& more) {
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.insert(arguments.end(), more.begin(), more.end());
        return json::parse(RunCompanion(arguments).Output);
    };
    auto const composite = with({"analyse"}, {"--json"}).at("CompositeCurve");
    auto const box = with({"chart"}, {"-o", "-"}).at("Pic3");
    double const height = box.at("height");
    std::vector<double> values;
    for (auto const& operation : box.at("ops")) {
        if (operation.at(0) == "line" && operation.at(5) == 0x0000C0) {
            values.push_back((height / 2 - operation.at(4).get<double>()) / (height / 220));
        }
    }
    ASSERT_EQ(values.size(), 60U);
    for (std::size_t day = 0; day < values.size(); ++day) {
        EXPECT_NEAR(values[day], composite.at(day).get<double>(), 1e-6);
    }
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
                                                      {"chart", file, "-o", "-", "--size", "x"},
                                                      {"chart", file, "-o", "-", "--size", "1000x1000"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        EXPECT_EQ(RunCompanion(arguments).ExitStatus, 2);
    }
}

TEST(Chart, ReportsAFileThatCannotBeWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "-o", folder.File("nowhere/charts.json")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + folder.File("nowhere/charts.json") + ": Path not found\n");
}

TEST(Chart, OfARefusedFileIsNotWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"chart", GoldenPath("quotes/few24.txt"), "-o", folder.File("charts.json")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(folder.EntryCount(), 0);
}

std::string Picture(std::string const& name, std::string const& size = "16500x12000") {
    TemporaryFolder const folder;
    auto const run = RunCompanion(
        {"chart", GoldenPath("quotes/q060.txt"), "--automate", "2", "--size", size, "-o", folder.File(name)});
    EXPECT_EQ(run.ExitStatus, 0) << run.Errors;
    EXPECT_EQ(run.Errors, "");
    EXPECT_EQ(run.Output, "");
    return folder.Read(name);
}

TEST(Chart, IsAnSvgWithItsTexts) {
    auto const svg = Picture("charts.svg");
    EXPECT_TRUE(svg.starts_with("<?xml"));
    EXPECT_NE(svg.find("viewBox=\"0 0 1087"), std::string::npos);
    EXPECT_NE(svg.find("#ff00ff"), std::string::npos);              // the moving average
    EXPECT_NE(svg.find("font-weight=\"bold\""), std::string::npos); // the price labels
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
}

#ifdef QUORVEX_PICTURES

// A whole number of four bytes, the highest first, as PNG has them.
int NumberAt(std::string const& bytes, std::size_t place) {
    int number = 0;
    for (std::size_t index = 0; index < 4; ++index) {
        number = number * 256 + static_cast<unsigned char>(bytes.at(place + index));
    }
    return number;
}

TEST(Chart, IsAPngOfTheChartsWithAMargin) {
    auto const png = Picture("charts.PNG");
    ASSERT_GT(png.size(), 24U);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1a\n");
    // 97 hundredths of the width, and ten pixels on each side.
    EXPECT_EQ(NumberAt(png, 16), 1087);
    EXPECT_EQ(NumberAt(Picture("charts.png", "33000x24000"), 16), 2154);
    EXPECT_GT(NumberAt(png, 20), 600);
}

TEST(Chart, IsAPdfOfOnePage) {
    auto const pdf = Picture("charts.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
    EXPECT_NE(pdf.find("/MediaBox [0 0 815"), std::string::npos); // in points
}

TEST(Chart, RefusesAPictureThatIsTooLarge) {
    TemporaryFolder const folder;
    for (char const* name : {"charts.png", "charts.pdf"}) {
        auto const run = RunCompanion(
            {"chart", GoldenPath("quotes/q060.txt"), "--size", "1000000x1000000", "-o", folder.File(name)});
        EXPECT_EQ(run.ExitStatus, 2);
        EXPECT_NE(run.Errors.find("too large"), std::string::npos) << run.Errors;
        EXPECT_EQ(folder.EntryCount(), 0);
    }
}

TEST(Chart, ShowsWhyAPictureCannotBeWritten) {
    TemporaryFolder const folder;
    auto const run =
        RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "-o", folder.File("missing/charts.png")});
    EXPECT_EQ(run.ExitStatus, 1);
    EXPECT_EQ(run.Errors, "quorvex-cli: " + folder.File("missing/charts.png") + ": Path not found\n");
}

#else

TEST(Chart, IsNoPictureWithoutQt) {
    auto const run = RunCompanion({"chart", GoldenPath("quotes/q060.txt"), "-o", "charts.png"});
    EXPECT_EQ(run.ExitStatus, 2);
    EXPECT_NE(run.Errors.find("built without Qt"), std::string::npos) << run.Errors;
}

#endif

} // namespace
} // namespace quorvex::tests
