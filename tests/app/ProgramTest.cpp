// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "app/Program.h"

#include "RunningProgram.h"

#include <gtest/gtest.h>

namespace quorvex::app {
namespace {

TEST(StartUp, ReadsTheSettingsOfTheProfile) {
    RunningProgram const running(
        {{"Globals", "DataPath", "C:\\Quotes"}, {"Globals", "ChartType", "Line Chart"}});
    EXPECT_EQ(running.Data->Settings.DataPath, "C:\\Quotes\\");
    EXPECT_EQ(running.Data->Settings.ChartType, "Line Chart");
    EXPECT_EQ(running.Data->Settings.MovingAverageIndex, "3");
    EXPECT_EQ(running.Data->ProgramFolder, "C:\\Quorvex");
    EXPECT_EQ(running.Grid.Text(cycles::Parameter::Decay, 10), "0");
    EXPECT_TRUE(running.Window.Calls.empty()) << "nothing is drawn before the window is active";
}

TEST(StartUp, WithoutAProfileTakesTheDefaults) {
    auto const program = std::make_unique<Program>();
    cycles::TextGrid grid;
    StartUp(*program, grid, platform::NoProfile(), "/opt/quorvex");
    EXPECT_EQ(program->Settings.DataPath, "/opt/quorvex/");
    EXPECT_EQ(program->Settings.CurrencyFormat, "####0.00");
}

} // namespace
} // namespace quorvex::app
