// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

namespace quorvex::platform {

// What the companion writes on.
class Console {
public:
    Console() = default;
    Console(Console const&) = delete;
    Console& operator=(Console const&) = delete;
    virtual ~Console() = default;

    // Whether standard output is a terminal that somebody looks at.
    [[nodiscard]] virtual bool IsTerminal() const = 0;

    // Whether standard error is one.
    [[nodiscard]] virtual bool ShowsErrors() const = 0;

    // The width of the terminal of standard output in characters, 80 when it is not known.
    [[nodiscard]] virtual int Width() const = 0;
};

} // namespace quorvex::platform
