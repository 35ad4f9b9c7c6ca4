// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace quorvex::app {

// The windows that commands open.
enum class SecondaryWindow {
    Edit,
    ConvertCSI,
    ConvertBarChart,
    ConvertCustom,
    Properties,
    Forecast,
    FindCycles,
    TestForecast,
    Import,
    Preferences,
    Legend,
    Help,
    About
};

// What commands ask of the program's one top-level window.
class MainWindow {
public:
    MainWindow() = default;
    MainWindow(MainWindow const&) = delete;
    MainWindow& operator=(MainWindow const&) = delete;
    virtual ~MainWindow() = default;

    virtual void SetCaption(std::string_view caption) = 0;

    // Puts the controls where the window's size wants them.
    virtual void LayOut() = 0;

    // Shows the window and waits until it is closed.
    virtual void Open(SecondaryWindow window) = 0;

    // Ends the program as soon as the running command is over, without a question.
    virtual void End() = 0;
};

} // namespace quorvex::app
