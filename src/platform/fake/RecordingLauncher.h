// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Launcher.h"

#include <string>
#include <vector>

namespace quorvex::platform::fake {

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
