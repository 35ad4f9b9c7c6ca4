// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Console.h"

namespace quorvex::cli {

// A bar on standard error for long work; nothing where nobody looks at it. It is gone with the object.
class ProgressBar {
public:
    explicit ProgressBar(platform::Console const& console) : isShown_(console.ShowsErrors()) {}

    ProgressBar(ProgressBar const&) = delete;
    ProgressBar& operator=(ProgressBar const&) = delete;
    ~ProgressBar();

    // The share of 1 that is done.
    void Show(double share);

private:
    bool isShown_;
    int percent_ = -1;
};

} // namespace quorvex::cli
