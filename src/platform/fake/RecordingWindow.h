// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Launcher.h"
#include "platform/MainWindow.h"

#include <string>
#include <vector>

namespace quorvex::platform::fake {

// Keeps what commands asked of the main window and of the system, in order.
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
    }

    void End() override { Calls.emplace_back("end"); }

    std::string Caption;
    std::vector<SecondaryWindow> Opened;
    std::vector<std::string> Calls;
};

// Keeps what was started; on a system that has no programs, starts nothing.
class RecordingLauncher final : public Launcher {
public:
    void Start(std::string_view program) override {
        if (!HasPrograms) {
            throw text::RunTimeError(text::Fault::FileNotFound);
        }
        Started.emplace_back(program);
    }

    bool HasPrograms = true;
    std::vector<std::string> Started;
};

} // namespace quorvex::platform::fake
