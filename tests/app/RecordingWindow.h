// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/MainWindow.h"

#include <functional>
#include <string>
#include <vector>

namespace quorvex::app {

// Keeps what commands asked of the main window, in order.
class RecordingWindow final : public MainWindow {
public:
    void SetCaption(std::string_view caption) override {
        Caption = caption;
        Calls.emplace_back("caption");
    }

    void LayOut() override { Calls.emplace_back("layout"); }

    void Open(SecondaryWindow window) override {
        Opened.push_back(window);
        Calls.emplace_back("open");
        if (WhenOpened) {
            WhenOpened();
        }
    }

    void End() override { Calls.emplace_back("end"); }

    std::function<void()> WhenOpened; // what the user does in the next windows
    std::string Caption;
    std::vector<SecondaryWindow> Opened;
    std::vector<std::string> Calls;
};

} // namespace quorvex::app
