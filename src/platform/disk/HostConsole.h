// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Console.h"

namespace quorvex::platform::disk {

// The console of the running process. As long as it lives, standard output and error take UTF-8, and a line
// ends there with LF alone, on every system. There is one at a time.
class HostConsole final : public Console {
public:
    HostConsole();
    HostConsole(HostConsole const&) = delete;
    HostConsole& operator=(HostConsole const&) = delete;
    ~HostConsole() override;

    [[nodiscard]] bool IsTerminal() const override;
    [[nodiscard]] bool ShowsErrors() const override;
    [[nodiscard]] int Width() const override;
};

} // namespace quorvex::platform::disk
