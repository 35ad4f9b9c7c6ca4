// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Console.h"

#include <cstddef>
#include <string>

namespace quorvex::cli {

// A line on standard error that tells how far long work is; nothing where nobody looks at it. It is gone with
// the object.
class ProgressLine {
public:
    explicit ProgressLine(platform::Console const& console) : isShown_(console.ShowsErrors()) {}

    ProgressLine(ProgressLine const&) = delete;
    ProgressLine& operator=(ProgressLine const&) = delete;

    ~ProgressLine() { Erase(); }

    // Puts the text in the place of the one before.
    void Show(std::string const& text);

    // Makes room for something else.
    void Erase();

private:
    bool isShown_;
    std::string text_;
};

inline constexpr std::size_t UsualBar = 40;

// "[####....] 50 %" of the share of 1 that is done, with a bar of so many characters, the usual one at the
// most.
[[nodiscard]] std::string ProgressText(double share, std::size_t room = UsualBar);

} // namespace quorvex::cli
