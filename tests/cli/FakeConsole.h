// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Console.h"

namespace quorvex::cli {

// What a test says that the companion writes on.
class FakeConsole final : public platform::Console {
public:
    struct Sight {
        bool IsTerminal = false;
        bool ShowsErrors = false;
        int Width = 80;
    };

    explicit FakeConsole(Sight const& sight) : sight_(sight) {}

    [[nodiscard]] bool IsTerminal() const override { return sight_.IsTerminal; }

    [[nodiscard]] bool ShowsErrors() const override { return sight_.ShowsErrors; }

    [[nodiscard]] int Width() const override { return sight_.Width; }

private:
    Sight sight_;
};

} // namespace quorvex::cli
