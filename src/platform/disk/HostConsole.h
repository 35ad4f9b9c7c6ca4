// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Console.h"

namespace quorvex::platform::disk {

// The console of the running process.
class HostConsole final : public Console {
public:
    [[nodiscard]] bool IsTerminal() const override;
    [[nodiscard]] bool ShowsErrors() const override;
    [[nodiscard]] int Width() const override;
};

} // namespace quorvex::platform::disk
