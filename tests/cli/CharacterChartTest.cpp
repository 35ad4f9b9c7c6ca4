// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "cli/CharacterChart.h"

#include "support/QuoteTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <vector>

namespace quorvex::cli {
namespace {

std::vector<std::string> LinesOf(std::string const& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

// Thirty days that rise from 101 to 130 on a price axis of 100 to 130.
std::unique_ptr<app::Program> RisingProgram() {
    auto program = std::make_unique<app::Program>();
    program->Settings = settings::DefaultSettings("./");
    program->Quotes = *tests::SeriesOf(tests::QuoteLines(30));
    program->Curves.PriceScale = {130, 100};
    program->Curves.States.Quotes = {};
    return program;
}

// The same with a composite of this value.
std::unique_ptr<app::Program> ProgramWithComposite(double value) {
    auto program = RisingProgram();
    program->Curves.CompositeCurve.Fill(value);
    program->Curves.States.Composite = {};
    return program;
}

TEST(CharacterChart, DrawsTheClosesFromBottomLeftToTopRight) {
    auto const lines = LinesOf(CharacterChart(*RisingProgram(), 80));
    ASSERT_EQ(lines.size(), 18U);
    EXPECT_TRUE(lines.front().starts_with("130.00 |"));
    EXPECT_EQ(lines.front().back(), '*');
    EXPECT_EQ(lines.front().size(), std::string("130.00 |").size() + 30);
    EXPECT_TRUE(lines[15].starts_with("100.00 |*"));
    EXPECT_EQ(lines[16], "       +------------------------------");
    EXPECT_EQ(lines[17], "        * close   01/01/01 to 02/09/01");
}

TEST(CharacterChart, PutsTheCompositeOnThePriceAxisAndBeyondTheLastDay) {
    auto const program = ProgramWithComposite(100); // the top of the axis
    auto const lines = LinesOf(CharacterChart(*program, 80));
    EXPECT_EQ(std::count(lines.front().begin(), lines.front().end(), 'o'), 54);
    EXPECT_EQ(std::count(lines.front().begin(), lines.front().end(), '@'), 1);
    EXPECT_TRUE(lines.back().ends_with("02/09/01 and 25 days on"));
}

TEST(CharacterChart, FitsTheTerminal) {
    auto const program = ProgramWithComposite(0);
    for (int const width : {1, 20, 40, 80, 500}) {
        for (std::string const& line : LinesOf(CharacterChart(*program, width))) {
            // A terminal too narrow for twenty columns gets those all the same, and the legend stays whole.
            bool const legend = line.ends_with("days on");
            EXPECT_TRUE(legend || line.size() <= static_cast<std::size_t>(std::max(width, 28))) << line;
        }
    }
}

TEST(CharacterChart, LeavesOutACompositeBeyondTheAxis) {
    auto const program = ProgramWithComposite(1e300);
    auto const chart = CharacterChart(*program, 80);
    EXPECT_EQ(chart.substr(0, chart.find('+')).find('o'), std::string::npos);
}

TEST(CharacterChart, IsEmptyForQuotesThatCannotBeShown) {
    auto const program = RisingProgram();
    program->Curves.States.Quotes.Fault = text::RunTimeError(text::Fault::DivisionByZero);
    EXPECT_EQ(CharacterChart(*program, 80), "");
}

} // namespace
} // namespace quorvex::cli
