// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/RunTimeError.h"

#include <string_view>

namespace quorvex::platform {

// The program for printer settings. On systems that have no such program it stands for what the desktop has.
inline constexpr std::string_view ControlPanel = "CONTROL.EXE";

// Starts other programs.
class Launcher {
public:
    Launcher() = default;
    Launcher(Launcher const&) = delete;
    Launcher& operator=(Launcher const&) = delete;
    virtual ~Launcher() = default;

    // Starts the program in a window of its own and does not wait for it. Raises "File not found" when there
    // is none.
    virtual void Start(std::string_view program) = 0;
};

// For runs that start nothing.
class NoLauncher final : public Launcher {
public:
    void Start(std::string_view) override { throw text::RunTimeError(text::Fault::FileNotFound); }
};

} // namespace quorvex::platform
